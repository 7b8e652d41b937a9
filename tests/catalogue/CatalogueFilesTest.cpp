#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

namespace fs = std::filesystem;

constexpr const char* unreadable = "Ошибка считывания из ресурсов ";
constexpr const char* nothingRead = "Ошибка : cчитано 0 байтов файла данных ";
constexpr const char* notWritten = "Ошибка создания файла данных профиля ";

/// The one message: plain, without a title of its own.
void ExpectOnly(const test::RecordingMessages& messages, const char* text) {
  ASSERT_EQ(messages.Shown.size(), 1U);
  const Message expected{.Title = "", .Text = text, .Style = MessageStyle::Plain};
  EXPECT_EQ(messages.Shown.front(), expected);
}

TEST(CatalogueFiles, AppearAtTheFirstStart) {
  test::CatalogueWorld world;
  EXPECT_EQ(ProfileDataFile(world.Outside.Bundle()), world.DataPath);
  EXPECT_EQ(ProfileIndexFile(world.Outside.Bundle()), world.IndexPath);
  ASSERT_EQ(world.Outside.Files.Content.size(), 2U);
  // The block less one of its two zero bytes.
  EXPECT_EQ(world.Data(), world.Resources.CustomBlock(102).substr(0, 477547));
  EXPECT_EQ(world.Data().back(), '\0');
  EXPECT_EQ(world.Index(), world.Resources.CustomBlock(103));
  EXPECT_TRUE(world.Outside.Messages.Shown.empty());
}

TEST(CatalogueFiles, StayAsTheUserLeftThemAtLaterStarts) {
  test::CatalogueWorld world;
  world.Data() = "changed";
  world.Index() = "";
  EXPECT_EQ(ProfileDataFile(world.Outside.Bundle()), world.DataPath);
  EXPECT_EQ(ProfileIndexFile(world.Outside.Bundle()), world.IndexPath);
  EXPECT_EQ(world.Data(), "changed");
  EXPECT_EQ(world.Index(), "");
  EXPECT_EQ(world.Outside.Files.Writes, 0);
}

TEST(CatalogueFiles, AreFoundWithOrWithoutASeparatorAfterTheFolder) {
  test::CatalogueWorld world;
  world.Outside.ProgramFolder = "/program/";
  EXPECT_EQ(ProfileDataFile(world.Outside.Bundle()), world.DataPath);
  EXPECT_EQ(ProfileIndexFile(world.Outside.Bundle()), world.IndexPath);
  world.Outside.ProgramFolder = "C:\\";
  EXPECT_EQ(ProfileDataFile(world.Outside.Bundle()), "C:\\GOST profile.dat");
  EXPECT_EQ(ProfileIndexFile(world.Outside.Bundle()), "C:\\Index.ind");
}

TEST(CatalogueFiles, HaveNoPathWhenTheyCannotBeWritten) {
  test::CatalogueWorld world;
  world.Outside.Files.Refused[world.DataPath] = ErrorNumber::PermissionDenied;
  EXPECT_EQ(ProfileDataFile(world.Outside.Bundle()), "");
  ExpectOnly(world.Outside.Messages, notWritten);
  EXPECT_EQ(ProfileIndexFile(world.Outside.Bundle()), world.IndexPath);
}

TEST(CatalogueFiles, HaveNoPathWithoutTheirResource) {
  test::FakeResources resources;
  test::World world(resources);
  EXPECT_EQ(ProfileDataFile(world.Bundle()), "");
  ExpectOnly(world.Messages, unreadable);
  world.Messages.Shown.clear();
  EXPECT_EQ(ProfileIndexFile(world.Bundle()), "");
  ExpectOnly(world.Messages, unreadable);
  EXPECT_TRUE(world.Files.Content.empty());
}

TEST(ResourceToFile, CutsTheBlockToTheUpperSubscript) {
  test::FakeResources resources;
  resources.Blocks[7] = "0123456789";
  test::World world(resources);
  const auto written = [&](Long size) {
    EXPECT_TRUE(ResourceToFile(world.Bundle(), 7, "/f", size));
    return world.Files.Content["/f"];
  };
  // Size 4 keeps the subscripts 0 to 4.
  EXPECT_EQ(written(4), "01234");
  EXPECT_EQ(written(8), "012345678");
  EXPECT_EQ(written(9), "0123456789");
  EXPECT_EQ(written(10), "0123456789");
  EXPECT_EQ(written(2147483647), "0123456789");
  EXPECT_EQ(written(1), "01");
  EXPECT_TRUE(world.Messages.Shown.empty());
}

TEST(ResourceToFile, TellsWhenNothingIsLeftToWrite) {
  test::FakeResources resources;
  resources.Blocks[1] = "";
  resources.Blocks[2] = "x";
  resources.Blocks[3] = "xyz";
  test::World world(resources);
  const auto refused = [&](Integer identifier, Long size) {
    world.Messages.Shown.clear();
    EXPECT_FALSE(ResourceToFile(world.Bundle(), identifier, "/f", size));
    ExpectOnly(world.Messages, nothingRead);
  };
  refused(1, 100);
  // Intended: a single byte has the upper subscript 0 and counts as nothing.
  refused(2, 100);
  refused(3, 0);
  refused(3, -5);
  EXPECT_TRUE(world.Files.Content.empty());
}

TEST(ResourceToFile, TellsWhenTheFileCannotBeWritten) {
  test::FakeResources resources;
  resources.Blocks[1] = "xyz";
  test::World world(resources);
  EXPECT_FALSE(ResourceToFile(world.Bundle(), 1, "", 100));
  ExpectOnly(world.Messages, notWritten);
}

/// A folder of its own on the real disk, gone with the test.
class CatalogueOnDisk : public ::testing::Test {
 protected:
  CatalogueOnDisk()
      // A name that no test running at the same time has, with letters that are not ASCII.
      : folder_(fs::temp_directory_path() /
                fs::path(u8"каталог ").concat(std::to_string(std::random_device()()))) {
    fs::create_directories(folder_);
  }
  void TearDown() override {
    std::error_code code;
    fs::remove_all(folder_, code);
  }

  Services Bundle(const std::string& separator = "") {
    const std::u8string folder = folder_.u8string();
    return {world_.Outside.Messages,  world_.Outside.Dialogs,
            world_.Outside.Clipboard, world_.Outside.Settings,
            world_.Outside.Registry,  world_.Outside.Automation,
            world_.Outside.Shell,     world_.Outside.Clock,
            world_.Resources,         files_,
            world_.Outside.Locale,    std::string(folder.begin(), folder.end()) + separator};
  }
  fs::path Data() const { return folder_ / "GOST profile.dat"; }
  fs::path Index() const { return folder_ / "Index.ind"; }

  static std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  fs::path folder_;
  test::CatalogueWorld world_;
  DiskFiles files_;
};

TEST_F(CatalogueOnDisk, IsUnpackedAtTheFirstStartAndReadBack) {
  const ProfileTypeArray catalogue = LoadProfileTypes(Bundle("/"));
  EXPECT_EQ(fs::file_size(Data()), 477547U);
  EXPECT_EQ(fs::file_size(Index()), 1276U);
  EXPECT_EQ(Content(Data()), world_.Resources.CustomBlock(102).substr(0, 477547));
  EXPECT_EQ(Content(Index()), world_.Resources.CustomBlock(103));
  EXPECT_EQ(catalogue, test::CatalogueWorld().Load());
  // Nothing is left beside them.
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 2);
}

TEST_F(CatalogueOnDisk, IsNotTouchedAtTheSecondStart) {
  LoadProfileTypes(Bundle());
  fs::resize_file(Data(), 177000);
  const auto before = fs::last_write_time(Data());
  const auto indexBefore = fs::last_write_time(Index());
  const ProfileTypeArray catalogue = LoadProfileTypes(Bundle());
  EXPECT_EQ(fs::file_size(Data()), 177000U);
  EXPECT_EQ(fs::last_write_time(Data()), before);
  EXPECT_EQ(fs::last_write_time(Index()), indexBefore);
  EXPECT_EQ(catalogue[14].Rec[230].Type, catalogue[14].Name);
  EXPECT_EQ(catalogue[14].Rec[231], ProfileRec());
}

TEST_F(CatalogueOnDisk, TellsWhenAFolderStandsInThePlaceOfTheDataFile) {
  fs::create_directory(Data());
  EXPECT_EQ(test::ErrorOf([&] { LoadProfileTypes(Bundle()); }), 52);
  ExpectOnly(world_.Outside.Messages, notWritten);
  EXPECT_TRUE(fs::exists(Index()));
}

TEST_F(CatalogueOnDisk, TellsWhenItsFolderIsMissing) {
  fs::remove_all(folder_);
  EXPECT_EQ(ProfileIndexFile(Bundle()), "");
  ExpectOnly(world_.Outside.Messages, notWritten);
}

}  // namespace
}  // namespace trelonit
