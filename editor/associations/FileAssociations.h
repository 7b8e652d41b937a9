#pragma once

#include <string>

namespace trelonit {

/// Who opens plain text files.
enum class TextOwner { Other, Pad, System };

struct AssociationChoice {
  TextOwner Owner = TextOwner::Other;
  /// The pad is in the "Send to" menu.
  bool SendTo = false;
  /// The pad shows the source of web pages.
  bool SourceViewer = false;

  friend bool operator==(const AssociationChoice&, const AssociationChoice&) = default;
};

/// What ties files to the pad on this kind of machine. Members raise what the machine raises.
class FileAssociations {
 public:
  virtual ~FileAssociations() = default;
  virtual AssociationChoice Present() = 0;
  /// Carries the choice out in order; a failure ends it, and what was done before stays. An owner
  /// that is neither the pad nor the system leaves the text files as they are.
  virtual void Apply(const AssociationChoice& choice) = 0;
  /// The endings of the files that change their owner, as ".txt, .log".
  virtual std::string OwnedFiles() const = 0;
  /// Why the machine does not know the pad at all, in the user's language; empty where it does.
  virtual std::string WhyNot() { return {}; }
  /// Why the machine has no such choice, in the user's language; empty where it has.
  virtual std::string WhyNoSendTo() const { return {}; }
  virtual std::string WhyNoSourceViewer() const { return {}; }
};

}  // namespace trelonit
