#pragma once

#include <string>
#include <string_view>

namespace trelonit {

/// A UTF-8 text as a terminal may show it: control characters, which could be orders to it, become
/// the symbols that stand for them, those of eight bits their number as \xNN. Line ends and tabs
/// stay.
std::string TerminalText(std::string_view text);

}  // namespace trelonit
