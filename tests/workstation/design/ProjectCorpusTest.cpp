#include <gtest/gtest.h>

#include "fuzz/project/ProjectInvariants.h"
#include "tests/support/Corpus.h"

namespace trelonit::test {
namespace {

TEST(ProjectCorpus, EverySampleIsReadAndSurvivesItsStoring) {
  ReplayCorpus("project", fuzz::ComplaintAboutProject);
}

}  // namespace
}  // namespace trelonit::test
