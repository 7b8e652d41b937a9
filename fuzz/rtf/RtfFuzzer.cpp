#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "editor/rtf/RtfHealth.h"
#include "fuzz/rtf/RtfInvariants.h"

// The name and the types are the fuzzer's own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(data, data + size);
  // Nearly all mutations of the first five bytes would only be refused.
  if (!trelonit::BeginsAsRtf(bytes)) {
    bytes.insert(0, "{\\rtf1");
  }
  const std::string complaint = trelonit::fuzz::ComplaintAboutReading(bytes);
  if (!complaint.empty()) {
    std::fprintf(stderr, "%s\n", complaint.c_str());
    std::abort();
  }
  return 0;
}
