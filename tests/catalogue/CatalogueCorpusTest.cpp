#include <gtest/gtest.h>

#include "fuzz/catalogue/CatalogueInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(CatalogueCorpus, EverySampleIsLoadedAndJudgedWell) {
  ReplayCorpus("catalogue", fuzz::ComplaintAboutCatalogue);
}

}  // namespace
}  // namespace trelonit::test
