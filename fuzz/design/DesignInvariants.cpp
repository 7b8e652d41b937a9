#include "fuzz/design/DesignInvariants.h"

#include <optional>

#include "analysis/modMaxProgib.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/host/DrawingPicture.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "drawing/scheme/modACADExport.h"
#include "fuzz/design/DesignSource.h"
#include "fuzz/support/FuzzWorld.h"
#include "fuzz/support/ShippedCatalogue.h"
#include "workstation/design/OpinionSelection.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/design/ProjectFile.h"
#include "workstation/report/ReportAppendix.h"
#include "workstation/results/ResultLists.h"

namespace trelonit::fuzz {

namespace {

/// All that the program does with a design, in its order. A step that fails by a run-time error is
/// left, as the program leaves it, and the next one runs on what there is.
class Work {
 public:
  explicit Work(const DesignModel& model)
      : inputs_(model.Inputs),
        design_(model.ToCalculate()),
        numbers_(CheckNumbersOf(model.Inputs)),
        few_(model.Accepted.PanelNum <= DesignSource::fewPanels) {}

  std::string Complaint(bool select, bool draw) {
    Calculate();
    if (few_) {
      MayFail([&] { FindDeflection(); });
    }
    MayFail([&] { ShowLists(); });
    MayFail([&] { FormOpinion(); });
    MayFail([&] { WriteWholeReport(); });
    MayFail([&] {
      OwnWeightInside(calculation_.TreloData, calculation_.ElementSection, numbers_.Density);
    });
    MayFail([&] { ProjectText(inputs_, locale_); });
    if (draw) {
      Draw();
    }
    if (select && few_) {
      MayFail([&] { Look(SelectSections(calculation_, ShippedCatalogue(), told_)); });
      MayFail([&] {
        Look(SelectByOpinion(design_, ShippedCatalogue(), numbers_, inputs_.OwnWeightOn != 0));
      });
    }
    return complaint_.empty() ? ComplaintAboutMessages(told_) : complaint_;
  }

 private:
  void Calculate() {
    calculation_ = TakeValue(trelonit::Calculate(design_, numbers_), told_);
    MayFail([&] {
      if (inputs_.OwnWeightOn != 0 &&
          PutOwnWeight(design_.TreloData, design_.OwnWeight, OwnWeightPerMetreOf(calculation_))) {
        calculation_ = TakeValue(trelonit::Calculate(design_, numbers_), told_);
      }
    });
  }

  void FindDeflection() {
    const double deflection =
        TakeValue(CalcProgib(calculation_.TreloData, calculation_.TreloResult,
                             calculation_.CheckData, inputs_.ProgibUpper != 0, numbers_.E),
                  told_);
    calculation_.Progib =
        JudgeProgib(deflection, calculation_.TreloData.LengthF, inputs_.LenLim, locale_);
    for (const std::string& line : ProgibLines(*calculation_.Progib, locale_)) {
      Show(line);
    }
  }

  void ShowLists() {
    BuildBars(calculation_);
    BuildUse(calculation_);
    RowsOverLimit(calculation_);
    for (const Grid::Row& row : BuildUtilisationGrid(calculation_, locale_)) {
      for (const std::string& cell : row) {
        Show(cell);
      }
    }
    for (const std::string& line : BuildForceList(calculation_, locale_)) {
      Show(line);
    }
  }

  void FormOpinion() {
    opinion_ = FormSecondOpinion(calculation_, {}, locale_);
    Show(opinion_.Figures.Refusal);
    for (const Finding& finding : opinion_.Findings) {
      Show(finding.Text);
    }
    for (const Explanation& explanation : opinion_.Explanations()) {
      Show(explanation.Substitution);
      for (const ExplanationStep& step : explanation.Steps) {
        Show(step.Substitution);
      }
    }
    for (const ResultRow& row : BuildResultRows(calculation_, opinion_.Figures, locale_)) {
      Show(row.Opinion);
    }
  }

  void WriteWholeReport() {
    const ReportSink sink = [this](const ReportPiece& piece) { Show(piece.Text()); };
    MayFail([&] {
      WriteReport(calculation_,
                  {.SteelName = inputs_.SteelName,
                   .ProgibOn = inputs_.ProgibOn != 0,
                   .ProgibUpper = inputs_.ProgibUpper != 0,
                   .LenLim = inputs_.LenLim},
                  locale_, sink);
    });
    MayFail([&] {
      if (calculation_.Progib) {
        WriteReportProgib(*calculation_.Progib, locale_, sink);
      }
    });
    MayFail([&] { WriteReportAdditional(calculation_, locale_, sink); });
    WriteReportAppendix(calculation_.CheckData, opinion_, locale_, sink);
  }

  void Draw() {
    BuiltInHost host;
    BuiltInHostAutomation automation(host);
    test::RecordingMessages messages;
    Label panel;
    ACADExport(automation, messages, locale_,
               {calculation_.TreloData, calculation_.TreloResult, calculation_.ElementSection},
               panel)
        .mnuFileAutoCAD_Click();
    told_.insert(told_.end(), messages.Shown.begin(), messages.Shown.end());
    const std::shared_ptr<Drawing> drawing = host.ActiveDocument();
    if (drawing == nullptr) {
      return;
    }
    MayFail([&] { WriteDxf(*drawing); });
    MayFail([&] { BoundsOf(*drawing); });
    for (const DrawingEntity& entity : drawing->ModelSpace) {
      if (const auto* text = std::get_if<DrawingText>(&entity)) {
        Show(text->Text);
      } else if (const auto* dimension = std::get_if<DrawingDimension>(&entity)) {
        MayFail([&] { Show(DimensionText(*dimension)); });
      }
    }
  }

  /// A size that the search has put in stands in the catalogue; one of a damaged project stays.
  void Look(const SelectionProposal& proposal) {
    for (Long place = 1; place <= sectionCount; ++place) {
      const SectionRec& section = proposal.Sections[place];
      if (section.SizeIdx != design_.ElementSection[place].SizeIdx &&
          !(section.Profile == ShippedCatalogue()[section.TypeIdx].Rec[section.SizeIdx])) {
        complaint_ = "a selection proposes what is not in the catalogue";
      }
    }
  }

  void Show(const std::string& text) {
    if (complaint_.empty()) {
      complaint_ = ComplaintAboutShown(text);
    }
  }

  DesignInputs inputs_;
  Design design_;
  CheckNumbers numbers_;
  bool few_;
  NumberLocale locale_;
  Calculation calculation_;
  SecondOpinion opinion_;
  Messages told_;
  std::string complaint_;
};

}  // namespace

std::string ComplaintAboutDesign(std::string_view bytes) {
  return ComplaintUnless([&] {
    ByteSource source(bytes);
    const std::uint8_t what = source.Byte();
    const DesignSource design(source);
    return Work(design.Model).Complaint((what & 1U) != 0, (what & 2U) != 0);
  });
}

}  // namespace trelonit::fuzz
