#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/console/ConsoleServices.h"
#include "platform/files/Files.h"
#include "windows/office/OfficeAutomation.h"

namespace trelonit::test {

/// A clipboard, a disk and "Word.Application", with a folder for the test's files and one for the
/// conversions. Both are gone with the desk.
class WordDesk {
 public:
  WordDesk();
  WordDesk(const WordDesk&) = delete;
  WordDesk& operator=(const WordDesk&) = delete;
  ~WordDesk();

  /// Puts a shell script in the place of LibreOffice. It finds the folder of the results in $out,
  /// the document in $document and the test's folder in $desk.
  void UseScript(const std::string& script);

  AutomationHandle Application() { return Automation().Create("Word.Application"); }
  OfficeAutomation Automation() { return {Clipboard, *Files, Settings}; }

  /// The steps of the editor's two conversions.
  void Open(const std::string& path);
  void Save(const std::string& path);

  std::string Path(const std::string& name) const;
  void Put(const std::string& name, const std::string& bytes) const;
  std::string Content(const std::string& name) const;
  bool Has(const std::string& name) const;
  /// No conversion has left anything behind.
  bool IsClean() const { return std::filesystem::is_empty(conversions_); }

  MemoryClipboard Clipboard;
  DiskFiles Disk;
  FileService* Files = &Disk;
  ConversionSettings Settings;

 private:
  std::filesystem::path root_;
  std::filesystem::path folder_;
  std::filesystem::path conversions_;
};

AutomationHandle GetObject(const AutomationHandle& object, const std::string& member);

/// The number of the run-time error that it raises; 0 without one.
int ErrorOf(const std::function<void()>& act);

/// Latin letters as a Word document keeps them.
std::string InUtf16(const std::string& letters);

/// Bytes that begin as a Word document does and have the name of its stream.
std::string LikeWordDocument();

}  // namespace trelonit::test
