#pragma once

#include <string>

namespace trelonit {

/// The rich half of the clipboard. The plain half is the ClipboardService of the same clipboard.
class RichClipboard {
 public:
  virtual ~RichClipboard() = default;
  /// The rich text; empty where the clipboard holds none.
  virtual std::string RichText() = 0;
  /// Replaces what the clipboard holds by one text in both forms.
  virtual void SetRichText(const std::string& rtf, const std::string& plain) = 0;
};

}  // namespace trelonit
