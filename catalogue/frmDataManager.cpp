#include "catalogue/frmDataManager.h"

#include <algorithm>
#include <utility>

#include "catalogue/DataFile.h"
#include "catalogue/RecordBoxes.h"
#include "catalogue/RecordCoding.h"
#include "platform/errors/Guard.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/NumberText.h"

namespace trelonit {

namespace {

constexpr Long longStep = 100;
/// The last record of the round tubes: the designations after it stand for shaped tubes.
constexpr Long lastRoundTube = 1574;
constexpr std::size_t longestBareName = 13;
constexpr const char* firstReached = "Fist position reached !";
constexpr const char* lastReached = "Last position reached !";
constexpr const char* notChosen = "Data file has not got !";
constexpr const char* notThere = "Data file not exists !";

bool IsBlank(const std::string& path) {
  return path.empty() || path == " ";
}

std::uint64_t PlaceOfRecord(Long number) {
  return static_cast<std::uint64_t>(number - 1) * profileRecordSize;
}

std::string EncodeAll(const BoundedArray<ProfileRec>& records) {
  std::string bytes;
  for (const ProfileRec& record : records) {
    const auto encoded = EncodeProfileRecord(record);
    bytes.append(encoded.data(), encoded.size());
  }
  return bytes;
}

FixedText<15> RepairedName(const FixedText<15>& name, Long number) {
  std::string cleaned = StripToPrintable(name.Padded());
  // What is left has one byte a character in the code page.
  if (number > lastRoundTube && EncodeCodePage1251(cleaned).size() <= longestBareName) {
    cleaned.insert(0, "Тр");
  }
  return {cleaned};
}

}  // namespace

frmDataManager::frmDataManager(Services services, std::function<void()> endProgram)
    : services_(std::move(services)), endProgram_(std::move(endProgram)) {
  Form.SetCaption("Менеджер базы данных проката ");
  lblText[nameBox].SetCaption("Name");
  lblText[typeBox].SetCaption("Type");
  for (std::size_t place = 0; place < numberBoxes.size(); ++place) {
    lblText[firstNumberBox + static_cast<Long>(place)].SetCaption(numberBoxes[place].Caption);
  }
  for (TextBox& box : Text) {
    box.Change = [this] { JudgeBoxes(); };
  }
}

void frmDataManager::Form_Load() {
  Records = BoundedArray<ProfileRec>();
  CurPos = 0;
  TotalPos = 0;
  DataPath.clear();
  lblFound.SetCaption("");
  for (TextBox& box : Text) {
    box.SetText("");
  }
  ShowCounts();
  RecordsAreOthers();
}

std::string frmDataManager::AskForFile() {
  // The program's own catalogue lies in its folder; a file that is open has its neighbours in view.
  return services_.Dialogs.AskOpenName(
      {.Title = "Открытие базы данных",
       .Extension = "dat",
       .Filter = "Data Files (*.dat)|*.dat",
       .Folder = DataPath.empty() ? services_.ProgramFolder : FolderOf(DataPath)});
}

void frmDataManager::Show(const std::string& text) {
  services_.Messages.Show({.Text = text});
}

bool frmDataManager::Open(const std::function<void()>& open) {
  if (PassOver(open)) {
    return true;
  }
  services_.Messages.Show({.Title = "Trelo error",
                           .Text = "Can't get file discriptor , to many files open !",
                           .Style = MessageStyle::Critical});
  if (endProgram_) {
    endProgram_();
  }
  return false;
}

void frmDataManager::cmdLoadDB_Click() {
  const std::string path = AskForFile();
  if (IsBlank(path)) {
    Show(notChosen);
    return;
  }
  if (!services_.Files.FileExists(path)) {
    Show(notThere);
    return;
  }
  LoadFile(path);
}

void frmDataManager::LoadFile(const std::string& path) {
  std::unique_ptr<std::istream> stream;
  if (!Open([&] { stream = services_.Files.OpenForReading(path); })) {
    return;
  }
  Guard(services_.Messages, "cmdLoadDB_Click", [&] {
    // All of it or nothing: a record of one file must never be written into another.
    Records = ReadProfileRecords(*stream, services_.Files.FileLength(path));
    DataPath = path;
    TotalPos = Records.UpperBound();
    CurPos = 1;
    ShowRecord();
    ShowCounts();
    RecordsAreOthers();
  });
}

void frmDataManager::ShowRecord() {
  // Judged once, and not with each of the sixteen.
  showing_ = true;
  PassOver([&] {
    const ProfileRec& record = Records[CurPos];
    Text[nameBox].SetText(record.Name.Padded());
    Text[typeBox].SetText(record.Type.Padded());
    Long subscript = firstNumberBox;
    for (const NumberBox& number : numberBoxes) {
      TextBox& box = Text[subscript++];
      // A number that is none keeps the box as it was.
      PassOver([&] { box.SetText(NumberToText(record.*number.Field, services_.Locale)); });
    }
  });
  showing_ = false;
  lblCurr.SetCaption(std::to_string(CurPos));
  JudgeBoxes();
  if (CurrentChanged) {
    CurrentChanged();
  }
}

void frmDataManager::ShowCounts() {
  lblCurr.SetCaption(std::to_string(CurPos));
  lblTotal.SetCaption(std::to_string(TotalPos));
}

void frmDataManager::MoveTo(Long position) {
  CurPos = position;
  ShowRecord();
}

void frmDataManager::cmdPrew_Click() {
  if (CurPos > 1) {
    MoveTo(CurPos - 1);
  } else {
    Show(firstReached);
  }
}

void frmDataManager::cmdForv_Click() {
  if (CurPos < TotalPos) {
    MoveTo(CurPos + 1);
  } else {
    Show(lastReached);
  }
}

void frmDataManager::cmdPrew100_Click() {
  if (CurPos - longStep > 1) {
    MoveTo(CurPos - longStep);
  } else {
    MoveTo(1);
    Show(firstReached);
  }
}

void frmDataManager::cmdForv100_Click() {
  if (CurPos + longStep < TotalPos) {
    MoveTo(CurPos + longStep);
  } else {
    MoveTo(TotalPos);
    Show(lastReached);
  }
}

void frmDataManager::cmdFirst_Click() {
  MoveTo(1);
}

void frmDataManager::cmdLastpoz_Click() {
  MoveTo(TotalPos);
}

ProfileRec frmDataManager::RecordInBoxes() const {
  ProfileRec record;
  record.Name = std::string_view(Text[nameBox].Text());
  record.Type = std::string_view(Text[typeBox].Text());
  for (std::size_t place = 0; place < numberBoxes.size(); ++place) {
    record.*numberBoxes[place].Field =
        ParseNumber(Text[firstNumberBox + static_cast<Long>(place)].Text(), services_.Locale);
  }
  return record;
}

void frmDataManager::cmdEditCurrent_Click() {
  if (IsBlank(DataPath)) {
    Show("Не загружена база данных !");
    return;
  }
  if (!services_.Files.FileExists(DataPath)) {
    Show(notThere);
    return;
  }
  std::unique_ptr<FileUpdate> file;
  if (!Open([&] { file = services_.Files.OpenForUpdate(DataPath); })) {
    return;
  }
  Guard(services_.Messages, "cmdEditCurrent_Click", [&] {
    // A file without records has no current one: there is nothing to write.
    if (CurPos < 1 || CurPos > Records.UpperBound()) {
      return;
    }
    const auto bytes = EncodeProfileRecord(RecordInBoxes());
    // As the file has it now: characters outside the code page have become question marks.
    Records[CurPos] = DecodeProfileRecord({bytes.data(), bytes.size()});
    file->WriteAt(PlaceOfRecord(CurPos), {bytes.data(), bytes.size()});
  });
  ShowCounts();
  RecordsAreOthers();
}

void frmDataManager::CheckueDB_Click() {
  const std::string path = AskForFile();
  if (IsBlank(path)) {
    Show(notChosen);
    return;
  }
  std::unique_ptr<std::istream> stream;
  if (!Open([&] { stream = services_.Files.OpenForReading(path); })) {
    return;
  }
  BoundedArray<ProfileRec> repaired;
  const bool ready = Guard(services_.Messages, "CheckueDB_Click", [&] {
    repaired = ReadProfileRecords(*stream, services_.Files.FileLength(path));
    stream.reset();
    for (Long number = 1; number <= repaired.UpperBound(); ++number) {
      repaired[number].Name = RepairedName(repaired[number].Name, number);
    }
    // Nothing is rewritten before the copy is there.
    CopyBytes(services_.Files, path, path + ".bak");
  });
  if (!ready) {
    return;
  }
  Records = std::move(repaired);
  RecordsAreOthers();
  std::unique_ptr<FileUpdate> file;
  if (!Open([&] { file = services_.Files.OpenForUpdate(path); })) {
    return;
  }
  Guard(services_.Messages, "CheckueDB_Click", [&] { file->WriteAt(0, EncodeAll(Records)); });
}

void frmDataManager::Exit_Click() {
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit
