#pragma once

#include <string>

#include "editor/associations/FileAssociations.h"
#include "editor/associations/UsersRegistry.h"
#include "platform/system/Services.h"

namespace trelonit {

// The shell integration of a machine with a registry. Each routine raises what the services raise;
// what it changed before stays changed.

/// By the default value of ".txt", or else of ".TXT".
TextOwner ReadTextOwner(RegistryService& registry);

/// Plain text files, the editing commands of the system's scripts and settings, and the browser's
/// source viewer go to this program.
void GiveTextFilesToPad(RegistryService& registry, ShellService& shell);

/// The same files and commands go to the system's Notepad.
void GiveTextFilesToSystem(RegistryService& registry, ShellService& shell);

/// Path of the pad's shortcut in the "Send to" menu.
std::string SendToShortcut(ShellService& shell);
/// Raises 429 where no script host is at hand.
void CreateSendToShortcut(AutomationService& automation, ShellService& shell);
/// Does nothing where there is none.
void RemoveSendToShortcut(FileService& files, ShellService& shell);

bool HasSourceViewer(RegistryService& registry);
/// A viewer that is there stays, whichever program it is.
void AddSourceViewer(RegistryService& registry, ShellService& shell);
/// Does nothing where there is none.
void RemoveSourceViewer(RegistryService& registry);

/// All of this as one choice. A user without an administrator's rights gets it for himself alone,
/// and is told so.
class RegistryAssociations : public FileAssociations {
 public:
  /// The services outlive it.
  explicit RegistryAssociations(const Services& services)
      : services_(services), registry_(services.Registry) {}
  AssociationChoice Present() override;
  void Apply(const AssociationChoice& choice) override;
  std::string OwnedFiles() const override { return ".txt, .log"; }

 private:
  void ApplyInOrder(const AssociationChoice& choice);

  Services services_;
  UsersRegistry registry_;
};

}  // namespace trelonit
