#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/files/InPlace.h"

namespace trelonit::test {

namespace {

/// A file that refuses so many writes at its beginning, after it has spoilt the content.
class RefusingFile {
 public:
  explicit RefusingFile(int refusals) : refusals_(refusals) {}

  /// What the writing of these bytes tells.
  std::string Told(std::string_view bytes) {
    try {
      WriteInPlace([this](std::string_view content) { Write(content); }, "old", bytes,
                   [this] {
                     ++Kept;
                     return std::string("/tmp/copy");
                   });
    } catch (const RuntimeError& error) {
      return std::to_string(error.Number()) + " " + error.Description();
    }
    return "written";
  }

  std::string Content = "old";
  int Kept = 0;

 private:
  void Write(std::string_view content) {
    Content = "spoilt";
    if (refusals_-- > 0) {
      throw RuntimeError(ErrorNumber::DiskFull);
    }
    Content = content;
  }
  int refusals_;
};

TEST(WriteInPlace, PutsTheNewContentThere) {
  RefusingFile file(0);
  EXPECT_EQ(file.Told("new"), "written");
  EXPECT_EQ(file.Content, "new");
  EXPECT_EQ(file.Kept, 0);
}

TEST(WriteInPlace, PutsTheOldContentBackOnAFailure) {
  RefusingFile file(1);
  EXPECT_EQ(file.Told("new"), "61 Disk full");
  EXPECT_EQ(file.Content, "old");
  EXPECT_EQ(file.Kept, 0);
}

TEST(WriteInPlace, TellsWhereTheOldContentIsThatCannotBePutBack) {
  RefusingFile file(2);
  EXPECT_EQ(file.Told("new"),
            "61 Disk full. Файл испорчен, прежнее содержимое сохранено в «/tmp/copy»");
  EXPECT_EQ(file.Kept, 1);
}

}  // namespace

}  // namespace trelonit::test
