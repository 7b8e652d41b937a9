#include "editor/dialogs/frmFind.h"

#include <algorithm>
#include <utility>

#include "editor/document/TextUnits.h"

namespace trelonit {

namespace {

constexpr const char* findSection = "FindText";
constexpr const char* replaceSection = "ReplaceText";

std::string HistoryKey(std::size_t number) {
  return "Text" + std::to_string(number);
}

/// An empty text is no entry: in the settings it would end the list.
void AddToHistory(ComboBox& box) {
  const std::string text = box.Text();
  const std::vector<std::string>& list = box.List();
  if (!text.empty() && std::find(list.begin(), list.end(), text) == list.end()) {
    box.AddItem(text);
  }
}

}  // namespace

frmFind::frmFind(RichTextBox& rtf, clsUndo& undo, MessageService& messages,
                 SettingsService& settings, std::string programTitle)
    : rtf_(rtf),
      undo_(undo),
      messages_(messages),
      settings_(settings),
      programTitle_(std::move(programTitle)) {
  Form.SetCaption("Найти и заменить");
  cmdFindNext.SetCaption("Find Next");
  cmdReplace.SetCaption("Replace");
  cmdReplaceAll.SetCaption("Replace All");
  cmdSelection[0].SetCaption("Selection");
  cmdSelection[1].SetCaption("Selection");
  cmdCancel.SetCaption("Cancel");
}

void frmFind::Form_Load() {
  loaded_ = true;
  searchPos_ = 0;
  hitPos_ = RichTextBox::notFound;
  cmdReplace.SetEnabled(true);
  ChWord.SetChecked(false);
  ChCase.SetChecked(false);
  LoadHistory(cboFind, findSection);
  LoadHistory(cboReplace, replaceSection);
  cmdSelection_Click(0);
}

void frmFind::Form_Unload() {
  loaded_ = false;
  SaveHistory(cboFind, findSection);
  SaveHistory(cboReplace, replaceSection);
}

std::string frmFind::SettingsSection(const char* section) const {
  return "KELV SOFTWARE\\" + programTitle_ + "\\" + section;
}

void frmFind::LoadHistory(ComboBox& box, const char* section) {
  box.Clear();
  for (std::size_t number = 1;; ++number) {
    const std::string text = settings_.Get(SettingsSection(section), HistoryKey(number), "");
    if (text.empty()) {
      return;
    }
    box.AddItem(text);
  }
}

void frmFind::SaveHistory(const ComboBox& box, const char* section) {
  const std::vector<std::string>& list = box.List();
  const std::size_t kept = std::min(list.size(), historyLength);
  for (std::size_t number = 1; number <= kept; ++number) {
    settings_.Set(SettingsSection(section), HistoryKey(number),
                  list[list.size() - kept + number - 1]);
  }
  // Whatever a longer list has left behind is cut off.
  settings_.Set(SettingsSection(section), HistoryKey(kept + 1), "");
}

Long frmFind::Options() const {
  return (ChWord.Checked() ? findWholeWord : 0) + (ChCase.Checked() ? findMatchCase : 0);
}

void frmFind::SayNotFound() {
  messages_.Show({"", "Text not found."});
}

void frmFind::cmdFindNext_Click() {
  AddToHistory(cboFind);
  const std::string wanted = cboFind.Text();
  {
    const UpdateLock lock(rtf_);
    hitPos_ = rtf_.Find(wanted, searchPos_, Options());
    if (hitPos_ != RichTextBox::notFound) {
      rtf_.Select(hitPos_, UnitCount(wanted));
      searchPos_ = hitPos_ + UnitCount(wanted);
    } else {
      // The next press starts again from the top.
      searchPos_ = 0;
    }
    cmdReplace.SetEnabled(hitPos_ != RichTextBox::notFound);
  }
  if (hitPos_ == RichTextBox::notFound) {
    SayNotFound();
  }
}

bool frmFind::WantedIsSelected() const {
  return rtf_.SelText() == WithWholeLineEnds(cboFind.Text());
}

void frmFind::cmdReplace_Click() {
  // The comparison is exact, whatever the search ignores: a hit in another case is not replaced,
  // the next one is sought instead.
  if (!WantedIsSelected()) {
    cmdFindNext_Click();
  }
  if (WantedIsSelected()) {
    undo_.InsertText(cboReplace.Text());
  }
  AddToHistory(cboFind);
  AddToHistory(cboReplace);
}

/// A run of "Replace All"; however it ends, the next one can begin.
class frmFind::Run {
 public:
  explicit Run(frmFind& form) : form_(form) { form_.replacing_ = true; }
  ~Run() {
    form_.replacing_ = false;
    form_.cancelRun_ = false;
  }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

 private:
  frmFind& form_;
};

Long frmFind::ReplaceFromHere() {
  const std::string wanted = cboFind.Text();
  const Long length = UnitCount(wanted);
  const Long options = Options();
  const UpdateLock lock(rtf_);
  for (Long count = 0;; ++count) {
    if (DoEvents) {
      DoEvents();
    }
    if (cancelRun_) {
      return count;
    }
    const Long hit = rtf_.Find(wanted, searchPos_, options);
    if (hit == RichTextBox::notFound) {
      searchPos_ = 0;
      return count;
    }
    // On by the length of what was found, not of what went in: a longer replacement is meant to be
    // searched again in part.
    searchPos_ = hit + length;
    rtf_.Select(hit, length);
    undo_.InsertText(cboReplace.Text());
  }
}

void frmFind::cmdReplaceAll_Click() {
  if (replacing_) {
    return;  // pressed again while it runs
  }
  AddToHistory(cboFind);
  AddToHistory(cboReplace);
  const auto [count, cancelled] = [this] {
    const Run run(*this);
    const Long replaced = ReplaceFromHere();
    return std::pair(replaced, cancelRun_);
  }();
  const bool foundNothing = count == 0 && !cancelled;
  if (foundNothing) {
    SayNotFound();
  }
  if (count > 0) {
    messages_.Show(
        {"", std::to_string(count) + (count == 1 ? " item replaced" : " items replaced")});
  }
}

void frmFind::cmdSelection_Click(Long index) {
  if (index < cmdSelection.LowerBound() || index > cmdSelection.UpperBound()) {
    RaiseSubscriptOutOfRange();
  }
  (index == 0 ? cboFind : cboReplace).SetText(rtf_.SelText());
}

void frmFind::cmdCancel_Click() {
  if (replacing_) {
    cancelRun_ = true;
  } else if (Unload) {
    Unload();
  }
}

}  // namespace trelonit
