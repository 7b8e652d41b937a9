#include "variants/frmVariants.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "platform/errors/Guard.h"
#include "variants/Axis.h"
#include "variants/VariantsProject.h"

namespace trelonit {

namespace {

constexpr const char* formSection = "Variants";
constexpr std::size_t mostBest = 10'000;
constexpr const char* nothingChosen =
    "Выберите строку таблицы или точку графика: здесь будет сказано, что это за ферма.";

std::string WholeText(double whole, const NumberLocale& locale) {
  return FormatShown(whole, 0, locale);
}

/// In the unit that is read at a glance.
std::string DurationText(double seconds) {
  constexpr double minute = 60;
  constexpr double hour = 3600;
  const auto whole = [](double value) {
    return std::to_string(static_cast<std::uint64_t>(value + 0.5));
  };
  if (seconds < 1) {
    return "меньше 1 с";
  }
  if (seconds < 2 * minute) {
    return whole(seconds) + " с";
  }
  if (seconds < 2 * hour) {
    return whole(seconds / minute) + " мин";
  }
  return whole(seconds / hour) + " ч";
}

}  // namespace

frmVariants::frmVariants(const Services& services, frmMain& main)
    : services_(services), main_(main) {
  Form.SetCaption("Варианты");
  lblBestFault.SetVisible(false);
  for (const char* entry :
       {"все", "только годные", "лучшие", "фронт: масса и высота", "фронт: масса и прогиб"}) {
    cmbShow.AddItem(entry);
  }
  for (const char* entry : {"высоты", "прогиба"}) {
    cmbPlot.AddItem(entry);
  }
  for (const char* entry : {"числу панелей", "схеме"}) {
    cmbColour.AddItem(entry);
  }
  cmbShow.Select(0);
  cmbPlot.Select(byHeight);
  cmbColour.Select(byPanels);
  txtBest.SetText("10");
  lblChosen.SetCaption(nothingChosen);
  ShowEntries();
}

frmVariants::~frmVariants() {
  EndRun();
}

bool frmVariants::Form_Load() {
  bool possible = false;
  Guard(services_.Messages, "mnuVariants_Click", [&] {
    if (DesignInputs base = BaseOfStudy(main_); !(base == base_)) {
      base_ = std::move(base);
      secondsOfOne_ = {};
    }
    if (const std::optional<Message> why = WhyNotCalculated(base_, services_.Locale)) {
      services_.Messages.Show(*why);
      return;
    }
    Axes.Changed = nullptr;
    Axes.Begin(base_, Catalogue(), services_.Settings);
    Restore();
    Connect();
    CountVariants();
    ShowNotice();
    ShowEntries();
    possible = true;
  });
  return possible;
}

void frmVariants::EndStudy() {
  if (run_ != nullptr) {
    run_->Stop();
    run_->Join();
    TakeNews();
  }
}

void frmVariants::Form_Unload() {
  EndStudy();
  Axes.Store(services_.Settings);
  Store();
}

void frmVariants::Connect() {
  Axes.Changed = [this] { CountVariants(); };
  chkOpinion.Click = [this] { CountVariants(); };
  txtBest.Change = [this] { CountVariants(); };
  cmbShow.Click = [this] {
    list_.SetFilter(static_cast<VariantFilter>(cmbShow.ListIndex()));
    ShowShown();
  };
  txtFilter.Change = [this] {
    list_.SetText(txtFilter.Text());
    ShowShown();
  };
  const auto refresh = [this] {
    if (Refreshed) {
      Refreshed();
    }
  };
  cmbPlot.Click = refresh;
  cmbColour.Click = refresh;
  chkAllColumns.Click = refresh;
}

void frmVariants::Restore() {
  SettingsService& settings = services_.Settings;
  const auto box = [&](CheckBox& check, const char* key) {
    check.SetChecked(settings.Get(formSection, key, BooleanToText(check.Checked())) ==
                     BooleanToText(true));
  };
  const auto list = [&](ComboBox& combo, const char* key) {
    combo.SetText(settings.Get(formSection, key, combo.Text()));
    if (combo.ListIndex() == ComboBox::noSelection) {
      combo.Select(0);
    }
  };
  box(chkOpinion, "Opinion");
  box(chkAllColumns, "AllColumns");
  txtBest.SetText(settings.Get(formSection, "Best", txtBest.Text()));
  list(cmbShow, "Show");
  list(cmbPlot, "Plot");
  list(cmbColour, "Colour");
  list_.SetFilter(static_cast<VariantFilter>(cmbShow.ListIndex()));
}

void frmVariants::Store() {
  SettingsService& settings = services_.Settings;
  settings.Set(formSection, "Opinion", BooleanToText(chkOpinion.Checked()));
  settings.Set(formSection, "AllColumns", BooleanToText(chkAllColumns.Checked()));
  settings.Set(formSection, "Best", txtBest.Text());
  settings.Set(formSection, "Show", cmbShow.Text());
  settings.Set(formSection, "Plot", cmbPlot.Text());
  settings.Set(formSection, "Colour", cmbColour.Text());
}

std::optional<std::size_t> frmVariants::BestCount() {
  std::string fault;
  Long count = 0;
  try {
    count = ParseOneWhole(txtBest.Text());
    if (count < 1 || count > static_cast<Long>(mostBest)) {
      fault = "от 1 до 10 000";
    }
  } catch (const RuntimeError& error) {
    fault = error.Description();
  }
  lblBestFault.SetCaption(fault);
  lblBestFault.SetVisible(!fault.empty());
  return fault.empty() ? std::optional(static_cast<std::size_t>(count)) : std::nullopt;
}

double frmVariants::SecondsOfOne(const VariantSpace& space, bool byOpinion) {
  std::optional<double>& seconds = secondsOfOne_[byOpinion ? 1 : 0];
  if (!seconds) {
    // Some of all over it: the project itself is selected already, which takes less.
    constexpr std::uint64_t tried = 8;
    const Clock::time_point begun = Clock::now();
    for (std::uint64_t place = 0; place < tried; ++place) {
      MakeVariant(space, space.Count() / tried * place, {.ByOpinion = byOpinion}, Catalogue());
    }
    seconds = std::chrono::duration<double>(Clock::now() - begun).count() / tried;
  }
  return *seconds;
}

void frmVariants::CountVariants() {
  const std::optional<VariantAxes> axes = Axes.Read();
  const std::optional<std::size_t> best = BestCount();
  toStart_.reset();
  lblCount.SetForeColor(colorRed);
  if (!axes || !best) {
    lblCount.SetCaption("Есть ошибки: они названы под полями.");
  } else {
    try {
      toStart_.emplace(base_, *axes, Catalogue());
      const auto count = static_cast<double>(toStart_->Count());
      std::string text =
          "Вариантов: " + WholeText(count, services_.Locale) + ", примерно " +
          DurationText(count * SecondsOfOne(*toStart_, chkOpinion.Checked()) / Jobs()) + ".";
      if (count > static_cast<double>(mostHeld)) {
        text += " В таблице и на графике - первые " +
                WholeText(static_cast<double>(mostHeld), services_.Locale) +
                ", лучшие и фронты - из всех.";
      }
      lblCount.SetCaption(text);
      lblCount.SetForeColor(colorWindowText);
    } catch (const RuntimeError& error) {
      lblCount.SetCaption(error.Description() + ": уменьшите число значений.");
    }
  }
  ShowEntries();
}

unsigned frmVariants::Jobs() {
  return std::max(std::thread::hardware_concurrency(), 1U);
}

void frmVariants::EndRun() {
  run_.reset();
  ended_ = true;
}

void frmVariants::cmdStart_Click() {
  Guard(services_.Messages, "cmdStart_Click", [&] {
    CountVariants();
    const std::optional<std::size_t> best = BestCount();
    if (IsRunning() || !toStart_ || !best) {
      return;
    }
    EndRun();
    list_.Clear();
    Choose(std::nullopt);
    baseOfRun_ = base_;
    byOpinionOfRun_ = chkOpinion.Checked();
    done_ = 0;
    seconds_ = 0;
    ended_ = false;
    begun_ = Clock::now();
    run_ = std::make_unique<StudyRun>(
        *toStart_, StudyPlan{.Rules = {.ByOpinion = byOpinionOfRun_}, .Jobs = Jobs()}, Catalogue(),
        StudyRun::Limits{.Held = mostHeld, .Best = *best}, [this] {
          if (Moved) {
            Moved();
          }
        });
    lblProgress.SetCaption("Расчет начат.");
    ShowNotice();
    ShowEntries();
    ShowShown();
  });
}

void frmVariants::cmdCancel_Click() {
  if (IsRunning()) {
    run_->Stop();
  }
}

void frmVariants::TakeNews() {
  if (run_ == nullptr) {
    return;
  }
  Guard(services_.Messages, "cmdStart_Click", [&] {
    StudyNews news = run_->TakeNews();
    if (ended_) {
      return;
    }
    ended_ = news.Ended;
    done_ = news.Done;
    seconds_ = std::chrono::duration<double>(Clock::now() - begun_).count();
    if (ended_ && done_ > 0) {
      secondsOfOne_[byOpinionOfRun_ ? 1 : 0] = seconds_ * Jobs() / static_cast<double>(done_);
    }
    Tell(news);
    const std::exception_ptr failure = news.Failure;
    list_.Take(std::move(news));
    ShowEntries();
    ShowShown();
    if (ended_ && failure) {
      std::rethrow_exception(failure);
    }
  });
}

void frmVariants::Tell(const StudyNews& news) {
  const auto whole = [this](std::uint64_t number) {
    return WholeText(static_cast<double>(number), services_.Locale);
  };
  const std::uint64_t count = run_->Space().Count();
  if (!ended_) {
    const double left = seconds_ / static_cast<double>(std::max<std::uint64_t>(done_, 1)) *
                        static_cast<double>(count - done_);
    lblProgress.SetCaption(whole(done_) + " из " + whole(count) + ", осталось " +
                           DurationText(left));
    return;
  }
  const std::string begin = done_ < count
                                ? "Прервано: посчитано " + whole(done_) + " из " + whole(count)
                                : "Посчитано " + whole(done_);
  lblProgress.SetCaption(begin + ": годится " + whole(news.Passing) + ", не годится " +
                         whole(done_ - news.Passing - news.Impossible) + ", невозможно " +
                         whole(news.Impossible) + "; время " + DurationText(seconds_) + ".");
}

double frmVariants::Share() const {
  return run_ == nullptr
             ? 0
             : static_cast<double>(done_) /
                   static_cast<double>(std::max<std::uint64_t>(run_->Space().Count(), 1));
}

void frmVariants::ShowEntries() {
  const bool running = IsRunning();
  const VariantRow* row = chosen_ ? list_.Find(*chosen_) : nullptr;
  cmdStart.SetEnabled(!running && toStart_.has_value());
  cmdCancel.SetEnabled(running);
  cmdApply.SetEnabled(row != nullptr && row->IsPossible());
  mnuSaveCsv.SetEnabled(!running && !list_.Shown().empty());
  mnuSavePlot.SetEnabled(!running && !list_.Held().empty());
}

void frmVariants::ShowNotice() {
  std::string text;
  if (main_.lblOwnWeightTwice.Visible()) {
    text = main_.lblOwnWeightTwice.Caption();
  } else if (run_ != nullptr && ended_ && !(baseOfRun_ == base_)) {
    text =
        "Таблица посчитана раньше, для другого состояния проекта: «Применить» заменит проект "
        "выбранным вариантом целиком.";
  }
  lblNotice.SetCaption(text);
  lblNotice.SetVisible(!text.empty());
}

void frmVariants::ShowShown() {
  const auto whole = [this](std::size_t number) {
    return WholeText(static_cast<double>(number), services_.Locale);
  };
  const std::size_t shown = list_.Shown().size();
  lblShown.SetCaption("Показано " + whole(shown) + " из " + whole(list_.Held().size()));
  if (Refreshed) {
    Refreshed();
  }
}

void frmVariants::Sort(VariantOrder order) {
  list_.SetOrder(order);
  ShowShown();
}

void frmVariants::Choose(std::optional<std::uint64_t> number) {
  chosen_ = number;
  const VariantRow* row = number ? list_.Find(*number) : nullptr;
  lblChosen.SetCaption(row == nullptr ? nothingChosen : Describe(*row));
  ShowEntries();
  if (ChosenChanged) {
    ChosenChanged();
  }
}

void frmVariants::cmdApply_Click() {
  Guard(services_.Messages, "cmdApply_Click", [&] {
    if (run_ == nullptr || !cmdApply.Enabled()) {
      return;
    }
    // The table holds no loads.
    ShowAsProject(main_, run_->Make(*chosen_).Inputs);
    if (Unload) {
      Unload();
    }
  });
}

}  // namespace trelonit
