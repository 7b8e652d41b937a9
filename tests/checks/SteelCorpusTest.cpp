#include <gtest/gtest.h>

#include "fuzz/steel/SteelInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(SteelCorpus, EverySampleIsReadAndShownWell) {
  ReplayCorpus("steel", fuzz::ComplaintAboutSteels);
}

}  // namespace
}  // namespace trelonit::test
