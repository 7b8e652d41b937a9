#pragma once

#include <optional>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// The user's default programs on a freedesktop system, by the lists of the MIME applications
/// standard. The files are read anew at each question: other programs change them meanwhile, and
/// the desktop libraries' own memory of them lags behind.
class MimeDefaults : public MimeDefaultService {
 public:
  /// They outlive the object. The settings remember what the user had chosen before.
  MimeDefaults(FileService& files, SettingsService& settings)
      : files_(files), settings_(settings) {}
  bool HasProgram(const std::string& entry) override { return EntryExists(entry); }
  /// Where no list names a program that is there, one that offers to open the type; where none
  /// does, the same for the kinds of file of which this type is one, such as plain text.
  std::string DefaultProgram(const std::string& mimeType) override;
  /// In the user's list that counts at present: that of the running desktop where it names the
  /// type, else the one of all desktops. What stood there stays behind the entry, for the day when
  /// the program is removed.
  void SetDefaultProgram(const std::string& mimeType, const std::string& entry) override;
  void UndoDefaultProgram(const std::string& mimeType, const std::string& entry) override;

  /// Section of the settings; its keys are list and type.
  static constexpr const char* FormerChoices = "FormerDefaultPrograms";

 private:
  /// Empty where the file cannot be read: it has no say then.
  std::string Read(const std::string& path) const;
  bool EntryExists(const std::string& entry) const;
  /// Name of the user's list in which a choice for this type takes effect.
  std::string ListInForce(const std::string& mimeType) const;
  /// Raises what keeps from reading it: a list that was not read must not be replaced.
  std::string ReadUserList(const std::string& name) const;
  void WriteUserList(const std::string& name, const std::string& text);

  // A former choice is the line that stood in the list, or that there was none.
  using Former = std::optional<std::string>;
  void Remember(const std::string& name, const std::string& mimeType, const Former& line);
  /// Nothing where nothing is remembered.
  std::optional<Former> Recall(const std::string& name, const std::string& mimeType) const;
  void Forget(const std::string& name, const std::string& mimeType);

  FileService& files_;
  SettingsService& settings_;
};

}  // namespace trelonit
