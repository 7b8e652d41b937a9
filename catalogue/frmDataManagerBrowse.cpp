#include <algorithm>

#include "catalogue/DesignationSearch.h"
#include "catalogue/RecordCoding.h"
#include "catalogue/RecordHealth.h"
#include "catalogue/frmDataManager.h"
#include "catalogue/modProfileData.h"
#include "platform/errors/Guard.h"

// What stands beside the record of the manager: the way to the program's own catalogue, the search,
// and what the dimensions say of the figures.

namespace trelonit {

namespace {

constexpr Integer indexBlock = 103;

}  // namespace

void frmDataManager::cmdOwnCatalogue_Click() {
  // Without a file the user has been told why.
  if (const std::string path = ProfileDataFile(services_); !path.empty()) {
    LoadFile(path);
  }
}

void frmDataManager::cmdFindNext_Click() {
  lblFound.SetCaption("");
  const DesignationSearch search(txtFind.Text());
  if (search.IsEmpty() || TotalPos < 1) {
    return;
  }
  for (Long step = 1; step <= TotalPos; ++step) {
    const Long number = (CurPos - 1 + step) % TotalPos + 1;
    if (search.Finds(Records[number].Name.Trimmed())) {
      if (number == CurPos) {
        lblFound.SetCaption("Других записей с таким обозначением нет");
      } else if (number < CurPos) {
        lblFound.SetCaption("Поиск продолжен с начала");
      }
      GoToRecord(number);
      return;
    }
  }
  lblFound.SetCaption("Такого обозначения нет");
}

void frmDataManager::cmdGoTo_Click() {
  lblFound.SetCaption("");
  Long number = 0;
  PassOver([&] { number = TextToLong(txtGoTo.Text(), services_.Locale); });
  if (number < 1 || number > TotalPos) {
    lblFound.SetCaption("Записи с таким номером нет");
    return;
  }
  GoToRecord(number);
}

void frmDataManager::GoToRecord(Long number) {
  if (number != CurPos && number >= 1 && number <= TotalPos) {
    MoveTo(number);
  }
}

void frmDataManager::RecordsAreOthers() {
  JudgeBoxes();
  if (RecordsChanged) {
    RecordsChanged();
  }
}

void frmDataManager::JudgeBoxes() {
  if (showing_) {
    return;
  }
  if (TotalPos < 1) {
    lblHealth.SetCaption("");
    return;
  }
  const ProfileRec record = RecordInBoxes();
  const RecordHealth health = JudgeRecord(StandardOf(record.Type), record, services_.Locale);
  lblHealth.SetForeColor(health.Sound ? colorWindowText : colorRed);
  lblHealth.SetCaption(health.Text);
}

Long frmDataManager::StandardOf(const FixedText<50>& name) {
  if (standards_.empty()) {
    PassOver([&] {
      const std::string_view index = services_.Resources.CustomBlock(indexBlock);
      for (std::size_t place = 0; place + indexRecordSize <= index.size();
           place += indexRecordSize) {
        standards_.push_back(DecodeIndexRecord(index.substr(place, indexRecordSize)).Name);
      }
    });
  }
  const auto found = std::find(standards_.begin(), standards_.end(), name);
  return found == standards_.end() ? 0 : static_cast<Long>(found - standards_.begin()) + 1;
}

}  // namespace trelonit
