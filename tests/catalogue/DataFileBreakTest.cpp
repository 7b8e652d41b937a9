#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>

#include "catalogue/DataFile.h"
#include "tests/catalogue/CatalogueWorld.h"
#include "tests/catalogue/DataManagerDesk.h"

namespace trelonit {
namespace {

const Message deviceError{.Title = "",
                          .Text = " Err # 57 Discription : Device I/O error",
                          .Style = MessageStyle::Critical};

/// Gives its bytes; what the disk cannot read behind them raises, as the standard streams do.
class BreakingStream : public std::istream {
 public:
  explicit BreakingStream(std::string bytes) : std::istream(nullptr), buffer_(std::move(bytes)) {
    rdbuf(&buffer_);
  }

 private:
  class Buffer : public std::streambuf {
   public:
    explicit Buffer(std::string bytes) : bytes_(std::move(bytes)) {
      setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
    }

   protected:
    int_type underflow() override { throw std::runtime_error("the disk does not answer"); }

   private:
    std::string bytes_;
  };
  Buffer buffer_;
};

/// Files that break off at this byte when they are opened for the first time, and never again: a
/// bad cable.
class ShakyFiles : public test::MemoryFiles {
 public:
  std::unique_ptr<std::istream> OpenForReading(const std::string& path) override {
    auto stream = MemoryFiles::OpenForReading(path);
    return path == Shaky && ++opened_ == 1
               ? std::make_unique<BreakingStream>(Content[path].substr(0, At))
               : std::move(stream);
  }
  std::string Shaky = "/data/shaky.dat";
  std::size_t At = 0;

 private:
  int opened_ = 0;
};

/// The error of reading these bytes from a stream that breaks off behind them.
int ErrorOfReading(std::istream& stream, std::uint64_t length) {
  try {
    ReadProfileRecords(stream, length);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(ReadProfileRecords, Raises57WhereTheReadingBreaksOff) {
  const std::string bytes = test::NumberedFile(3);
  for (const std::size_t place :
       {std::size_t{0}, std::size_t{1}, std::size_t{177}, std::size_t{200}, bytes.size() - 1}) {
    BreakingStream stream(bytes.substr(0, place));
    EXPECT_EQ(ErrorOfReading(stream, bytes.size()), 57) << place;
  }
}

TEST(ReadProfileRecords, Raises57WhereTheFileHasBecomeShorterThanItWas) {
  const std::string bytes = test::NumberedFile(3);
  std::istringstream shorter(bytes.substr(0, 2 * 177 + 100));
  EXPECT_EQ(ErrorOfReading(shorter, bytes.size()), 57);
}

TEST(ReadProfileRecords, TakesALastRecordThatIsCutAsTheLengthTells) {
  const std::string bytes = test::NumberedFile(3).substr(0, 2 * 177 + 100);
  std::istringstream cut(bytes);
  EXPECT_EQ(ErrorOfReading(cut, bytes.size()), 0);
  std::istringstream stray(bytes.substr(0, 2 * 177 + 1));
  EXPECT_EQ(ErrorOfReading(stray, 2 * 177 + 1), 0);
}

TEST(CatalogueLoading, Raises57WhereTheReadingOfEitherFileBreaksOff) {
  test::CatalogueWorld world;
  world.Load();
  const Services real = world.Outside.Bundle();
  for (const std::string& path : {world.DataPath, world.IndexPath}) {
    ShakyFiles files;
    files.Content = world.Outside.Files.Content;
    files.Shaky = path;
    files.At = 500;
    const Services services{real.Messages,  real.Dialogs,    real.Clipboard, real.Settings,
                            real.Registry,  real.Automation, real.Shell,     real.Clock,
                            real.Resources, files,           real.Locale,    real.ProgramFolder};
    EXPECT_EQ(test::ErrorOf([&] { LoadProfileTypes(services); }), 57) << path;
  }
}

TEST(DataManagerCheck, TouchesNoFileThatItCouldNotRead) {
  for (const std::size_t place : {std::size_t{0}, std::size_t{5 * 177 + 20}}) {
    ShakyFiles files;
    files.At = place;
    files.Content[files.Shaky] = test::NumberedFile(40);
    files.Content["/data/good.dat"] = test::NumberedFile(3);
    test::DataManagerDesk desk(files);
    desk.Load("/data/good.dat");
    desk.Check(files.Shaky);
    Message told = deviceError;
    told.Title = "CheckueDB_Click";
    EXPECT_EQ(desk.Messages.Shown, std::vector<Message>{told});
    EXPECT_TRUE(files.Content[files.Shaky] == test::NumberedFile(40));
    EXPECT_EQ(files.Content.count(files.Shaky + ".bak"), 0U);
    EXPECT_EQ(desk.Form.Records.UpperBound(), 3);
    EXPECT_EQ(desk.Counts(), "1/3");
  }
}

TEST(DataManagerLoad, KeepsWhatItHasWhereTheReadingBreaksOff) {
  ShakyFiles files;
  files.At = 5 * 177 + 20;
  files.Content[files.Shaky] = test::NumberedFile(40);
  files.Content["/data/good.dat"] = test::NumberedFile(3);
  test::DataManagerDesk desk(files);
  desk.Load("/data/good.dat");
  desk.Load(files.Shaky);
  Message told = deviceError;
  told.Title = "cmdLoadDB_Click";
  EXPECT_EQ(desk.Messages.Shown, std::vector<Message>{told});
  EXPECT_EQ(desk.Form.Records.UpperBound(), 3);
  EXPECT_EQ(desk.Form.DataPath, "/data/good.dat");
  EXPECT_EQ(desk.Counts(), "1/3");
}

}  // namespace
}  // namespace trelonit
