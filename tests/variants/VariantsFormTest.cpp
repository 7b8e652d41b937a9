// The window of the studies, as the logic has it.

#include <atomic>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

#include "checks/ElementGroups.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"
#include "tests/variants/Studies.h"
#include "variants/VariantTable.h"
#include "variants/frmVariants.h"
#include "workstation/history/DesignSteps.h"

namespace trelonit::test {

namespace {

/// A desk with loads, and the form of its studies.
class VariantsForm : public ::testing::Test {
 protected:
  VariantsForm() {
    for (double& load : desk.Main.Model.Inputs.Loads.UpDistForce) {
      load = 1.2;
    }
    form.Moved = [this] {
      const std::lock_guard lock(mutex);
      moved = true;
      changed.notify_all();
    };
  }
  ~VariantsForm() override { form.Form_Unload(); }

  void Write(AxisName name, const std::string& text) { form.Axes[name].Values.SetText(text); }
  void Tick(AxisName name, bool on) { form.Axes[name].On.SetChecked(on); }
  std::string FaultOf(AxisName name) {
    const Label& fault = form.Axes[name].Fault;
    EXPECT_EQ(fault.Visible(), !fault.Caption().empty());
    return fault.Caption();
  }
  /// Three heights and two panel counts.
  void OpenSmall() {
    ASSERT_TRUE(form.Form_Load());
    Write(AxisName::Height, "1.5:2.5:0.5");
    Write(AxisName::Panels, "8,10");
  }
  void WaitForNews() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return moved; });
    moved = false;
  }
  void RunToTheEnd() {
    form.cmdStart_Click();
    while (form.IsRunning()) {
      WaitForNews();
      form.TakeNews();
    }
  }
  std::vector<std::uint64_t> Shown() {
    std::vector<std::uint64_t> numbers;
    for (const VariantRow* row : form.List().Shown()) {
      numbers.push_back(row->Number);
    }
    return numbers;
  }

  StartedDesk desk;
  frmVariants form{desk.Outside.Bundle(), desk.Main};
  std::mutex mutex;
  std::condition_variable changed;
  bool moved = false;
};

using Numbers = std::vector<std::uint64_t>;

TEST_F(VariantsForm, OffersHeightsAndPanelsOfThePresentDesign) {
  ASSERT_TRUE(form.Form_Load());
  // 20 m: a twelfth is 1.67, a sixth 3.33; scheme 1 has even panel counts from 4 on.
  EXPECT_EQ(form.Axes[AxisName::Height].Values.Text(), "1.65:3.15:0.15");
  EXPECT_EQ(form.Axes[AxisName::Panels].Values.Text(), "6:14:2");
  EXPECT_EQ(form.Axes[AxisName::Upper].Values.Text(), "1/1");
  EXPECT_TRUE(form.Axes[AxisName::Height].On.Checked());
  EXPECT_TRUE(form.Axes[AxisName::Panels].On.Checked());
  EXPECT_FALSE(form.Axes[AxisName::Span].On.Checked());
  EXPECT_TRUE(form.Axes.chkScheme[0].Checked());
  EXPECT_FALSE(form.Axes.chkScheme[1].Checked());
  EXPECT_EQ(form.lblCount.Caption().find("Вариантов: 55, примерно "), 0U);
  EXPECT_TRUE(form.cmdStart.Enabled());
}

TEST_F(VariantsForm, WhatItOffersIsRightForEveryScheme) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    desk.Main.imgTreloType_Click(scheme);
    ASSERT_TRUE(form.Form_Load());
    for (AxisInput& axis : form.Axes.All()) {
      axis.On.SetChecked(true);
      EXPECT_EQ(axis.Fault.Caption(), "") << scheme << ", " << axis.Key;
    }
    EXPECT_TRUE(form.cmdStart.Enabled());
  }
}

TEST_F(VariantsForm, NamesWhatIsWrongBesideTheAxisAndDoesNotStart) {
  OpenSmall();
  const struct {
    AxisName Name;
    const char* Text;
    const char* Fault;
  } faults[] = {
      {AxisName::Height, "2:3:0", "в диапазоне «2:3:0» шаг не больше нуля"},
      {AxisName::Height, "3:2:0.1", "диапазон «3:2:0.1» идет назад"},
      {AxisName::Height, "2:3", "диапазон «2:3» записывается как от:до:шаг"},
      {AxisName::Height, "два", "«два» не число"},
      {AxisName::Height, "2,,3", "в списке «2,,3» пропущено значение"},
      {AxisName::Height, " ", "не задано ни одного значения"},
      {AxisName::Span, "0:10000000:1", "в диапазоне «0:10000000:1» больше 1 000 000 значений"},
      {AxisName::Panels, "6.5", "в «6.5» не все числа целые"},
      {AxisName::Upper, "12/1", "нет расположения профилей с номером 12"},
      {AxisName::Upper, "1/99", "для расположения профилей 1 нет сортамента 99"},
      {AxisName::Posts, "1", "«1» записывается как расположение/сортамент"},
      {AxisName::Steel, "С245", "«С245» записывается как марка:Ry"},
      {AxisName::Steel, "С245:0", "расчетное сопротивление стали «С245:0» не больше нуля"},
  };
  for (const auto& fault : faults) {
    const std::string before = form.Axes[fault.Name].Values.Text();
    Write(fault.Name, fault.Text);
    EXPECT_EQ(FaultOf(fault.Name), fault.Fault);
    EXPECT_FALSE(form.cmdStart.Enabled()) << fault.Text;
    form.cmdStart_Click();
    EXPECT_FALSE(form.IsRunning());
    // An axis that is not ticked takes no part.
    Tick(fault.Name, false);
    EXPECT_EQ(FaultOf(fault.Name), "");
    EXPECT_TRUE(form.cmdStart.Enabled()) << fault.Text;
    Write(fault.Name, before);
  }
}

TEST_F(VariantsForm, RefusesMoreThanAHundredMillion) {
  OpenSmall();
  Write(AxisName::Height, "1:2:0.0001");
  Write(AxisName::Span, "20:30:0.001");
  Write(AxisName::Panels, "6,8");
  EXPECT_EQ(form.lblCount.Caption(), "вариантов больше 100 000 000: уменьшите число значений.");
  EXPECT_EQ(form.lblCount.ForeColor(), colorRed);
  EXPECT_FALSE(form.cmdStart.Enabled());
}

TEST_F(VariantsForm, RefusesANumberOfBestOnesThatIsNone) {
  OpenSmall();
  for (const char* text : {"0", "10001", "пять", ""}) {
    form.txtBest.SetText(text);
    EXPECT_TRUE(form.lblBestFault.Visible()) << text;
    EXPECT_FALSE(form.cmdStart.Enabled()) << text;
  }
  form.txtBest.SetText("3");
  EXPECT_FALSE(form.lblBestFault.Visible());
  EXPECT_TRUE(form.cmdStart.Enabled());
}

TEST_F(VariantsForm, SaysHowManyOfManyTheTableHolds) {
  OpenSmall();
  // 1,001 heights and 1,001 spans, two panel counts: 2,004,002.
  Write(AxisName::Height, "1:2:0.001");
  Write(AxisName::Span, "20:30:0.01");
  Tick(AxisName::Span, true);
  const std::string text = form.lblCount.Caption();
  EXPECT_TRUE(text.starts_with("Вариантов: 2,004,002, примерно ")) << text;
  EXPECT_TRUE(
      text.ends_with(". В таблице и на графике - первые 200,000, лучшие и фронты - из "
                     "всех."))
      << text;
  EXPECT_TRUE(form.cmdStart.Enabled());
}

TEST_F(VariantsForm, TakesNoNewsAndAppliesNothingBeforeAStudyIsStarted) {
  OpenSmall();
  const std::string progress = form.lblProgress.Caption();
  form.TakeNews();
  form.cmdCancel_Click();
  form.cmdApply_Click();
  EXPECT_EQ(form.lblProgress.Caption(), progress);
  EXPECT_FALSE(form.IsRunning());
  EXPECT_TRUE(desk.TakeMessages().empty());
}

TEST_F(VariantsForm, DoesNotStartWhileWhatIsWrittenIsWrong) {
  OpenSmall();
  Write(AxisName::Height, "высокая");
  form.cmdStart_Click();
  EXPECT_FALSE(form.IsRunning());
  EXPECT_TRUE(form.List().Held().empty());
}

TEST_F(VariantsForm, NewsAfterTheEndChangeNothing) {
  OpenSmall();
  RunToTheEnd();
  const std::string progress = form.lblProgress.Caption();
  const std::size_t held = form.List().Held().size();
  form.TakeNews();
  EXPECT_EQ(form.lblProgress.Caption(), progress);
  EXPECT_EQ(form.List().Held().size(), held);
}

TEST_F(VariantsForm, ShowsTheFirstChoiceWhereTheStoredOneIsUnknown) {
  for (const char* key : {"Show", "Plot", "Colour"}) {
    desk.Outside.Settings.Set("Variants", key, "то, чего нет");
  }
  ASSERT_TRUE(form.Form_Load());
  EXPECT_EQ(form.cmbShow.ListIndex(), 0);
  EXPECT_EQ(form.cmbPlot.ListIndex(), 0);
  EXPECT_EQ(form.cmbColour.ListIndex(), 0);
}

TEST_F(VariantsForm, ShowsNoProgressBeforeAStudyIsStarted) {
  OpenSmall();
  EXPECT_EQ(form.Share(), 0);
}

TEST_F(VariantsForm, TellsWhatBrokeAStudyOff) {
  OpenSmall();
  std::atomic<bool> first{true};
  form.Moved = [&first] {
    if (first.exchange(false)) {
      throw RuntimeError(ErrorNumber::DiskFull);
    }
  };
  form.cmdStart_Click();
  while (form.IsRunning()) {
    std::this_thread::yield();
    form.TakeNews();
  }
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("cmdStart_Click", 61, "Disk full")}));
  EXPECT_TRUE(form.cmdStart.Enabled());
}

TEST_F(VariantsForm, StartsNoSecondStudyWhileOneRuns) {
  OpenSmall();
  Write(AxisName::Height, "1.5:3:0.0001");
  form.cmdStart_Click();
  WaitForNews();
  form.TakeNews();
  const std::size_t held = form.List().Held().size();
  ASSERT_GT(held, 0U);
  form.cmdStart_Click();
  // A new one would begin with an empty table.
  EXPECT_GE(form.List().Held().size(), held);
  EXPECT_TRUE(form.IsRunning());
}

TEST_F(VariantsForm, RepeatsThatOwnWeightIsInTheLoadsAlready) {
  desk.Main.lblOwnWeightTwice.SetCaption("Собственный вес, похоже, уже есть в нагрузках.");
  desk.Main.lblOwnWeightTwice.SetVisible(true);
  ASSERT_TRUE(form.Form_Load());
  EXPECT_TRUE(form.lblNotice.Visible());
  EXPECT_EQ(form.lblNotice.Caption(), "Собственный вес, похоже, уже есть в нагрузках.");
}

TEST_F(VariantsForm, TellsTheWindowWhatToDrawAnew) {
  OpenSmall();
  RunToTheEnd();
  int refreshed = 0;
  int chosen = 0;
  form.Refreshed = [&refreshed] { ++refreshed; };
  form.ChosenChanged = [&chosen] { ++chosen; };
  form.cmbPlot.Select(frmVariants::byProgib);
  EXPECT_EQ(refreshed, 1);
  form.Sort({.Column = 0, .Descending = true});
  EXPECT_EQ(refreshed, 2);
  EXPECT_EQ(chosen, 0);
  form.Choose(0);
  EXPECT_EQ(chosen, 1);
}

TEST_F(VariantsForm, DrawsMassOverDeflectionByScheme) {
  OpenSmall();
  form.cmbPlot.Select(frmVariants::byProgib);
  form.cmbColour.Select(frmVariants::byScheme);
  RunToTheEnd();
  const std::vector<PlotPoint> points = form.Points();
  ASSERT_EQ(points.size(), 6U);
  for (std::size_t place = 0; place < points.size(); ++place) {
    EXPECT_EQ(points[place].Across, form.List().Held()[place].Progib);
    EXPECT_EQ(points[place].Kind, 1);
  }
  EXPECT_EQ(form.Labels().Across, "Прогиб, м");
  EXPECT_EQ(form.Labels().Kind, "Схема");
  EXPECT_EQ(form.Front().size(), form.List().Kept(VariantFilter::FrontByProgib).size());
}

TEST_F(VariantsForm, DoesNotOpenForAProjectThatCannotBeCalculated) {
  desk.Main.imgTreloType_Click(5);
  EXPECT_FALSE(form.Form_Load());
  EXPECT_EQ(desk.TakeMessages().size(), 1U);
}

TEST_F(VariantsForm, ComputesWhatTheConsoleDoes) {
  OpenSmall();
  RunToTheEnd();
  VariantAxes axes{.Heights = {1.5, 2, 2.5}, .Panels = {8, 10}};
  axes.Schemes = {1};
  const std::vector<Variant> expected =
      AllOf(VariantSpace(desk.Main.EnteredInputs(), axes, Catalogue()));
  ASSERT_EQ(form.List().Held().size(), expected.size());
  VariantRows rows;
  for (std::size_t place = 0; place < expected.size(); ++place) {
    for (std::size_t column = 0; column < VariantTableColumns().size(); ++column) {
      EXPECT_EQ(VariantCell(form.List().Held()[place], column),
                VariantCell(rows.Of(expected[place]), column))
          << place << ", " << VariantTableColumns()[column].Caption;
    }
  }
  EXPECT_EQ(form.lblProgress.Caption().find("Посчитано 6: годится 6, "), 0U);
  EXPECT_EQ(form.Share(), 1);
}

TEST_F(VariantsForm, SortsAndFilters) {
  OpenSmall();
  Write(AxisName::Panels, "7,8,10");
  RunToTheEnd();
  ASSERT_EQ(form.List().Held().size(), 9U);
  const std::size_t mass = VariantTableColumns().size() - 6;
  ASSERT_EQ(VariantTableColumns()[mass].Caption, "Масса, т");
  for (const bool descending : {false, true}) {
    form.Sort({.Column = mass, .Descending = descending});
    const std::vector<const VariantRow*>& shown = form.List().Shown();
    for (std::size_t place = 1; place < 6; ++place) {
      EXPECT_TRUE(descending ? shown[place]->Mass <= shown[place - 1]->Mass
                             : shown[place]->Mass >= shown[place - 1]->Mass);
    }
    // Seven panels are impossible: without a mass they stand at the end.
    EXPECT_EQ(shown[6]->Number, 0U);
    EXPECT_EQ(shown[8]->Number, 6U);
  }
  form.cmbShow.Select(static_cast<Long>(VariantFilter::Passing));
  EXPECT_EQ(Shown().size(), 6U);
  form.cmbShow.Select(static_cast<Long>(VariantFilter::All));
  form.txtFilter.SetText("НЕ бывает");
  form.Sort({});
  EXPECT_EQ(Shown(), (Numbers{0, 3, 6}));
  EXPECT_EQ(form.lblShown.Caption(), "Показано 3 из 9");
}

TEST_F(VariantsForm, KeepsTheBestAndTheFrontsOfAll) {
  OpenSmall();
  form.txtBest.SetText("2");
  RunToTheEnd();
  LightestVariants best(2);
  VariantFront front(HeightOf);
  for (const VariantRow& row : form.List().Held()) {
    Variant variant{.Number = row.Number};
    variant.Verdict = row.Verdict;
    variant.Mass = row.Mass;
    variant.Inputs.Hight = row.Height;
    best.Take(variant);
    front.Take(variant);
  }
  const auto numbers = [](const std::vector<Variant>& kept) {
    Numbers found;
    for (const Variant& variant : kept) {
      found.push_back(variant.Number);
    }
    std::sort(found.begin(), found.end());
    return found;
  };
  form.cmbShow.Select(static_cast<Long>(VariantFilter::Best));
  EXPECT_EQ(Shown(), numbers(best.Kept()));
  form.cmbShow.Select(static_cast<Long>(VariantFilter::FrontByHeight));
  EXPECT_EQ(Shown(), numbers(front.Kept()));
  EXPECT_EQ(form.Front().size(), front.Kept().size());
  EXPECT_EQ(form.Points().size(), 6U);
}

TEST_F(VariantsForm, CancelKeepsWhatIsComputed) {
  OpenSmall();
  Write(AxisName::Height, "1.5:3:0.0001");
  form.cmdStart_Click();
  ASSERT_TRUE(form.IsRunning());
  EXPECT_FALSE(form.cmdStart.Enabled());
  WaitForNews();
  form.TakeNews();
  form.cmdCancel_Click();
  while (form.IsRunning()) {
    WaitForNews();
    form.TakeNews();
  }
  const std::size_t held = form.List().Held().size();
  EXPECT_GT(held, 0U);
  EXPECT_LT(held, 30'002U);
  EXPECT_EQ(form.lblProgress.Caption().find("Прервано: посчитано "), 0U);
  EXPECT_TRUE(form.cmdStart.Enabled());
  EXPECT_FALSE(form.cmdCancel.Enabled());
}

TEST_F(VariantsForm, ClosingEndsTheStudyAndKeepsWhatIsComputed) {
  OpenSmall();
  Write(AxisName::Height, "1.5:3:0.0001");
  form.cmdStart_Click();
  WaitForNews();
  form.Form_Unload();
  EXPECT_FALSE(form.IsRunning());
  const std::size_t held = form.List().Held().size();
  EXPECT_GT(held, 0U);
  ASSERT_TRUE(form.Form_Load());
  EXPECT_EQ(form.List().Held().size(), held);
}

TEST_F(VariantsForm, GoesWhileItRuns) {
  frmVariants other(desk.Outside.Bundle(), desk.Main);
  ASSERT_TRUE(other.Form_Load());
  other.Axes[AxisName::Height].Values.SetText("1.5:3:0.0001");
  other.cmdStart_Click();
  EXPECT_TRUE(other.IsRunning());
}

TEST_F(VariantsForm, AppliedVariantsAreCalculatedToTheirFigures) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const bool ownWeight : {false, true}) {
      desk.Main.imgTreloType_Click(scheme);
      Choose(desk.Main.cmbPanelNum, "10");
      desk.Main.chkOwnWeight.SetChecked(ownWeight);
      desk.Main.chkProgib.SetChecked(true);
      for (double& load : desk.Main.Model.Inputs.Loads.UpDistForce) {
        load = 0.6;
      }
      // It puts own weight into the loads, which is no load of the user's.
      desk.Main.tabMain.SetTab(2);
      desk.Main.cmdCalculate_Click();
      OpenSmall();
      Tick(AxisName::Upper, true);
      Write(AxisName::Upper, "1/1,2/1,11/14");
      // Single angles are too slender for a lower chord that is held at its ends alone.
      Write(AxisName::Lower, "11/14");
      Write(AxisName::Diagonals, "2/2");
      Write(AxisName::SupportDiagonals, "2/2");
      form.chkOpinion.SetChecked(false);
      RunToTheEnd();
      int applied = 0;
      for (std::uint64_t number = 0; number < 18; ++number) {
        const VariantRow row = *form.List().Find(number);
        if (!row.IsPossible() || row.Reason->find("чередуются") != std::string::npos) {
          continue;
        }
        ++applied;
        form.Choose(number);
        form.cmdApply_Click();
        ASSERT_EQ(desk.TakeMessages(), Messages());
        EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
        desk.Main.cmdCalculate_Click();
        const std::string what =
            "scheme " + std::to_string(scheme) + ", variant " + std::to_string(number);
        const Calculation& last = desk.Main.Model.Last;
        constexpr double rounding = 1e-9;
        EXPECT_NEAR(last.CheckData.Mass, row.Mass, rounding) << what;
        ASSERT_TRUE(last.Progib.has_value()) << what;
        EXPECT_NEAR(last.Progib->Value, row.Progib, rounding) << what;
        for (const ElementGroupRow& group : elementGroups) {
          if (group.Group != ElementGroup::Stoyka || HasVerticals(scheme)) {
            EXPECT_NEAR(LargestUse(last.CheckData.*group.Block),
                        row.Groups[static_cast<std::size_t>(group.Place) - 1].Use, rounding)
                << what << ", " << group.Name;
          }
        }
      }
      EXPECT_GT(applied, 5) << scheme;
    }
  }
}

TEST_F(VariantsForm, ApplyIsOneStepThatCanBeTakenBack) {
  OpenSmall();
  RunToTheEnd();
  DesignSteps steps(desk.Main);
  const DesignState before = desk.Main.State();
  int unloaded = 0;
  form.Unload = [&] { ++unloaded; };
  form.Choose(0);
  form.cmdApply_Click();
  EXPECT_EQ(unloaded, 1);
  EXPECT_EQ(desk.Main.txtHight.Text(), "1.5");
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "8");
  EXPECT_TRUE(steps.Note());
  EXPECT_FALSE(steps.Note());
  steps.mnuUndo_Click();
  EXPECT_FALSE(steps.mnuUndo.Enabled());
  EXPECT_TRUE(SameDesign(desk.Main.State(), before));
  steps.mnuRedo_Click();
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "8");
}

TEST_F(VariantsForm, AnImpossibleOneCannotBeApplied) {
  OpenSmall();
  Write(AxisName::Panels, "7");
  RunToTheEnd();
  form.Choose(0);
  EXPECT_FALSE(form.cmdApply.Enabled());
  const DesignState before = desk.Main.State();
  form.cmdApply_Click();
  EXPECT_EQ(desk.Main.State(), before);
  EXPECT_NE(form.lblChosen.Caption().find("невозможен: в схеме 1 не бывает панелей: 7"),
            std::string::npos);
}

TEST_F(VariantsForm, RemembersWhatWasWrittenAndOffersTheRestAnew) {
  OpenSmall();
  Tick(AxisName::Gap, true);
  form.Axes.chkScheme[2].SetChecked(true);
  form.chkOpinion.SetChecked(true);
  form.txtBest.SetText("25");
  form.cmbPlot.Select(frmVariants::byProgib);
  form.Form_Unload();
  desk.Main.txtLengthF.SetText("24");
  frmVariants other(desk.Outside.Bundle(), desk.Main);
  ASSERT_TRUE(other.Form_Load());
  EXPECT_EQ(other.Axes[AxisName::Height].Values.Text(), "1.5:2.5:0.5");
  EXPECT_TRUE(other.Axes[AxisName::Gap].On.Checked());
  EXPECT_EQ(other.Axes[AxisName::Span].Values.Text(), "18:30:1");
  EXPECT_TRUE(other.Axes.chkScheme[0].Checked());
  EXPECT_TRUE(other.Axes.chkScheme[2].Checked());
  EXPECT_TRUE(other.chkOpinion.Checked());
  EXPECT_EQ(other.txtBest.Text(), "25");
  EXPECT_EQ(other.cmbPlot.ListIndex(), frmVariants::byProgib);
  other.Axes.cmdOffer_Click();
  EXPECT_EQ(other.Axes[AxisName::Height].Values.Text(), "2:4:0.2");
  EXPECT_FALSE(other.Axes.chkScheme[2].Checked());
}

TEST_F(VariantsForm, KindsAreWrittenByTheirNames) {
  OpenSmall();
  const SectionKind pair{.Layout = 2, .Standard = 2};
  form.Axes.ToggleKind(AxisName::Lower, pair);
  EXPECT_EQ(form.Axes[AxisName::Lower].Values.Text(), "1/1,2/2");
  EXPECT_TRUE(form.Axes[AxisName::Lower].On.Checked());
  EXPECT_TRUE(form.Axes.HasKind(AxisName::Lower, pair));
  form.Axes.ToggleKind(AxisName::Lower, pair);
  EXPECT_EQ(form.Axes[AxisName::Lower].Values.Text(), "1/1");
}

TEST_F(VariantsForm, SavesTableAndPlot) {
  OpenSmall();
  RunToTheEnd();
  desk.Outside.Dialogs.Names = {"/table.csv", "/plot.svg", "/plot.png", ""};
  form.Sort({.Column = 0, .Descending = true});
  form.mnuSaveCsv_Click();
  const std::string table = desk.Outside.Files.Content["/table.csv"];
  EXPECT_EQ(table, CommaSeparated(frmVariants::TableOf(form.List().Shown()), form.Locale()));
  EXPECT_NE(table.find("\r\n6,1,"), std::string::npos);
  form.mnuSaveSvg_Click();
  EXPECT_EQ(desk.Outside.Files.Content["/plot.svg"],
            PlotAsSvg(form.Points(), form.Front(), form.Labels()));
  form.mnuSavePng_Click([] { return std::string("picture"); });
  EXPECT_EQ(desk.Outside.Files.Content["/plot.png"], "picture");
  const int writes = desk.Outside.Files.Writes;
  form.mnuSaveCsv_Click();
  EXPECT_EQ(desk.Outside.Files.Writes, writes);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  desk.Outside.Dialogs.Names = {"/full.csv"};
  desk.Outside.Files.Refused["/full.csv"] = ErrorNumber::DiskFull;
  form.mnuSaveCsv_Click();
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("mnuSaveCsv_Click", 61, "Disk full")}));
}

}  // namespace

}  // namespace trelonit::test
