#include "fuzz/automation/AutomationInvariants.h"
#include "fuzz/support/OneInput.h"

// The name and the types are the fuzzer's own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return trelonit::fuzz::RunOne(trelonit::fuzz::ComplaintAboutAutomation, data, size);
}
