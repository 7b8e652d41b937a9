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

bool frmMain::ReplaceProject(const std::string& name) {
  return SaveTo([&] { return name; });
}

bool frmMain::SaveTo(const std::function<std::string()>& nameOfFile) {
  bool saved = false;
  Guard(services_.Messages, "Save comand", [&] {
    const std::string name = nameOfFile();
    if (name.empty() || name == " ") {
      services_.Messages.Show({.Text = "Сохранение отменено !"});
      return;
    }
    if (Keeper.MayWrite && !Keeper.MayWrite(name)) {
      return;
    }
    saved = WriteApplParameters(name, CollectProject(), services_);
    if (saved && Keeper.Saved) {
      Keeper.Saved(name);
    }
  });
  return saved;
}

const DesignInputs& frmMain::ReadInputs() {
  PutInputs(Model.Inputs);
  return Model.Inputs;
}

DesignInputs frmMain::EnteredInputs() const {
  DesignInputs inputs = Model.Inputs;
  PutInputs(inputs);
  return inputs;
}

void frmMain::PutInputs(DesignInputs& inputs) const {
  const auto number = [this](const std::string& text) {
    return ParseNumber(text, services_.Locale);
  };
  inputs.LengthF = number(txtLengthF.Text());
  inputs.Hight = number(txtHight.Text());
  inputs.LenOporn = number(txtLenOporn.Text());
  inputs.PanelNum = RoundToLong(number(cmbPanelNum.Text()));
  inputs.SteelName = lblStillName.Caption();
  inputs.Ry = number(txtRy.Text());
  inputs.Density = number(Steel.DensitSteel);
  inputs.ModulYung = number(Steel.ModulYung);
  inputs.LimitFlex = number(Steel.LimitFlex);
  inputs.Nadegnost = number(txtNadegnost.Text());
  inputs.UsloviyaRabot = number(txtUsloviyaRabot.Text());
  inputs.ProgibOn = chkProgib.Checked() ? 1 : 0;
  inputs.LenLim = cmbLenlim.Text();
  inputs.ProgibUpper = optBP.Value() ? 1 : 0;
  inputs.ActiveGroup = optElementSection.Selected();
  inputs.DinloadOn = chkDinloadEnable.Checked() ? 1 : 0;
  inputs.OwnWeightOn = chkOwnWeight.Checked() ? 1 : 0;
  inputs.AllPanelsOn = chkAllPanels.Checked() ? 1 : 0;
  inputs.PForceTool = imgPForce.Marked() ? 1 : 0;
}

DesignInputs frmMain::CollectProject() {
  DesignInputs record = ReadInputs();
  if (record.LenOporn == 0) {
    record.LenOporn = Real(record.LengthF) / record.PanelNum;
  }
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
  if (Keeper.MayLeave && !Keeper.MayLeave()) {
    return false;
  }
  bool restored = false;
  bool begun = false;
  Guard(services_.Messages, "Restore comand", [&] {
    const std::string name = nameOfFile();
    if (name.empty()) {
      services_.Messages.Show({.Text = "Указаный файл не найден ! Восстановление отменено !"});
      return;
    }
    const DesignInputs record = ReadApplParameters(name, Model.ProfileTypes, services_);
    begun = true;
    ApplyProject(record);
    restored = true;
    if (Keeper.Opened) {
      Keeper.Opened(name);
    }
  });
  if (begun && !restored) {
    ShowWhatBrokeOff();
  }
  return restored;
}

void frmMain::ApplyProject(const DesignInputs& record) {
  imgTreloType_Click(record.TreloType);
  Model.Inputs.UpPoyasBrace = record.UpPoyasBrace;
  optUpPoyas.ClearAll();
  optUpPoyas.Select(record.UpPoyasBrace);
  Model.Inputs.DownPoyasBrace = record.DownPoyasBrace;
  optDownPoyas.ClearAll();
  optDownPoyas.Select(record.DownPoyasBrace);
  ShowInputs(record);

  Model.Inputs.ElementSection = record.ElementSection;
  ShowSectionSummary();
  // Intended: the inputs show the group of the file while the option that was set before stays
  // set. Showing a group raises the clicks of the lists, and those write to the group of the set
  // option; so the file's sections are put in once more, and their names after that.
  optElementSection_Click(record.ActiveGroup);
  Model.Inputs.ElementSection = record.ElementSection;
  ShowSectionSummary();

  chkDinloadEnable.SetChecked(record.DinloadOn != 0);
  chkOwnWeight.SetChecked(record.OwnWeightOn != 0);
  Model.Inputs.Loads = record.Loads;
  // Own weight that was saved inside the loads stays there as if the user had entered it.
  Model.OwnWeight = {};
  // The loads before were those of another project.
  loadsLost_ = 0;
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

void frmMain::ShowWhatBrokeOff() {
  // What has come from the file is in the model, so it is shown; and the geometry, old or new, is
  // checked and taken again on the way to the commands.
  for (Long option = 1; option <= groupCount; ++option) {
    PassOver([&] { ShowSection(option); });
  }
  tabMain.SetTab(0);
}

void frmMain::ShowSectionSummary() {
  for (Long option = 1; option <= groupCount; ++option) {
    ShowSection(option);
  }
}

void frmMain::ShowSection(Long option) {
  const SectionRec& section = Model.Inputs.ElementSection[PlaceOfOption(option)];
  lblProfilName[option].SetCaption(section.Profile.Name.Trimmed());
  imgProfileSec[option].Show(imgProfileSecSelect[section.Layout].Shown());
}

void frmMain::ShowInputs(const DesignInputs& record) {
  const auto text = [this](double value, std::string fallback) {
    return value > 0 ? NumberToText(value, services_.Locale) : std::move(fallback);
  };
  txtLengthF.SetText(text(record.LengthF, "20"));
  txtHight.SetText(text(record.Hight, "1.5"));
  // Intended: another count than at start-up.
  cmbPanelNum.SetText(record.PanelNum > 1 ? std::to_string(record.PanelNum) : "12");
  txtLenOporn.SetText(text(record.LenOporn, ""));
  lblStillName.SetCaption(record.SteelName);
  txtRy.SetText(text(record.Ry, "240"));
  if (!(record.Ry > 0)) {
    // The first letter is a Latin C, as in every report so far.
    lblStillName.SetCaption("Cталь Вст3");
  }
  const SteelTexts start;
  Steel = {.ModulYung = text(record.ModulYung, start.ModulYung),
           .DensitSteel = text(record.Density, start.DensitSteel),
           .LimitFlex = text(record.LimitFlex, start.LimitFlex)};
  txtNadegnost.SetText(text(record.Nadegnost, "1"));
  txtUsloviyaRabot.SetText(text(record.UsloviyaRabot, "0.9"));
  chkProgib.SetChecked(record.ProgibOn != 0);
  if (chkProgib.Checked()) {
    cmbLenlim.SetText(record.LenLim);
    optBP.SetValue(record.ProgibUpper != 0);
    optNP.SetValue(record.ProgibUpper == 0);
  }
  RefreshHopt();
}

}  // namespace trelonit
