#pragma once

#include <string>
#include <utility>

#include "platform/system/Services.h"
#include "windows/office/OfficeConversion.h"

namespace trelonit {

/// "Word.Application" on a machine without Word: LibreOffice behind the same member names. Holds
/// references only; clipboard and files outlive every object that it gave.
///
/// The application has Documents (Open, Add), ActiveDocument and Quit; a document has Content
/// (Copy, Paste) and SaveAs; all other members raise 438. An application that nobody holds any more
/// has quit. Errors: 91 where there is no document or the application has quit, 13 for arguments of
/// another kind, 57 for what is no Word document and for each failure of the converter, and those
/// of the file service. A failed SaveAs leaves the old file whole.
class OfficeAutomation : public AutomationService {
 public:
  /// An empty program in the settings is searched for when an object is created.
  OfficeAutomation(ClipboardService& clipboard, FileService& files,
                   ConversionSettings settings = {})
      : clipboard_(clipboard), files_(files), settings_(std::move(settings)) {}

  /// Raises 429 for every other name, and where the machine has no LibreOffice.
  AutomationHandle Create(const std::string& programIdentifier) override;

 private:
  ClipboardService& clipboard_;
  FileService& files_;
  ConversionSettings settings_;
};

}  // namespace trelonit
