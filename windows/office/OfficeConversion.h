#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// Looks on while a conversion runs, and may stop it.
class ConversionWatch {
 public:
  virtual ~ConversionWatch() = default;
  /// Asked some twenty times a second, in the thread that converts; true stops the conversion.
  virtual bool Cancelled() = 0;
};

/// The error of a conversion that its watch stopped: 57, as other failures of the converter.
class ConversionCancelled : public RuntimeError {
 public:
  ConversionCancelled() : RuntimeError(ErrorNumber::DeviceIoError) {}
};

struct ConversionSettings {
  /// LibreOffice's program, absolute.
  std::string Program;
  /// Where a conversion makes its own folder; empty: the system's place for such folders.
  std::string TemporaryFolder;
  /// The converter and all that it started are killed after this time.
  std::chrono::milliseconds TimeLimit = std::chrono::seconds(60);
  /// Makes a conversion's watch; may be empty or give none.
  std::function<std::unique_ptr<ConversionWatch>()> Watch;
};

enum class OfficeFormat { RichText, Word };

/// Lets LibreOffice write a document's bytes in another format. Every conversion has its folder and
/// its user profile of its own, so that several run side by side and the user's is never touched;
/// nothing of it stays behind. Macros do not run, links are not followed. Raises 57 where the
/// converter fails, exceeds its time or gives no result, ConversionCancelled where the watch stops
/// it, and as the file system does where there is no place for its folder.
std::string ConvertDocument(const ConversionSettings& settings, std::string_view bytes,
                            OfficeFormat from, OfficeFormat to);

}  // namespace trelonit
