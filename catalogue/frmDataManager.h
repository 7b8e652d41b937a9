#pragma once

#include <functional>
#include <string>
#include <vector>

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

  // --- beside the record (frmDataManagerBrowse.cpp)
  /// Loads the catalogue that the program itself works with; it is unpacked where it is missing.
  void cmdOwnCatalogue_Click();
  /// Goes to the next record with the text of txtFind in its name, after the last one to the first.
  void cmdFindNext_Click();
  /// Goes to the record with the number in txtGoTo.
  void cmdGoTo_Click();
  /// Shows this record; nothing happens for the present one and for a number without a record.
  void GoToRecord(Long number);
  /// How numbers are shown.
  const NumberLocale& Locale() const { return services_.Locale; }

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
  TextBox txtFind;
  TextBox txtGoTo;
  /// What came of the search.
  Label lblFound;
  /// What the dimensions in the boxes say of A, Jy and Jz; red where they do not agree.
  Label lblHealth;
  /// Called after the records have become others, and after another one is shown.
  std::function<void()> RecordsChanged;
  std::function<void()> CurrentChanged;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  std::string AskForFile();
  void LoadFile(const std::string& path);
  void RecordsAreOthers();
  void JudgeBoxes();
  /// The standard with this name in the program's catalogue; 0 where there is none.
  Long StandardOf(const FixedText<50>& name);
  void Show(const std::string& text);
  /// Runs an opening; on a failure the user is told and the whole program ends.
  bool Open(const std::function<void()>& open);
  void ShowRecord();
  void ShowCounts();
  void MoveTo(Long position);
  ProfileRec RecordInBoxes() const;

  Services services_;
  std::function<void()> endProgram_;
  bool showing_ = false;
  // Names of the program's standards, read when they are first asked for.
  std::vector<FixedText<50>> standards_;
};

}  // namespace trelonit
