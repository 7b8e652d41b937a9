#include "platform/win32/CommandLine.h"

#include <memory>

#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"
// After the system's header, on which it rests.
#include <shellapi.h>

namespace trelonit {

namespace {

constexpr std::wstring_view blanks = L" \t";

struct LocalMemory {
  void operator()(void* memory) const { LocalFree(memory); }
};

}  // namespace

std::wstring_view BehindProgramName(std::wstring_view line) {
  // In the first name a quote is always the end of what another one has begun: no file has one in
  // its name.
  bool quoted = false;
  std::size_t end = 0;
  while (end < line.size() && (quoted || blanks.find(line[end]) == std::wstring_view::npos)) {
    quoted = quoted != (line[end] == L'"');
    ++end;
  }
  line.remove_prefix(end);
  const std::size_t begin = line.find_first_not_of(blanks);
  if (begin == std::wstring_view::npos) {
    return {};
  }
  return line.substr(begin, line.find_last_not_of(blanks) - begin + 1);
}

std::string OwnCommandLine() {
  return FromWide(BehindProgramName(GetCommandLineW()));
}

std::vector<std::string> OwnArguments() {
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalMemory> wide(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 0; wide != nullptr && i < count; ++i) {
    arguments.push_back(FromWide(wide.get()[i]));
  }
  return arguments;
}

}  // namespace trelonit
