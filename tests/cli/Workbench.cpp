#ifndef _WIN32

#include "tests/cli/Workbench.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdlib.h>
#include <system_error>
#include <utility>

namespace trelonit::test {

namespace {

constexpr auto everyone = fs::perms(0777);

fs::path NewFolder() {
  std::string name = (fs::temp_directory_path() / "trelonit-cli-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), name);
  }
  fs::permissions(name, fs::perms(0755));
  return name;
}

}  // namespace

std::string FileBytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string ExampleBytes(int scheme) {
  return FileBytes(fs::path(EXAMPLES_FOLDER) /
                   exampleNames.at(static_cast<std::size_t>(scheme - 1)));
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  std::istringstream stream{std::string(text)};
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> Words(std::string_view text) {
  std::istringstream stream{std::string(text)};
  return {std::istream_iterator<std::string>(stream), {}};
}

std::string WithLine(const std::string& project, int line, const std::string& value) {
  std::vector<std::string> lines = Lines(project);
  lines.at(static_cast<std::size_t>(line - 1)) = '"' + value + "\"\r";
  std::string changed;
  for (const std::string& each : lines) {
    changed += each + '\n';
  }
  return changed;
}

std::string ErrorLine(const std::string& title, int number, const std::string& description) {
  return title + ":  Err # " + std::to_string(number) + " Discription : " + description + '\n';
}

void PlaceProgram(const fs::path& program, const fs::path& folder) {
  const fs::path place = folder / program.filename();
  std::error_code code;
  fs::create_hard_link(program, place, code);
  if (code) {
    fs::copy_file(program, place);
  }
}

CliTest::CliTest() : root_(NewFolder()) {
  for (const fs::path& folder : {ProgramFolder(), WorkFolder(), DataFolder()}) {
    fs::create_directory(folder);
  }
  fs::permissions(DataFolder(), everyone);
  PlaceProgram(TRELONIT_CLI, ProgramFolder());
}

CliTest::~CliTest() {
  std::error_code ignored;
  for (const fs::path& folder : {ProgramFolder(), WorkFolder(), DataFolder()}) {
    fs::permissions(folder, everyone, ignored);
  }
  fs::remove_all(root_, ignored);
}

Launch CliTest::Command(std::vector<std::string> arguments) const {
  Launch launch;
  launch.Arguments = std::move(arguments);
  launch.Arguments.insert(launch.Arguments.begin(),
                          (ProgramFolder() / fs::path(TRELONIT_CLI).filename()).string());
  launch.Folder = WorkFolder();
  launch.Environment = {
      {"HOME", root_.string()}, {"XDG_DATA_HOME", DataFolder().string()}, {"LC_ALL", "C"}};
  return launch;
}

Outcome CliTest::Run(std::vector<std::string> arguments) const {
  return RunProgram(Command(std::move(arguments)));
}

void CliTest::Put(const std::string& name, std::string_view bytes) const {
  std::ofstream stream(WorkFolder() / name, std::ios::binary);
  stream << bytes;
  ASSERT_TRUE(stream.flush()) << name;
}

std::set<std::string> CliTest::Names(const fs::path& folder) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

}  // namespace trelonit::test

#endif
