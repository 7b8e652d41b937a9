#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Runs a target on one input of the fuzzer; a complaint is told and ends the program, by which the
/// fuzzer knows a finding.
inline int RunOne(std::string (*complaintAbout)(std::string_view), const std::uint8_t* data,
                  std::size_t size) {
  const std::string bytes(data, data + size);
  const std::string complaint = complaintAbout(bytes);
  if (!complaint.empty()) {
    std::fprintf(stderr, "%s\n", complaint.c_str());
    std::abort();
  }
  return 0;
}

}  // namespace trelonit::fuzz
