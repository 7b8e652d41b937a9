#include <gtest/gtest.h>

#include "fuzz/numbers/NumbersInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(NumbersCorpus, EverySampleIsReadAndWrittenWell) {
  ReplayCorpus("numbers", fuzz::ComplaintAboutNumbers);
}

}  // namespace
}  // namespace trelonit::test
