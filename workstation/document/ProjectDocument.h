#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/StateFolder.h"
#include "platform/system/Services.h"
#include "workstation/document/RecentFiles.h"
#include "workstation/document/RecoveryCopy.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

/// The project of the main form as a document: its file, whether it is saved, who else has it open,
/// and the copy that outlives a crash. Saving and restoring stay the form's own.
///
/// In the state folder: "N.recovery" is the copy of a program that holds "N.running"; a project is
/// open for writing in the program that holds the claim with its path's sum.
class ProjectDocument {
 public:
  /// The form has been loaded: its design is the untouched start. It outlives the document.
  ProjectDocument(frmMain& form, Services services, StateFolder state);
  ProjectDocument(const ProjectDocument&) = delete;
  ProjectDocument& operator=(const ProjectDocument&) = delete;
  /// An orderly end leaves no recovery copy.
  ~ProjectDocument();

  /// Empty for a project without a file.
  const std::string& File() const { return file_; }
  bool IsModified() const { return modified_; }
  /// Another program has the project open, so that its file is not for this one to write.
  bool IsReadOnly() const { return readOnly_; }
  /// "Ферма 30.tsav", with what there is to say of it.
  std::string Caption() const;
  std::vector<std::string> RecentNames() const { return recent_.Names(); }
  /// Called when any of these may have changed.
  std::function<void()> Changed;

  /// After the design may have changed.
  void Note();

  // Commands. Each returns whether it was carried out.

  /// To the project's own file, without a question; where it has none, or it is read-only, the name
  /// is asked for.
  bool mnuSave_Click();
  bool mnuSaveAs_Click();
  /// A project that is dropped on the window or was open lately.
  bool Open(const std::string& name);

  /// Writes the recovery copy if there is something to lose that it does not hold yet, and takes it
  /// away where there is nothing to lose. A copy that cannot be written is tried again next time.
  void KeepRecoveryCopy();
  /// Offers what a program that did not come to its end has left. True if the user has taken it.
  bool OfferRecovery();
  /// Whether the program may end or another design come: asks where something would be lost.
  bool MayLeave();

 private:
  bool MayWrite(const std::string& name);
  /// The file with this whole name is the project's from now on.
  void TakeFile(const std::string& whole);
  void TellIfReadOnly();
  void WhenOpened(const std::string& name);
  void WhenSaved(const std::string& name);
  ClaimAttempt ClaimFile(const std::string& name) const;
  /// A number for this program's recovery copies; false where there is none to be had.
  bool TakeNumber();
  std::optional<RecoveryCopy> ReadCopy(const std::string& name);
  void TakeCopy(const RecoveryCopy& copy);
  void ForgetCopy();
  void Tell(const std::string& text);

  frmMain& form_;
  Services services_;
  StateFolder state_;
  RecentFiles recent_;
  std::string file_;
  // Nothing where no file has the design: it comes from a recovery copy.
  std::optional<DesignState> saved_;
  bool modified_ = false;
  bool readOnly_ = false;
  std::unique_ptr<Claim> claim_;
  // Of the file that is about to be written.
  std::unique_ptr<Claim> nextClaim_;
  std::unique_ptr<Claim> running_;
  // Of this program's recovery copy, without its ending.
  std::string number_;
  std::optional<DesignState> copied_;
};

}  // namespace trelonit
