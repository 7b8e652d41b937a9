#include "fuzz/support/OneInput.h"
#include "fuzz/text/TextInvariants.h"

// The name and the types are the fuzzer's own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return trelonit::fuzz::RunOne(trelonit::fuzz::ComplaintAboutText, data, size);
}
