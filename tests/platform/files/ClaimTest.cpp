#include <gtest/gtest.h>

#include "platform/files/StateFolder.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {
namespace {

class Claims : public FileFolder {};

TEST_F(Claims, HaveOneHolderAtATime) {
  ClaimAttempt first = TryClaim(In("a"));
  ASSERT_NE(first.Held, nullptr);
  const ClaimAttempt second = TryClaim(In("a"));
  EXPECT_EQ(second.Held, nullptr);
  EXPECT_TRUE(second.ByAnother);
  EXPECT_NE(TryClaim(In("b")).Held, nullptr);
  first.Held.reset();
  EXPECT_NE(TryClaim(In("a")).Held, nullptr);
}

TEST_F(Claims, LeaveNoFileBehind) {
  TryClaim(In("a")).Held.reset();
  EXPECT_EQ(Names(), std::set<std::string>());
}

TEST_F(Claims, AreFreeWhereOnlyTheFileIsLeft) {
  // As after a crash.
  Put("a", "");
  EXPECT_NE(TryClaim(In("a")).Held, nullptr);
}

TEST_F(Claims, WithoutAFolderAreNobodys) {
  const ClaimAttempt attempt = TryClaim(In("missing/a"));
  EXPECT_EQ(attempt.Held, nullptr);
  EXPECT_FALSE(attempt.ByAnother);
}

class States : public FileFolder {
 protected:
  StateFolder state{std::filesystem::path(In("state"))};
};

TEST_F(States, AreThereOnceSomethingIsClaimed) {
  EXPECT_EQ(state.Names(".x"), std::vector<std::string>());
  const ClaimAttempt attempt = state.Claim("1.x");
  EXPECT_NE(attempt.Held, nullptr);
  EXPECT_EQ(state.Names(".x"), std::vector<std::string>{"1.x"});
}

TEST_F(States, NameTheNewestFirst) {
  ASSERT_TRUE(state.Make());
  Put("state/1.x", "old");
  Put("state/2.x", "new");
  Put("state/3.y", "another");
  const auto now = std::filesystem::file_time_type::clock::now();
  std::filesystem::last_write_time(In("state/1.x"), now - std::chrono::hours(1));
  EXPECT_EQ(state.Names(".x"), (std::vector<std::string>{"2.x", "1.x"}));
  state.Remove("2.x");
  state.Rename("1.x", "4.y");
  EXPECT_EQ(state.Names(".x"), std::vector<std::string>());
  EXPECT_EQ(Content("state/4.y"), "old");
}

TEST_F(States, ThatCannotBeMadeHoldNothing) {
  Put("file", "");
  const StateFolder none{std::filesystem::path(In("file/state"))};
  EXPECT_FALSE(none.Make());
  EXPECT_EQ(none.Claim("a").Held, nullptr);
  EXPECT_FALSE(none.Claim("a").ByAnother);
  EXPECT_EQ(none.Names(".x"), std::vector<std::string>());
}

}  // namespace
}  // namespace trelonit::test
