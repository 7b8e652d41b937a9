#include "editor/rtf/RtfHealth.h"
#include "fuzz/rtf/RtfInvariants.h"
#include "fuzz/support/OneInput.h"

namespace {

/// Nearly all mutations of the first five bytes would only be refused.
std::string ComplaintAboutContent(std::string_view bytes) {
  return trelonit::fuzz::ComplaintAboutReading(
      trelonit::BeginsAsRtf(bytes) ? std::string(bytes) : "{\\rtf1" + std::string(bytes));
}

}  // namespace

// The name and the types are the fuzzer's own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return trelonit::fuzz::RunOne(ComplaintAboutContent, data, size);
}
