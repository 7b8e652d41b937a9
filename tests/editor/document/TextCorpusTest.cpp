#include <gtest/gtest.h>

#include "fuzz/text/TextInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(TextCorpus, EverySampleIsReadStoredAndEditedWell) {
  ReplayCorpus("text", fuzz::ComplaintAboutText);
}

}  // namespace
}  // namespace trelonit::test
