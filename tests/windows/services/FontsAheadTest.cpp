#include <QFontDatabase>
#include <gtest/gtest.h>

#include "windows/services/FontsAhead.h"

namespace trelonit::test {
namespace {

TEST(FontsAhead, HaveTheListOnceItIsWaitedFor) {
  FontsAhead fonts;
  fonts.WaitForList();
  const FontsAhead::Taken untilItEnds(fonts);
  EXPECT_FALSE(QFontDatabase::families().isEmpty());
}

TEST(FontsAhead, EndWithAStartThatEndsBefore) {
  const FontsAhead fonts;
}

}  // namespace
}  // namespace trelonit::test
