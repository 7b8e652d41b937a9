#include <gtest/gtest.h>

#include "fuzz/automation/AutomationInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(AutomationCorpus, EverySampleEndsInDrawingsOrInErrorsOfTheHost) {
  ReplayCorpus("automation", fuzz::ComplaintAboutAutomation);
}

}  // namespace
}  // namespace trelonit::test
