#include <gtest/gtest.h>
#include <set>

#include "platform/text/Text.h"
#include "resources/EmbeddedResources.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

/// The numbers up to 1000 for which the body raises nothing; every other one must raise 326.
template <class Body>
std::set<int> Present(const Body& body) {
  std::set<int> present;
  for (int number = -1000; number <= 1000; ++number) {
    const auto error = test::ErrorOf([&] { body(static_cast<Integer>(number)); });
    if (!error) {
      present.insert(number);
    } else {
      EXPECT_EQ(error, 326) << number;
    }
  }
  return present;
}

TEST(EmbeddedResources, HoldTheCatalogueBlocks) {
  EmbeddedResources resources;
  EXPECT_EQ(resources.CustomBlock(102).size(), 477548U);
  EXPECT_EQ(resources.CustomBlock(103).size(), 1276U);
}

TEST(EmbeddedResources, HoldThePicturesThatTheFormsShow) {
  EmbeddedResources resources;
  EXPECT_EQ(Present([&](Integer number) { resources.Bitmap(number); }),
            (std::set<int>{101, 102, 103, 104, 105, 205, 206, 207, 208, 309, 310}));
  EXPECT_EQ(Present([&](Integer number) { resources.Icon(number); }), (std::set<int>{102, 103}));
  EXPECT_EQ(resources.Bitmap(309), (Picture{Picture::Source::Bitmap, 309}));
  EXPECT_EQ(resources.Icon(103), (Picture{Picture::Source::Icon, 103}));
}

TEST(EmbeddedResources, TellInOneSentenceWhatTheProgramDoes) {
  EmbeddedResources resources;
  EXPECT_EQ(Present([&](Integer number) { resources.String(number); }), std::set<int>{101});
  const std::string about = resources.String(101);
  EXPECT_EQ(about.find('.'), about.size() - 1);
  // It runs through a caption of 60 characters.
  EXPECT_GT(Characters(about).size(), 60U);
}

TEST(EmbeddedResources, NameTheMissingResource) {
  EmbeddedResources resources;
  try {
    resources.CustomBlock(104);
    FAIL() << "block 104 was found";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 326);
    EXPECT_EQ(error.Description(), "Resource with identifier '104' not found");
  }
}

}  // namespace
}  // namespace trelonit
