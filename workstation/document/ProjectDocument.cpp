#include "workstation/document/ProjectDocument.h"

#include <utility>

#include "platform/errors/Guard.h"
#include "platform/files/Checksum.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "platform/system/ProgramNames.h"

namespace trelonit {

namespace {

constexpr const char* recoveryEnding = ".recovery";
constexpr const char* runningEnding = ".running";
constexpr const char* damagedEnding = ".damaged";
constexpr const char* openEnding = ".open";

std::string StemOf(const std::string& name) {
  return name.substr(0, name.rfind('.'));
}

/// One name for one file, whatever way leads to it.
std::string WholeName(const std::string& name) {
  std::error_code code;
  const std::filesystem::path whole =
      std::filesystem::weakly_canonical(AbsolutePath(name).value_or(PathOfUtf8(name)), code);
  return code ? name : Utf8OfPath(whole);
}

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string TimeText(const ClockReading& now) {
  return TwoDigits(now.Day) + '.' + TwoDigits(now.Month) + '.' + std::to_string(now.Year) + ' ' +
         TwoDigits(now.Hour) + ':' + TwoDigits(now.Minute);
}

std::string ShortName(const std::string& file) {
  return file.empty() ? "Новый проект" : Utf8OfPath(PathOfUtf8(file).filename());
}

}  // namespace

ProjectDocument::ProjectDocument(frmMain& form, Services services, StateFolder state)
    : form_(form),
      services_(std::move(services)),
      state_(std::move(state)),
      recent_(services_.Settings),
      saved_(form.State()) {
  form_.Keeper = {.MayLeave = [this] { return MayLeave(); },
                  .MayWrite = [this](const std::string& name) { return MayWrite(name); },
                  .Saved = [this](const std::string& name) { WhenSaved(name); },
                  .Opened = [this](const std::string& name) { WhenOpened(name); }};
}

ProjectDocument::~ProjectDocument() {
  form_.Keeper = {};
  ForgetCopy();
}

std::string ProjectDocument::Caption() const {
  return ShortName(file_) + (readOnly_ ? " (только чтение)" : "");
}

void ProjectDocument::Note() {
  modified_ = !saved_ || !SameDesign(*saved_, form_.State());
  if (Changed) {
    Changed();
  }
}

bool ProjectDocument::mnuSave_Click() {
  return file_.empty() || readOnly_ ? form_.SaveParam_Click() : form_.ReplaceProject(file_);
}

bool ProjectDocument::mnuSaveAs_Click() {
  return form_.SaveParam_Click();
}

bool ProjectDocument::Open(const std::string& name) {
  const bool opened = form_.OpenProject(name);
  if (!opened && PassOver([&] {
        if (!services_.Files.FileExists(name)) {
          recent_.Remove(name);
        }
      })) {
    Note();
  }
  return opened;
}

bool ProjectDocument::MayLeave() {
  Note();
  if (!modified_) {
    return true;
  }
  const MessageAnswer answer = services_.Messages.Show(
      {.Title = applicationTitle,
       .Text = "Проект изменен и не сохранен: " + ShortName(file_) + "\nСохранить его?",
       .Style = MessageStyle::QuestionYesNoCancel});
  return answer == MessageAnswer::No || (answer == MessageAnswer::Yes && mnuSave_Click());
}

bool ProjectDocument::MayWrite(const std::string& name) {
  const std::string whole = WholeName(name);
  if (whole == file_ && !readOnly_) {
    return true;
  }
  ClaimAttempt attempt = ClaimFile(whole);
  if (attempt.ByAnother) {
    Tell("Проект открыт в другом окне программы, записать его отсюда нельзя: " + ShortName(whole) +
         "\nСохраните проект под другим именем.");
    return false;
  }
  nextClaim_ = std::move(attempt.Held);
  return true;
}

void ProjectDocument::WhenSaved(const std::string& name) {
  const std::string whole = WholeName(name);
  if (whole != file_ || readOnly_) {
    claim_ = std::move(nextClaim_);
  }
  readOnly_ = false;
  file_ = whole;
  saved_ = form_.State();
  recent_.Add(file_);
  ForgetCopy();
  Note();
}

void ProjectDocument::WhenOpened(const std::string& name) {
  TakeFile(WholeName(name));
  saved_ = form_.State();
  recent_.Add(file_);
  ForgetCopy();
  Note();
  TellIfReadOnly();
}

void ProjectDocument::TakeFile(const std::string& whole) {
  if (whole != file_ || readOnly_) {
    claim_.reset();
    ClaimAttempt attempt = whole.empty() ? ClaimAttempt() : ClaimFile(whole);
    claim_ = std::move(attempt.Held);
    readOnly_ = attempt.ByAnother;
    file_ = whole;
  }
}

void ProjectDocument::TellIfReadOnly() {
  if (readOnly_) {
    Tell("Проект уже открыт в другом окне программы: " + ShortName(file_) +
         "\nЗдесь он открыт только для чтения. Изменения можно сохранить под другим именем.");
  }
}

ClaimAttempt ProjectDocument::ClaimFile(const std::string& name) const {
  return state_.Claim(ChecksumOf(name) + openEnding);
}

void ProjectDocument::KeepRecoveryCopy() {
  const DesignState now = form_.State();
  modified_ = !saved_ || !SameDesign(*saved_, now);
  if (!modified_) {
    ForgetCopy();
    return;
  }
  if (copied_ && SameDesign(*copied_, now)) {
    return;
  }
  PassOver([&] {
    if (!TakeNumber()) {
      return;
    }
    services_.Files.ReplaceFile(
        state_.PathOf(number_ + recoveryEnding),
        RecoveryText({.State = now, .File = file_, .Time = TimeText(services_.Clock.Now())},
                     services_.Locale));
    copied_ = now;
  });
}

bool ProjectDocument::TakeNumber() {
  constexpr int most = 100;
  for (int number = 1; running_ == nullptr && number <= most; ++number) {
    const std::string name = std::to_string(number);
    // What another program has left there waits for its offer.
    if (!services_.Files.FileExists(state_.PathOf(name + recoveryEnding))) {
      running_ = state_.Claim(name + runningEnding).Held;
      number_ = name;
    }
  }
  return running_ != nullptr;
}

void ProjectDocument::ForgetCopy() {
  if (copied_) {
    state_.Remove(number_ + recoveryEnding);
    copied_.reset();
  }
}

bool ProjectDocument::OfferRecovery() {
  for (const std::string& name : state_.Names(recoveryEnding)) {
    ClaimAttempt attempt = state_.Claim(StemOf(name) + runningEnding);
    // Its program is at work, or this one has taken it already.
    if (attempt.Held == nullptr) {
      continue;
    }
    const std::optional<RecoveryCopy> copy = ReadCopy(name);
    if (!copy) {
      continue;
    }
    const MessageAnswer answer = services_.Messages.Show(
        {.Title = applicationTitle,
         .Text = "В прошлый раз программа не закончила работу. Осталась копия несохраненного "
                 "проекта: " +
                 ShortName(copy->File) + ", " + copy->Time +
                 "\nОткрыть ее? «Нет» удаляет копию, «Отмена» оставляет ее до следующего запуска.",
         .Style = MessageStyle::QuestionYesNoCancel});
    if (answer == MessageAnswer::Yes) {
      running_ = std::move(attempt.Held);
      number_ = StemOf(name);
      TakeCopy(*copy);
      return true;
    }
    if (answer == MessageAnswer::No) {
      state_.Remove(name);
    }
  }
  return false;
}

std::optional<RecoveryCopy> ProjectDocument::ReadCopy(const std::string& name) {
  std::optional<RecoveryCopy> copy;
  PassOver([&] {
    copy = ReadRecovery(ReadBytes(services_.Files, state_.PathOf(name)), form_.Model.ProfileTypes,
                        services_.Locale);
  });
  if (!copy) {
    // It is told once and kept for whoever can still make something of it.
    const std::string aside = StemOf(name) + damagedEnding;
    state_.Rename(name, aside);
    Tell("Копия несохраненного проекта повреждена, открыть ее нельзя. Она оставлена в файле " +
         state_.PathOf(aside));
  }
  return copy;
}

void ProjectDocument::TakeCopy(const RecoveryCopy& copy) {
  form_.ShowState(copy.State, {});
  TakeFile(copy.File);
  // No file has this design.
  saved_.reset();
  copied_ = form_.State();
  Note();
  TellIfReadOnly();
}

void ProjectDocument::Tell(const std::string& text) {
  services_.Messages.Show(
      {.Title = applicationTitle, .Text = text, .Style = MessageStyle::Exclamation});
}

}  // namespace trelonit
