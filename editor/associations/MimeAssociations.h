#pragma once

#include <string>

#include "editor/associations/FileAssociations.h"
#include "platform/system/Services.h"

namespace trelonit {

/// This program's desktop entry; packaging/ installs it under this name.
constexpr const char* desktopEntry = "ru.trelonit.Trelonit.desktop";

/// The shell integration of a desktop that keeps a default program for each MIME type: the pad
/// takes plain text, logs and the program's projects, or gives them back to what the user had
/// before. The "Send to" menu and the browser's source viewer have no counterpart there.
class MimeAssociations : public FileAssociations {
 public:
  /// The service outlives it.
  explicit MimeAssociations(MimeDefaultService& defaults) : defaults_(defaults) {}
  /// By the type of plain text alone; a desktop without any program for it belongs to the system.
  AssociationChoice Present() override;
  void Apply(const AssociationChoice& choice) override;
  std::string OwnedFiles() const override { return ".txt, .log, .tsav"; }
  std::string WhyNot() override;
  std::string WhyNoSendTo() const override;
  std::string WhyNoSourceViewer() const override;

 private:
  MimeDefaultService& defaults_;
};

}  // namespace trelonit
