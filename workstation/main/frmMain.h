#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/SectionLayouts.h"
#include "checks/frmParamerty.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"
#include "workstation/design/DesignModel.h"
#include "workstation/design/DesignState.h"
#include "workstation/design/ElementGroups.h"
#include "workstation/design/ProjectFile.h"
#include "workstation/design/SectionSummary.h"
#include "workstation/design/Selection.h"
#include "workstation/live/GeometryFaults.h"
#include "workstation/live/LiveResult.h"
#include "workstation/main/LoadPreview.h"
#include "workstation/main/RunningCaption.h"
#include "workstation/report/ReportLines.h"
#include "workstation/results/ResultLists.h"
#include "workstation/sketch/TrussSketch.h"

namespace trelonit {

/// The one main form: the model of a design, its inputs and its commands. Controls are public
/// state, handlers are named after control and event; nothing here knows a window.
class frmMain {
 public:
  /// How the form reaches what it opens, set by whoever owns it all. A window that is not there
  /// (yet) leaves its command disabled.
  struct Openers {
    std::function<void(const ResultLists&)> ShowKoeffOfUse;
    std::function<void()> ShowDataManager;
    std::function<void()> ShowParamerty;
    std::function<void()> ShowSteel;
    std::function<void()> ShowAbout;
    /// Shows what automatic selection offers; gives the proposal that the user takes, if any.
    std::function<std::optional<SelectionProposal>(const SelectionOffer&)> ShowSearch;
    /// The report: a new one begins with what drawings are made from, its pieces follow, then its
    /// editor is shown.
    std::function<void(const Calculation&)> BeginOtchet;
    ReportSink AppendOtchet;
    std::function<void()> ShowOtchet;
    /// Studies of the design; without their window the menu has no entry for them.
    std::function<void()> ShowVariants;
    std::function<void()> EndProgram;
  };

  /// Who keeps the project's file round the commands that save and restore it. Nobody where the
  /// form stands alone.
  struct ProjectKeeper {
    /// Whether the design may give way to another one: nothing of it is lost, or the user says so.
    std::function<bool()> MayLeave;
    /// Whether the file of this name may be written; what forbids it has been told.
    std::function<bool(const std::string& name)> MayWrite;
    std::function<void(const std::string& name)> Saved;
    std::function<void(const std::string& name)> Opened;
  };

  /// An entry of a menu, or a menu with entries.
  struct MenuItem {
    std::string Name;
    std::string Caption;
    bool Enabled = true;
    std::function<void()> Click;
    std::vector<MenuItem> Items;
  };

  frmMain(Services services, Openers openers);
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;
  ~frmMain() = default;

  DesignModel Model;
  ProjectKeeper Keeper;

  // --- start, tabs, menus (frmMain.cpp)
  void Form_Load();
  void tabMain_Click(Integer previousTab);
  std::vector<MenuItem> Menus();
  /// The entry with this name; one without a command, disabled, where there is none.
  MenuItem FindMenuItem(const std::string& name);
  const NumberLocale& Locale() const { return services_.Locale; }
  bool HasSteelWindow() const { return static_cast<bool>(openers_.ShowSteel); }
  void mnuCalc_Click();
  void mnuSearch_Click();
  void mnuOtchet_Click();
  void mnuVariants_Click();
  void mnuProfile_Click();
  void optio_Click();
  void cmdSteelGet_Click();
  void UserHelp_Click();
  void Exit_Click();
  void tmrRuningString_Timer();
  void Timer1_Timer();

  // --- scheme and geometry (frmMainGeometry.cpp)
  void imgTreloType_Click(Long scheme);
  void cmbPanelNum_Click();
  void txtLengthF_LostFocus();
  void chkProgib_Click();
  void WritePanelNumEven(Long first);
  void WritePanelNumAll(Long first);
  void WriteLenLim();
  void WriteGdist();
  /// The one gate that copies the geometry into the analysis input. What it refuses leaves the
  /// input as it was and brings the first tab up.
  void CheckGeometry();

  // --- sections (frmMainSections.cpp)
  void optElementSection_Click(Long option);
  void imgProfileSecSelect_Click(Long layout);
  void cmbTypeProfile_Click();
  void cmbSectType_Click();
  void cmbGdist_Click();
  void FillProfileLists(Long layout);

  // --- beside the sections (frmMainSectionView.cpp)
  /// The section of the group whose lists are shown.
  struct ShownSection {
    GroupOption Group = optionUpPoyas;
    /// Nothing where the dimensions of the record make no section.
    std::optional<SectionDrawing> Drawing;
    /// Its figures; none for a section without an area.
    std::vector<SectionFact> Facts;
    NumberLocale Locale;
  };
  ShownSection DescribeSection();
  /// Called after the shown section may have become another one.
  std::function<void()> SectionChanged;
  /// Gives other groups the section of the chosen one.
  void cmdCopySection_Click(const std::vector<GroupOption>& to);
  /// The groups that may be given it: all others that the scheme has.
  std::vector<GroupOption> CopyTargets() const;
  /// Places in the list of the sizes that a typed text finds, the best first.
  std::vector<Long> FindSizes(const std::string& query) const;
  /// Subscript of the last size with this name; 1 after a warning where there is none.
  Long FindSizeIndex(Long typeIdx, const std::string& name);

  // --- loads (frmMainLoads.cpp)
  void ReDimLoadArrays();
  void FillKnotListP(bool upper);
  void FillKnotListQ(bool upper);
  void RefreshLoadPreview();
  void imgPForce_Click();
  void imgDistForce_Click();
  void cmbKnotNum_Click();
  void tglUpPoyas_Click();
  void tglDwnPoyas_Click();
  void chkAllPanels_Click();
  void cmdAddForce_Click();
  void cmdClearLoads_Click();
  /// Puts other loads in the place of all, as a table of them does.
  void ReplaceLoads(const LoadArrays& loads);
  void chkOwnWeight_Click();

  // --- commands (frmMainCalculate.cpp)
  void cmdCalculate_Click();
  void cmdCalcAndSelect_Click();
  void cmdShowResults_Click();
  /// The same for whoever has no editor: calculates and hands the report over. Returns whether it
  /// came to its end; what kept it from there has been shown.
  bool MakeReport(const ReportSink& sink);
  /// Brings the record of the inputs to what they show, and gives it. Raises 6 for a panel count
  /// that is no number of panels.
  const DesignInputs& ReadInputs();
  /// A copy of what the inputs show at this moment; the record stays as it was last read. Raises as
  /// ReadInputs does.
  DesignInputs EnteredInputs() const;

  // --- beside the inputs and the results (frmMainOpinion.cpp)
  /// The truss as the boxes have it, whatever the geometry check said of it.
  TreloData ShownGeometry();
  /// Subtracts the own weight that a restored project had in its loads already.
  void cmdTakeOwnWeightOut_Click();
  /// Leaves it there: it is the user's own load.
  void cmdKeepOwnWeight_Click();
  /// Takes the own weight of the last calculation out of the loads: a project that is saved without
  /// it is calculated as this one was. Does nothing where none is inside.
  void WithdrawOwnWeightFromLoads();

  // --- the whole design, to be kept and shown again (frmMainState.cpp)
  /// What the form holds and shows at present.
  DesignState State();
  /// Shows a design that was kept, with all that follows from it, on the tab that the place names.
  /// It is no work of the user's: no handler runs and nothing is told. Sizes that the geometry
  /// check would let through are taken; with others the first tab is up.
  void ShowState(const DesignState& state, const DesignPlace& place);
  /// How many of the user's loads the handlers have dropped since this was last asked, because
  /// their joints and panels are gone or the loads were cleared.
  Long TakeLoadsLost();

  // --- while the design is being entered (frmMainLive.cpp)
  /// What has been entered, calculated on a copy of it: nothing is told and nothing changes.
  LiveResult CalculateLive() const;
  /// The truss of the boxes to scale, or what is wrong with them.
  TrussSketch SketchTruss(const SketchCanvas& canvas) const;
  /// What is wrong with the geometry of the boxes.
  std::vector<GeometryFault> GeometryFaults() const;
  /// Called after anything has changed that a result depends on, or may have.
  std::function<void()> DesignTouched;
  /// Called after another geometry has been entered.
  std::function<void()> GeometryChanged;

  // --- project files (frmMainProject.cpp)
  // Each returns whether the command was carried out.
  bool SaveParam_Click();
  bool Restore_Click();
  // The same with a name that is known, without a dialog; the messages are the commands'.
  bool SaveProject(const std::string& name);
  bool OpenProject(const std::string& name);
  /// Saves over the file of this name without a question.
  bool ReplaceProject(const std::string& name);

  // --- controls
  Label Form;
  TabControl tabMain;
  BoundedArray<Label> StatusBarMain{1, 6};
  Timer tmrRuningString;
  Timer Timer1;

  BoundedArray<Image> imgTreloType{1, 10};
  Image imgMain;
  TextBox txtLengthF;
  TextBox txtHight;
  TextBox txtLenOporn;
  ComboBox cmbPanelNum;
  OptionGroup optUpPoyas{4};
  OptionGroup optDownPoyas{4};
  /// Length out of the plane by bracing option, for the truss as it stands in the boxes: what the
  /// calculation takes, red where that is less than what the caption means.
  struct BracingLength {
    Label Taken;
    Label ByCaption;
  };
  BoundedArray<BracingLength> lblUpPoyasLength{1, 4};
  BoundedArray<BracingLength> lblDownPoyasLength{1, 4};
  CheckBox chkProgib;
  ComboBox cmbLenlim;
  OptionButton optBP;
  OptionButton optNP;
  TextBox txtProgib;
  Label lblProgib;
  Image imgLenLimoverflow;

  OptionGroup optElementSection{groupCount};
  BoundedArray<Image> imgProfileSecSelect{1, 11};
  ComboBox cmbKatalog;
  ComboBox cmbTypeProfile;
  ComboBox cmbSectType;
  ComboBox cmbGdist;
  /// Why the figures of the shown section are not those of a published table; hidden where they
  /// are.
  Label lblSectionSource;
  Image imgProfView;
  BoundedArray<Image> imgProfileSec{1, groupCount};
  BoundedArray<Label> lblProfilName{1, groupCount};
  /// The chosen scheme, as imgMain shows it.
  Image imgPrevSchem;
  Line linUpPoyas;
  Line linDownPoyas;
  BoundedArray<Line> linRaskos{1, 2};
  BoundedArray<Line> linStoyka{1, 3};
  Line linOpornRaskos;

  Image imgPForce;
  Image imgDistForce;
  Image imgLoadPreview;
  OptionButton tglUpPoyas;
  OptionButton tglDwnPoyas;
  ComboBox cmbKnotNum;
  TextBox txtForceVal;
  CheckBox chkAllPanels;
  CheckBox chkOwnWeight;
  /// That own weight seems to be inside the loads of the restored project; hidden otherwise.
  Label lblOwnWeightTwice;
  CheckBox chkDinloadEnable;
  LoadPreview Preview;
  /// Called after the schematic of the loads has changed.
  std::function<void()> PreviewChanged;
  /// Called beside it: the loads, their places or the chosen one may be others.
  std::function<void()> LoadsChanged;

  Label lblStillName;
  TextBox txtRy;
  TextBox txtUsloviyaRabot;
  TextBox txtNadegnost;
  /// Edited in a window of its own.
  SteelTexts Steel;

  /// Whether a report ends with the second opinion.
  bool ReportAppendix = false;

 private:
  void SetStartDefaults();
  void LoadCatalogue();
  void ConnectEvents();
  /// Every input that a result depends on tells of itself.
  void WatchInputs();
  void TouchDesign();
  /// The one place where the texts of the inputs become numbers.
  void PutInputs(DesignInputs& inputs) const;

  double Number(const TextBox& box) const;
  Long PanelNum() const;
  void FillPanelNum(Long first, Long step);
  /// The large picture. Raises for a scheme that has none.
  void ShowScheme(Long scheme);
  void RefreshHopt();
  void ShowVerticals(bool shown);
  /// Whether the end panels have a length of their own.
  void ShowEndPanels(bool own);
  /// What the geometry check does with sizes that are fine, and nothing for others: false.
  bool TakeGeometry();
  void WarnProportions();

  void ColourGroup(Long option);
  Long SelectedGroup() const { return optElementSection.Selected(); }
  SectionRec& SelectedSection();
  /// What is shown of the geometry beside its boxes.
  void RefreshGeometry();
  void RefreshBracingLengths();
  void RefreshSectionSource(const SectionRec& section);
  /// The lists show the section of this group now.
  void ShowSectionOf(Long option);
  /// Looks for it in the loads as they stand.
  void FindOwnWeightInside();
  void SetOwnWeightInside(std::optional<double> perMetre);
  void RefreshOwnWeightTwice();
  /// The own weight that would be counted twice, tonnes per metre.
  std::optional<double> DoubledOwnWeight() const;
  SecondOpinion OpinionOfLast() const;
  void MarkLayout(Long layout);
  void ShowLayout(const SectionLayout& layout);
  void FillSizes(Long typeIdx);
  void WithdrawOwnWeightOfOldSection();

  void CountLostLoads(const LoadArrays& before);
  void FillKnotList(bool upper);
  void FillList(Long last);
  /// Takes own weight out of the loads; false, with a message, where no amount is inside.
  bool TakeOwnWeightOut();
  /// Marks the tool; its picture and the box that only counts with the other one follow it.
  void ChooseLoadTool(bool nodal);
  void BuildChord(bool upper);
  void ColourChosenMark();
  void ShowMarksOfShownChord();
  void NotifyPreview();

  /// On the tab with the commands; false where the geometry was refused on the way.
  bool GoToCommands();
  /// Analysis, check and the own weight; what all three commands begin with.
  void CalculateModel();
  /// The deflection of the last calculation where it is asked for.
  void CalculateProgib();
  /// The lists, the deflection and the results window; what the first two end with.
  void ShowResults();
  /// All pieces of the report in order.
  void WriteOtchet(const ReportSink& sink);
  std::optional<SelectionProposal> ProposeByOpinion();
  void TakeProposal(const SelectionProposal& proposal);
  /// The size list as the selection that was taken over has it.
  void ShowTakenSize();
  void ShowProgib(const ProgibResult& progib);

  DesignInputs CollectProject();
  // The one way out and the one way in. The routine gives the name of the file, or nothing where
  // there is none.
  bool SaveTo(const std::function<std::string()>& nameOfFile);
  bool RestoreFrom(const std::function<std::string()>& nameOfFile);
  void ApplyProject(const DesignInputs& record);
  /// Sizes and pictures of all groups as the model has them.
  void ShowSectionSummary();
  void ShowSection(Long option);
  /// After a restore that did not come to its end.
  void ShowWhatBrokeOff();
  void ShowInputs(const DesignInputs& record);

  void ShowGeometryOf(const DesignState& state);
  void ShowTextsOf(const DesignState& state);
  void ShowSectionsOf(Long option);
  void ShowLoadsAgain();

  Services services_;
  Openers openers_;
  RunningCaption runningCaption_;
  Long waitCounter_ = 1;
  // While a state is shown the events of the controls are nobody's work.
  bool showing_ = false;
  Long loadsLost_ = 0;
  // The group whose section the lists show; after a restore it need not be the chosen one.
  Long shownGroup_ = optionUpPoyas;
  // Own weight that the loads of the restored project seem to hold, until the user has decided.
  std::optional<double> ownWeightInside_;
  // The sections of the last proposal that was taken over.
  std::optional<SectionArray> takenSections_;
};

}  // namespace trelonit
