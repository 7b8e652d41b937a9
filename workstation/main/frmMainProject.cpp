#include "platform/errors/Guard.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/FileNames.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/design/modUtility.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

namespace {

constexpr const char* dialogTitle = "Укажите имя нового файла сохранения параметров";
constexpr const char* projectDescription = "trelo save files";

}  // namespace

bool frmMain::SaveParam_Click() {
  return SaveTo([this] {
    return ShowSaveDialog(dialogTitle, projectExtension, projectDescription, services_);
  });
}

bool frmMain::SaveProject(const std::string& name) {
  return SaveTo([&] { return MayReplace(name, services_) ? name : std::string(); });
}

bool frmMain::SaveTo(const std::function<std::string()>& nameOfFile) {
  bool saved = false;
  Guard(services_.Messages, "Save comand", [&] {
    const std::string name = nameOfFile();
    if (name.empty() || name == " ") {
      services_.Messages.Show({.Text = "Сохранение отменено !"});
      return;
    }
    saved = WriteApplParameters(name, CollectProject(), services_);
  });
  return saved;
}

ProjectRecord frmMain::CollectProject() const {
  ProjectRecord record;
  static_cast<LoadArrays&>(record) = Model.Loads;
  record.TreloType = static_cast<Integer>(Model.TreloData.TreloType);
  record.UpPoyasBrace = Model.TreloData.UpPoyasBrace;
  record.DownPoyasBrace = Model.TreloData.DownPoyasBrace;
  record.LengthF = Number(txtLengthF);
  record.Hight = Number(txtHight);
  record.LenOporn = Number(txtLenOporn);
  record.PanelNum = RoundToLong(ParseNumber(cmbPanelNum.Text(), services_.Locale));
  if (record.LenOporn == 0) {
    record.LenOporn = Real(record.LengthF) / record.PanelNum;
  }
  record.SteelName = lblStillName.Caption();
  record.Ry = Number(txtRy);
  record.Density = Number(txtDensitSteel);
  record.ModulYung = Number(txtModulYung);
  record.LimitFlex = Number(txtLimitFlex);
  record.Nadegnost = Number(txtNadegnost);
  record.UsloviyaRabot = Number(txtUsloviyaRabot);
  record.ProgibOn = chkProgib.Checked() ? 1 : 0;
  record.LenLim = cmbLenlim.Text();
  record.ProgibUpper = optBP.Value() ? 1 : 0;
  record.ActiveGroup = optElementSection.Selected();
  record.Sections = Model.ElementSection;
  record.DinloadOn = chkDinloadEnable.Checked() ? 1 : 0;
  record.OwnWeightOn = chkOwnWeight.Checked() ? 1 : 0;
  record.AllPanelsOn = chkAllPanels.Checked() ? 1 : 0;
  record.PForceTool = imgPForce.Marked() ? 1 : 0;
  return record;
}

bool frmMain::Restore_Click() {
  return RestoreFrom([this] {
    return ShowOpenDialog(dialogTitle, projectExtension, projectDescription, services_);
  });
}

bool frmMain::OpenProject(const std::string& name) {
  return RestoreFrom([&] { return IsThisFileExists(name, services_) ? name : std::string(); });
}

bool frmMain::RestoreFrom(const std::function<std::string()>& nameOfFile) {
  bool restored = false;
  Guard(services_.Messages, "Restore comand", [&] {
    const std::string name = nameOfFile();
    if (name.empty()) {
      services_.Messages.Show({.Text = "Указаный файл не найден ! Восстановление отменено !"});
      return;
    }
    ApplyProject(ReadApplParameters(name, Model.ProfileTypes, services_));
    restored = true;
  });
  return restored;
}

void frmMain::ApplyProject(const ProjectRecord& record) {
  imgTreloType_Click(record.TreloType);
  Model.TreloData.UpPoyasBrace = record.UpPoyasBrace;
  optUpPoyas.ClearAll();
  optUpPoyas.Select(record.UpPoyasBrace);
  Model.TreloData.DownPoyasBrace = record.DownPoyasBrace;
  optDownPoyas.ClearAll();
  optDownPoyas.Select(record.DownPoyasBrace);
  FillInputs(record);

  Model.ElementSection = record.Sections;
  ShowSectionSummary();
  // Intended: the inputs show the group of the file while the option that was set before stays
  // set. Showing a group raises the clicks of the lists, and those write to the group of the set
  // option; so the file's sections are put in once more, and their names after that.
  optElementSection_Click(record.ActiveGroup);
  Model.ElementSection = record.Sections;
  ShowSectionSummary();

  chkDinloadEnable.SetChecked(record.DinloadOn != 0);
  chkOwnWeight.SetChecked(record.OwnWeightOn != 0);
  Model.Loads = static_cast<const LoadArrays&>(record);
  // Own weight that was saved inside the loads stays there as if the user had entered it.
  ForgetOwnWeight(Model);
  takenSections_.reset();
  ChooseLoadTool(record.PForceTool != 0);
  // Before the chord changes too: its click shows loads for which there must be marks.
  RefreshLoadPreview();
  tglUpPoyas.SetValue(true);
  tglDwnPoyas.SetValue(false);
  RefreshLoadPreview();
  if (record.PForceTool == 0) {
    chkAllPanels.SetChecked(record.AllPanelsOn != 0);
  }
  FindOwnWeightInside();
  // The geometry of the file is checked and taken on the way to the last tab, as if it had just
  // been entered. Staying there would calculate the new loads on the old truss.
  tabMain.SetTab(0);
}

void frmMain::ShowSectionSummary() {
  for (Long option = 1; option <= groupCount; ++option) {
    const SectionRec& section = Model.ElementSection[PlaceOfOption(option)];
    lblProfilName[option].SetCaption(section.Profile.Name.Trimmed());
    imgProfileSec[option].Show(imgProfileSecSelect[section.Layout].Shown());
  }
}

void frmMain::FillInputs(const ProjectRecord& record) {
  const auto put = [this](TextBox& box, double value, const char* fallback) {
    box.SetText(value > 0 ? NumberToText(value, services_.Locale) : fallback);
  };
  put(txtLengthF, record.LengthF, "20");
  put(txtHight, record.Hight, "1.5");
  // Intended: another count than at start-up.
  cmbPanelNum.SetText(record.PanelNum > 1 ? std::to_string(record.PanelNum) : "12");
  put(txtLenOporn, record.LenOporn, "");
  lblStillName.SetCaption(record.SteelName);
  put(txtRy, record.Ry, "240");
  if (!(record.Ry > 0)) {
    // The first letter is a Latin C, as in every report so far.
    lblStillName.SetCaption("Cталь Вст3");
  }
  put(txtModulYung, record.ModulYung, "210000");
  put(txtDensitSteel, record.Density, "7.850");
  put(txtNadegnost, record.Nadegnost, "1");
  put(txtUsloviyaRabot, record.UsloviyaRabot, "0.9");
  put(txtLimitFlex, record.LimitFlex, "150");
  chkProgib.SetChecked(record.ProgibOn != 0);
  if (chkProgib.Checked()) {
    cmbLenlim.SetText(record.LenLim);
    optBP.SetValue(record.ProgibUpper != 0);
    optNP.SetValue(record.ProgibUpper == 0);
  }
}

}  // namespace trelonit
