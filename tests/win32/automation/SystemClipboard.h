#pragma once

#include <string>

#include "platform/system/Services.h"

namespace trelonit::test {

/// The machine's clipboard, which all of its programs share. Raises 57 where another program keeps
/// it open or it takes nothing.
class SystemClipboard : public ClipboardService {
 public:
  bool HasText() override { return !Text().empty(); }
  std::string Text() override;
  void SetText(const std::string& text) override;
  std::string RichText() override;
  void SetRichText(const std::string& rtf, const std::string& plain) override;
};

}  // namespace trelonit::test
