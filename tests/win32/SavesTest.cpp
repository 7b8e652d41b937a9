// What stands on the disk of a Windows machine after saves that go as they should, and others.

#include <aclapi.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <sddl.h>
#include <set>
#include <string>

#include "platform/files/Files.h"
#include "platform/win32/Environment.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

namespace {

namespace fs = std::filesystem;

/// Set for the process that a test ends in the middle of its save.
constexpr const wchar_t* savedBy = L"TRELONIT_TEST_SAVE";

class SaveOnWindows : public testing::Test {
 protected:
  SaveOnWindows() { fs::create_directories(folder); }
  ~SaveOnWindows() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

  void Put(const std::string& name, const std::string& content) {
    std::ofstream(folder / name, std::ios::binary) << content;
  }
  std::string Content(const std::string& name) {
    std::ifstream stream(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
      names.insert(FromWide(entry.path().filename().native()));
    }
    return names;
  }
  void Save(const std::string& name, const std::string& content) {
    files.ReplaceFile(FromWide((folder / name).native()), content);
  }

  const fs::path folder = fs::temp_directory_path() / L"Сохранение trelonit";
  DiskFiles files;
};

/// A process of this program with these arguments, ended with this object.
class Process {
 public:
  explicit Process(const std::wstring& arguments) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    std::wstring line = L'"' + path + L"\" " + arguments;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    started_ = CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              nullptr, &start, &information_) != FALSE;
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process() {
    if (started_) {
      End();
      CloseHandle(information_.hThread);
      CloseHandle(information_.hProcess);
    }
  }
  DWORD Number() const { return information_.dwProcessId; }
  bool Runs() const { return WaitForSingleObject(information_.hProcess, 0) == WAIT_TIMEOUT; }
  void End() {
    TerminateProcess(information_.hProcess, 1);
    WaitForSingleObject(information_.hProcess, INFINITE);
  }

 private:
  PROCESS_INFORMATION information_{};
  bool started_ = false;
};

std::string RightsOf(const fs::path& path) {
  std::wstring name = path.native();
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                            nullptr, &list, nullptr, &descriptor) != ERROR_SUCCESS) {
    return "none";
  }
  wchar_t* text = nullptr;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                       DACL_SECURITY_INFORMATION, &text, nullptr);
  std::string told = text == nullptr ? "none" : FromWide(text);
  LocalFree(text);
  LocalFree(descriptor);
  return told;
}

TEST_F(SaveOnWindows, KeepsHardLinks) {
  Put("file", "old, and longer");
  ASSERT_TRUE(CreateHardLinkW((folder / "link").c_str(), (folder / "file").c_str(), nullptr));
  Save("file", "new");
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(Content("link"), "new");
  EXPECT_EQ(Names(), (std::set<std::string>{"file", "link"}));
}

TEST_F(SaveOnWindows, KeepsWhoMayDoWhat) {
  Put("file", "old");
  const fs::path path = folder / "file";
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
      L"D:P(A;;FA;;;BA)(A;;FA;;;WD)", SDDL_REVISION_1, &descriptor, nullptr));
  SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor);
  LocalFree(descriptor);
  const std::string before = RightsOf(path);
  Put("another", "");
  ASSERT_NE(before, RightsOf(folder / "another"));
  fs::remove(folder / "another");
  Save("file", "new");
  EXPECT_EQ(Content("file"), "new");
  EXPECT_EQ(RightsOf(path), before);
  EXPECT_EQ(Names(), (std::set<std::string>{"file"}));
}

TEST_F(SaveOnWindows, RemovesWhatAProcessThatIsGoneHasLeft) {
  const DWORD gone = [] {
    Process process(L"--gtest_list_tests");
    process.End();
    return process.Number();
  }();
  const std::string mine = ".trelonit-new-" + std::to_string(GetCurrentProcessId()) + "-1-2";
  const std::string users = ".trelonit-new-draft";
  Put(".trelonit-new-" + std::to_string(gone) + "-1-2", "half");
  Put(mine, "half");
  Put(users, "whole");
  Save("file", "new");
  EXPECT_EQ(Names(), (std::set<std::string>{mine, users, "file"}));
}

// The process that the next test ends.
TEST_F(SaveOnWindows, OfALargeFile) {
  const std::optional<std::wstring> name = EnvironmentVariable(savedBy);
  if (!name) {
    GTEST_SKIP() << "only for the test after this one";
  }
  const std::string large(400 << 20, 'x');
  files.ReplaceFile(FromWide(*name), large);
}

TEST_F(SaveOnWindows, ThatIsEndedFromOutsideLeavesTheOldFileAndNothingElse) {
  Put("file", "old");
  SetEnvironmentVariableW(savedBy, (folder / "file").c_str());
  Process process(L"--gtest_filter=SaveOnWindows.OfALargeFile");
  SetEnvironmentVariableW(savedBy, nullptr);
  while (process.Runs() && Names().size() == 1) {
    Sleep(1);
  }
  const bool inTheMiddle = process.Runs() && Names().size() == 2;
  process.End();
  ASSERT_TRUE(inTheMiddle) << "it was too quick to be ended";
  EXPECT_EQ(Content("file"), "old");
  EXPECT_EQ(Names(), (std::set<std::string>{"file"}));
}

}  // namespace

}  // namespace trelonit::test
