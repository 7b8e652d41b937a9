#include <gtest/gtest.h>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/files/FileErrors.h"
#include "tests/platform/files/FileFolder.h"

namespace trelonit::test {

namespace {

TEST(FileError, HasTheNumberThatTheSystemsReasonMeans) {
  const std::vector<std::pair<std::errc, int>> meanings{
      {std::errc::no_such_file_or_directory, 53},
      {std::errc::permission_denied, 70},
      {std::errc::operation_not_permitted, 70},
      {std::errc::read_only_file_system, 70},
      {std::errc::no_space_on_device, 61},
      {std::errc::file_too_large, 61},
      {std::errc::not_a_directory, 76},
      {std::errc::is_a_directory, 75},
      {std::errc::too_many_symbolic_link_levels, 75},
      {std::errc::filename_too_long, 52},
      {std::errc::invalid_argument, 52},
      {std::errc::io_error, 57},
      {std::errc::too_many_files_open, 57}};
  for (const auto& [reason, number] : meanings) {
    EXPECT_EQ(FileError(std::make_error_code(reason)).Number(), number)
        << std::make_error_code(reason).message();
  }
}

class MissingFile : public FileFolder {};

TEST_F(MissingFile, IsToldFromAMissingFolder) {
  EXPECT_EQ(MissingFileError(In("file")).Number(), 53);
  EXPECT_EQ(MissingFileError(In("folder/file")).Number(), 76);
  // In the working folder, which is there.
  EXPECT_EQ(MissingFileError("file").Number(), 53);
}

}  // namespace

}  // namespace trelonit::test
