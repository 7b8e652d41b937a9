#include <gtest/gtest.h>

#include "fuzz/design/DesignInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(DesignCorpus, EverySampleEndsInResultsOrInAToldError) {
  ReplayCorpus("design", fuzz::ComplaintAboutDesign);
}

}  // namespace
}  // namespace trelonit::test
