// Runs many command lines of the console program one after another in one process, for
// scripts/compare-builds: starting a process takes longer than a calculation, and in wine a hundred
// times longer.
//
// Each line of the list has, parted by tabs, a folder to work in, a name and the arguments. What
// the command says goes to NAME.out and NAME.err in that folder, its exit status to NAME.status.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "apps/cli/CommandLine.h"
#include "platform/system/Process.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream stream(line);
  for (std::string field; std::getline(stream, field, '\t');) {
    fields.push_back(field);
  }
  return fields;
}

/// Lets a stream write into a file for a while.
class Diverted {
 public:
  Diverted(std::ostream& stream, const std::string& file)
      : file_(file, std::ios::binary), stream_(stream), before_(stream.rdbuf(file_.rdbuf())) {}
  Diverted(const Diverted&) = delete;
  Diverted& operator=(const Diverted&) = delete;
  ~Diverted() {
    stream_.rdbuf(before_);
    stream_.clear();
  }

 private:
  std::ofstream file_;
  std::ostream& stream_;
  std::streambuf* before_;
};

int Run(const std::vector<std::string>& fields) {
  const std::string& name = fields.at(1);
  std::vector<const char*> arguments{"trelonit-cli"};
  for (std::size_t place = 2; place < fields.size(); ++place) {
    arguments.push_back(fields[place].c_str());
  }
  const Diverted out(std::cout, name + ".out");
  const Diverted err(std::cerr, name + ".err");
  return static_cast<int>(
      trelonit::cli::RunCommandLine(static_cast<int>(arguments.size()), arguments.data(), {}));
}

int RunAll(const std::string& list) {
  std::ifstream lines(fs::absolute(list), std::ios::binary);
  const fs::path start = fs::current_path();
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string> fields = Fields(line);
    fs::current_path(start / fields.at(0));
    const int status = Run(fields);
    std::ofstream(fields.at(1) + ".status") << status;
  }
  return lines.eof() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  return trelonit::RunConsoleProgram(argc, argv, [](int count, char** arguments) {
    if (count != 2) {
      std::cerr << "usage: trelonit_many LIST\n";
      return 2;
    }
    return RunAll(arguments[1]);
  });
}
