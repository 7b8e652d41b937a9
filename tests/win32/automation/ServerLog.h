#pragma once

namespace trelonit::test {

// Files in a server's folder.

constexpr const char* ordersName = "orders";
constexpr const char* logName = "log";

// The lines of a server's log that tell no use of a member.

/// With the number of the process behind it.
constexpr const char* processLine = "process ";
constexpr const char* turnedAway = "turned away";

}  // namespace trelonit::test
