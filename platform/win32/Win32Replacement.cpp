#include "platform/win32/Win32Replacement.h"

#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "platform/files/DiskAccess.h"
#include "platform/files/InPlace.h"
#include "platform/files/UnfinishedNames.h"
#include "platform/system/ProgramFolder.h"
#include "platform/win32/FileHandle.h"
#include "platform/win32/Utf16.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

/// Who may do what with a file that is there, for the file that is to take its place.
class Rights {
 public:
  explicit Rights(const fs::path& path) {
    DWORD length = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &length);
    descriptor_.resize(length);
    if (length == 0 || !GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION,
                                         descriptor_.data(), length, &length)) {
      // A file system without rights has none to keep.
      descriptor_.clear();
    }
    attributes_.nLength = sizeof attributes_;
    attributes_.lpSecurityDescriptor = descriptor_.data();
  }
  Rights(const Rights&) = delete;
  Rights& operator=(const Rights&) = delete;
  ~Rights() = default;

  /// For the making of the new file: nobody reads it meanwhile who may not read the old one.
  SECURITY_ATTRIBUTES* ForNewFile() { return descriptor_.empty() ? nullptr : &attributes_; }
  /// Once more for the file that is there: what the system has left out of them when it made it. A
  /// file system that refuses has none; the content matters more.
  void GiveTo(const FileHandle& file) {
    if (!descriptor_.empty()) {
      SetKernelObjectSecurity(file.Get(), DACL_SECURITY_INFORMATION, descriptor_.data());
    }
  }

 private:
  std::vector<unsigned char> descriptor_;
  SECURITY_ATTRIBUTES attributes_{};
};

/// Ctrl+C and the end of a session wait while one of these lives: what is being written has no
/// other place to be whole in.
class HeldInterruption {
 public:
  HeldInterruption() : writing_(Writing()) { SetConsoleCtrlHandler(WaitForWriting, TRUE); }
  HeldInterruption(const HeldInterruption&) = delete;
  HeldInterruption& operator=(const HeldInterruption&) = delete;
  ~HeldInterruption() { SetConsoleCtrlHandler(WaitForWriting, FALSE); }

 private:
  /// The system calls its handlers in a thread of their own, with nothing handed to them.
  static std::mutex& Writing() {
    static std::mutex writing;
    return writing;
  }
  static BOOL WINAPI WaitForWriting(DWORD /*event*/) {
    const std::lock_guard untilItIsWhole(Writing());
    return FALSE;
  }

  std::lock_guard<std::mutex> writing_;
};

bool IsGone(int process) {
  const HANDLE handle =
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(process));
  if (handle == nullptr) {
    return GetLastError() == ERROR_INVALID_PARAMETER;
  }
  DWORD status = 0;
  const bool ended = GetExitCodeProcess(handle, &status) && status != STILL_ACTIVE;
  CloseHandle(handle);
  return ended;
}

/// A process of another machine is not among ours: it shares its file with nobody.
bool IsLetGo(const fs::path& path) {
  return FileHandle(path, GENERIC_READ, 0, OPEN_EXISTING).IsOpen();
}

/// The new file beside the target. Whatever ends the program before it is whole takes it along.
class FileBeside {
 public:
  FileBeside(const fs::path& target, Rights* rights)
      : name_(NameForUnfinished(target, static_cast<int>(GetCurrentProcessId()))) {
    file_.emplace(name_, GENERIC_WRITE | DELETE | WRITE_DAC, 0, CREATE_NEW,
                  rights != nullptr ? rights->ForNewFile() : nullptr);
    if (!file_->IsOpen()) {
      error_ = GetLastError();
      return;
    }
    file_->SetGoesWithItsHandle(true);
    if (rights != nullptr) {
      rights->GiveTo(*file_);
    }
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;
  ~FileBeside() {
    if (stays_) {
      DeleteFileW(name_.c_str());
    }
  }

  /// False where the folder lets no file be made; raises what else kept it from that.
  bool IsOpen() const {
    if (!file_->IsOpen() && error_ != ERROR_ACCESS_DENIED) {
      SetLastError(error_);
      throw LastFileIsMissing() ? RuntimeError(ErrorNumber::PathNotFound) : FromLastFileError();
    }
    return file_->IsOpen();
  }
  FileHandle& File() { return *file_; }

  /// False where the target stands in the way; then the system's last error is set.
  bool TakePlaceOf(const fs::path& target) {
    file_->Flush();
    file_->SetGoesWithItsHandle(false);
    stays_ = true;
    file_.reset();
    stays_ = !MoveFileExW(name_.c_str(), target.c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    return !stays_;
  }

 private:
  fs::path name_;
  std::optional<FileHandle> file_;
  DWORD error_ = ERROR_SUCCESS;
  bool stays_ = false;
};

/// Where a copy outlives the machine's next start, otherwise where there is always room.
fs::path FolderForCopies() {
  fs::path own = UserDataFolder();
  return IsWritableFolder(own) ? own : fs::temp_directory_path();
}

void WriteWhereItStands(const fs::path& target, std::string_view bytes) {
  FileHandle file(target, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
  if (!file.IsOpen()) {
    throw FromLastFileError();
  }
  const std::string old = file.ReadAll();
  const auto write = [&file](std::string_view content) {
    file.WriteAt(0, content);
    file.EndAt(content.size());
    file.Flush();
  };
  WriteWithCopyKept(old, old, bytes, write);
}

bool HasOtherNames(const fs::path& path) {
  const FileHandle file(path, FILE_READ_ATTRIBUTES,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
  BY_HANDLE_FILE_INFORMATION information{};
  return file.IsOpen() && GetFileInformationByHandle(file.Get(), &information) &&
         information.nNumberOfLinks > 1;
}

/// In full, with its folder cleared of what others have left.
fs::path PlaceToWrite(const fs::path& target) {
  std::error_code code;
  fs::path whole = fs::absolute(target, code);
  RemoveUnfinished(whole.parent_path(), [](int process, const fs::path& file) {
    return IsGone(process) && IsLetGo(file);
  });
  return whole;
}

class GrowingReplacement : public GrowingFile {
 public:
  explicit GrowingReplacement(const fs::path& target) : target_(PlaceToWrite(target)) {
    std::error_code code;
    if (fs::exists(target_, code)) {
      rights_.emplace(target_);
    }
    beside_.emplace(target_, rights_ ? &*rights_ : nullptr);
    if (!beside_->IsOpen()) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
  }
  void Append(std::string_view bytes) override {
    beside_->File().WriteAt(length_, bytes);
    length_ += bytes.size();
  }
  void Finish() override {
    if (!beside_->TakePlaceOf(target_)) {
      throw FromLastFileError();
    }
  }

 private:
  fs::path target_;
  std::optional<Rights> rights_;
  std::optional<FileBeside> beside_;
  std::uint64_t length_ = 0;
};

}  // namespace

void WriteWithCopyKept(std::string_view whole, std::string_view before, std::string_view bytes,
                       const std::function<void(std::string_view)>& write) {
  std::random_device random;
  const fs::path copyName = FolderForCopies() / ("trelonit-copy-" + std::to_string(random()));
  FileHandle copy(copyName, GENERIC_WRITE | DELETE, 0, CREATE_NEW);
  if (!copy.IsOpen()) {
    throw FromLastFileError();
  }
  copy.SetGoesWithItsHandle(true);
  copy.WriteAt(0, whole);
  copy.Flush();
  copy.SetGoesWithItsHandle(false);
  {
    const HeldInterruption untilItIsWhole;
    bool kept = false;
    const auto keepCopy = [&] {
      kept = true;
      return FromWide(copyName.native());
    };
    try {
      WriteInPlace(write, before, bytes, keepCopy);
    } catch (...) {
      if (!kept) {
        copy.SetGoesWithItsHandle(true);
      }
      throw;
    }
  }
  copy.SetGoesWithItsHandle(true);
}

void ReplaceOnDisk(const fs::path& target, std::string_view bytes) {
  const fs::path whole = PlaceToWrite(target);
  std::error_code code;
  std::optional<Rights> rights;
  if (fs::exists(whole, code)) {
    rights.emplace(whole);
    if (HasOtherNames(whole)) {
      WriteWhereItStands(whole, bytes);
      return;
    }
  }
  FileBeside beside(whole, rights ? &*rights : nullptr);
  DWORD error = ERROR_ACCESS_DENIED;
  if (beside.IsOpen()) {
    beside.File().WriteAt(0, bytes);
    if (beside.TakePlaceOf(whole)) {
      return;
    }
    error = GetLastError();
  }
  // The folder lets nothing be made or removed, or another program holds the file.
  if (rights && error == ERROR_ACCESS_DENIED) {
    WriteWhereItStands(whole, bytes);
    return;
  }
  SetLastError(error);
  throw FromLastFileError();
}

std::unique_ptr<GrowingFile> BeginOnDisk(const fs::path& target) {
  return std::make_unique<GrowingReplacement>(target);
}

}  // namespace trelonit
