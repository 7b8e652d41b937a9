#pragma once

#include <functional>
#include <string>

#include "catalogue/ProfileRecord.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// The browser and editor of a catalogue data file, caption "Менеджер базы данных проката ". It
/// works on any file that the user picks; the catalogue in memory stays as it is, so that changes
/// reach designs at the next start.
class frmDataManager {
 public:
  static constexpr Long boxCount = 16;

  explicit frmDataManager(Services services, std::function<void()> endProgram);
  frmDataManager(const frmDataManager&) = delete;
  frmDataManager& operator=(const frmDataManager&) = delete;
  ~frmDataManager() = default;

  /// Nothing is loaded at the start, whatever was before.
  void Form_Load();
  void cmdLoadDB_Click();
  void cmdPrew_Click();
  void cmdForv_Click();
  void cmdPrew100_Click();
  void cmdForv100_Click();
  void cmdFirst_Click();
  void cmdLastpoz_Click();
  /// Writes the boxes as the current record, in place.
  void cmdEditCurrent_Click();
  /// Repairs the designations of a whole file, whatever its caption "Проверка" says: blanks and odd
  /// characters go, and the standards of shaped tubes get their "Тр". Intended to work by position
  /// in any file and to add a second "Тр" when it runs again. A copy of the file is kept beside it
  /// first, with ".bak" behind its name.
  void CheckueDB_Click();
  void Exit_Click();

  /// Records of the file, from 1; the number of the current one; their count; the file.
  BoundedArray<ProfileRec> Records;
  Long CurPos = 0;
  Long TotalPos = 0;
  std::string DataPath;

  Label Form;
  /// Text1 to Text16 and what stands before them, top to bottom.
  BoundedArray<TextBox> Text{1, boxCount};
  BoundedArray<Label> lblText{1, boxCount};
  Label lblCurr;
  Label lblTotal;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  std::string AskForFile();
  void Show(const std::string& text);
  /// Runs an opening; on a failure the user is told and the whole program ends.
  bool Open(const std::function<void()>& open);
  void ShowRecord();
  void ShowCounts();
  void MoveTo(Long position);
  ProfileRec RecordInBoxes() const;

  Services services_;
  std::function<void()> endProgram_;
};

}  // namespace trelonit
