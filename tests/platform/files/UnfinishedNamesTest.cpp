#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/UnfinishedNames.h"

namespace trelonit::test {

namespace {

TEST(UnfinishedNames, TellTheirProcess) {
  const std::filesystem::path name = NameForUnfinished("folder/roof.tsav", 4321);
  EXPECT_EQ(name.parent_path(), "folder");
  EXPECT_EQ(ProcessOfUnfinished(name.filename().string()), 4321);
}

TEST(UnfinishedNames, AreNewEachTime) {
  EXPECT_NE(NameForUnfinished("roof.tsav", 1), NameForUnfinished("roof.tsav", 1));
}

TEST(UnfinishedNames, EndWhereTheyAreSaidToEnd) {
  constexpr std::string_view name = ".trelonit-new-123-4-5";
  const std::size_t known = name.find("-4");
  for (std::size_t size = 0; size <= known; ++size) {
    EXPECT_EQ(ProcessOfUnfinished(name.substr(0, size)), std::nullopt) << size;
  }
  EXPECT_EQ(ProcessOfUnfinished(name.substr(0, known + 1)), 123);
}

TEST(UnfinishedNames, AreNotThoseOfTheUser) {
  for (const char* name :
       {"", "roof.tsav", ".trelonit-new", ".trelonit-new-", ".trelonit-new-12",
        ".trelonit-new-draft", ".trelonit-new-12a-3", ".trelonit-new--3-4", ".trelonit-new-0-1-2",
        ".trelonit-new-99999999999-1-2", "x.trelonit-new-12-3-4", ".TRELONIT-NEW-12-3-4"}) {
    EXPECT_EQ(ProcessOfUnfinished(name), std::nullopt) << name;
  }
}

}  // namespace

}  // namespace trelonit::test
