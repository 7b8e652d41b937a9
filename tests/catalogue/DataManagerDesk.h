#pragma once

#include <functional>
#include <string>
#include <vector>

#include "catalogue/RecordCoding.h"
#include "catalogue/frmDataManager.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// Keeps every message and lets the test look round before the user answers it.
class WatchedMessages : public RecordingMessages {
 public:
  MessageAnswer Show(const Message& message) override {
    if (Watch) {
      Watch();
    }
    return RecordingMessages::Show(message);
  }
  std::function<void()> Watch;
};

inline const Message noDescriptor{.Title = "Trelo error",
                                  .Text = "Can't get file discriptor , to many files open !",
                                  .Style = MessageStyle::Critical};
/// A box with the program's own title and no picture.
inline Message Told(const std::string& text) {
  return {.Title = "", .Text = text, .Style = MessageStyle::Plain};
}

/// The catalogue manager over these files, just opened.
class DataManagerDesk {
 public:
  explicit DataManagerDesk(FileService& files, const NumberLocale& locale = {})
      : Form({Messages, World.Dialogs, World.Clipboard, World.Settings, World.Registry,
              World.Automation, World.Shell, World.Clock, resources_, files, locale,
              World.ProgramFolder},
             [this] {
               ++Ended;
               ToldBeforeTheEnd = Messages.Shown.size();
             }) {
    Form.Unload = [this] { ++Closed; };
    Form.Form_Load();
  }

  void Load(const std::string& path) {
    World.Dialogs.Names = {path};
    Form.cmdLoadDB_Click();
  }
  void Check(const std::string& path) {
    World.Dialogs.Names = {path};
    Form.CheckueDB_Click();
  }
  /// Goes to a record by the commands of the user.
  void GoTo(Long position) {
    Form.cmdFirst_Click();
    while (Form.CurPos < position) {
      Form.CurPos + 100 < position ? Form.cmdForv100_Click() : Form.cmdForv_Click();
    }
  }
  /// The sixteen boxes, top to bottom.
  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (const TextBox& box : Form.Text) {
      texts.push_back(box.Text());
    }
    return texts;
  }
  void Type(const std::vector<std::string>& texts) {
    for (std::size_t place = 0; place < texts.size(); ++place) {
      Form.Text[static_cast<Long>(place) + 1].SetText(texts[place]);
    }
  }
  /// Number of the current record and of all, as the labels show them.
  std::string Counts() const { return Form.lblCurr.Caption() + "/" + Form.lblTotal.Caption(); }

 private:
  EmbeddedResources resources_;

 public:
  test::World World{resources_};
  WatchedMessages Messages;
  int Ended = 0;
  int Closed = 0;
  std::size_t ToldBeforeTheEnd = 0;
  frmDataManager Form;
};

/// The same with files in memory and one of them already there.
struct MemoryDesk {
  explicit MemoryDesk(std::string content = {}, const NumberLocale& locale = {})
      : Desk(Files, locale) {
    Data() = std::move(content);
  }
  std::string& Data() { return Files.Content[Path]; }
  void Load() { Desk.Load(Path); }
  void Check() { Desk.Check(Path); }

  const std::string Path = "/data/some.dat";
  MemoryFiles Files;
  DataManagerDesk Desk;
};

inline std::string BytesOf(const ProfileRec& record) {
  const auto bytes = EncodeProfileRecord(record);
  return {bytes.begin(), bytes.end()};
}

/// A record whose every field tells its number.
inline ProfileRec NumberedRecord(Long number) {
  ProfileRec record;
  record.Name = std::string_view("L" + std::to_string(number));
  record.Type = std::string_view("Уголок " + std::to_string(number));
  double value = number;
  for (const ProfileField& listed : profileFields) {
    record.*listed.Number = value;
    value += 0.125;
  }
  return record;
}

/// A data file of this many numbered records.
inline std::string NumberedFile(Long count) {
  std::string bytes;
  for (Long number = 1; number <= count; ++number) {
    bytes += BytesOf(NumberedRecord(number));
  }
  return bytes;
}

/// The texts that the boxes show for a numbered record in the neutral form of numbers.
inline std::vector<std::string> NumberedBoxes(Long number) {
  const ProfileRec record = NumberedRecord(number);
  std::vector<std::string> texts{record.Name.Padded(), record.Type.Padded()};
  for (const double value :
       {record.H, record.B, record.s, record.t, record.r1, record.r2, record.A, record.Jy,
        record.Jz, record.Wy, record.Wz, record.y0, record.z0, record.P}) {
    texts.push_back(NumberToText(value, {}));
  }
  return texts;
}

/// The bytes of one record of a file.
inline std::string RecordBytes(const std::string& file, Long number) {
  return file.substr(static_cast<std::size_t>(number - 1) * profileRecordSize, profileRecordSize);
}

}  // namespace trelonit::test
