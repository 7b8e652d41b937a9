#include "workstation/main/frmMain.h"

#include "catalogue/modProfileData.h"
#include "platform/errors/Guard.h"
#include "platform/system/ProgramNames.h"
#include "platform/text/Text.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/design/modUtility.h"
#include "workstation/main/WaitCaption.h"

namespace trelonit {

namespace {

constexpr Integer aboutString = 101;
constexpr Integer nodalToolIcon = 102;
constexpr Integer distributedToolIcon = 103;
constexpr int captionInterval = 200;
constexpr std::size_t longestUserName = 25;

/// A window that this program does not have opens as nothing.
void Open(const std::function<void()>& opener) {
  if (opener) {
    opener();
  }
}

}  // namespace

frmMain::frmMain(Services services, Openers openers)
    : services_(std::move(services)), openers_(std::move(openers)) {
  // What the form has before it is loaded.
  Form.SetCaption(applicationTitle);
  optBP.SetValue(true);
  tglUpPoyas.SetValue(true);
  // It only shows what was calculated: nobody writes into it.
  txtProgib.SetBackColor(colorDisabledGrey);
  lblSectionSource.SetVisible(false);
  lblOwnWeightTwice.SetVisible(false);
  for (Long layout = 1; layout <= sectionLayoutCount; ++layout) {
    imgProfileSecSelect[layout].Show(
        {.From = Picture::Source::SectionLayout, .Number = static_cast<Integer>(layout)});
  }
}

double frmMain::Number(const TextBox& box) const {
  return ParseNumber(box.Text(), services_.Locale);
}

Long frmMain::PanelNum() const {
  return TextToLong(cmbPanelNum.Text(), services_.Locale);
}

void frmMain::Form_Load() {
  // The events are connected last: filling the lists with the defaults is no choice of the user.
  Guard(services_.Messages, "Form_Load", [&] {
    SetStartDefaults();
    LoadCatalogue();
    imgPForce.Show(services_.Resources.Icon(nodalToolIcon));
    imgDistForce.Show(services_.Resources.Icon(distributedToolIcon));
    ChooseLoadTool(true);
    txtForceVal.SetText("0");
    chkDinloadEnable.SetChecked(false);
    ReDimLoadArrays();
    Model.OwnWeight = {};
    chkOwnWeight.SetChecked(false);
    chkAllPanels.SetChecked(false);
    tmrRuningString.SetInterval(captionInterval);
    tmrRuningString.SetEnabled(true);
  });
  ConnectEvents();
  WatchInputs();
  RefreshGeometry();
}

void frmMain::SetStartDefaults() {
  tmrRuningString.SetEnabled(false);
  tabMain.SetTab(0);
  Model.Inputs.TreloType = 1;
  txtLengthF.SetText("20");
  txtHight.SetText("1.5");
  txtLenOporn.SetText("2");
  imgTreloType[1].SetMarked(true);
  optUpPoyas.Select(2);
  optDownPoyas.Select(2);
  Model.Inputs.UpPoyasBrace = 2;
  Model.Inputs.DownPoyasBrace = 2;
  txtNadegnost.SetText(NumberToText(1, services_.Locale));
  txtUsloviyaRabot.SetText(NumberToText(0.9, services_.Locale));
  lblStillName.SetCaption("Сталь С245 - лист от 2 до 20 мм");
  txtRy.SetText(NumberToText(240, services_.Locale));
  ShowScheme(1);
  WritePanelNumEven(4);
  cmbPanelNum.SetText("10");
  RefreshHopt();
  WriteLenLim();
  cmbLenlim.SetText("1 / 120");
  chkProgib_Click();
}

void frmMain::LoadCatalogue() {
  Model.ProfileTypes = LoadProfileTypes(services_);
  const ProfileRec& first = Model.ProfileTypes[1].Rec[1];
  for (SectionRec& section : Model.Inputs.ElementSection) {
    section = {.TypeIdx = 1, .SizeIdx = 1, .Profile = first, .Layout = 1};
  }
  cmbKatalog.AddItem("Каталог ГОСТ-овского проката ");
  cmbKatalog.Select(0);
  const SectionLayout& layout = *FindSectionLayout(1);
  for (const Long standard : layout.Standards) {
    cmbTypeProfile.AddItem(Model.ProfileTypes[standard].Name.Trimmed());
  }
  cmbTypeProfile.Select(0);
  FillSizes(layout.DefaultStandard);
  cmbSectType.Select(0);
  optElementSection.Select(optionUpPoyas);
  ColourGroup(optionUpPoyas);
  MarkLayout(layout.Number);
  for (Image& picture : imgProfileSec) {
    picture.Show(imgProfileSecSelect[layout.Number].Shown());
  }
  for (Label& name : lblProfilName) {
    name.SetCaption(cmbSectType.Text());
  }
  ShowLayout(layout);
  WriteGdist();
  cmbGdist.Select(0);
}

void frmMain::ConnectEvents() {
  // Showing a state is no work of the user's: no handler runs by it.
  const auto live = [this](auto handler) {
    return [this, handler](auto... arguments) {
      if (!showing_) {
        handler(arguments...);
      }
    };
  };
  tabMain.Click = live([this](Integer previous) { tabMain_Click(previous); });
  cmbPanelNum.Click = live([this] { cmbPanelNum_Click(); });
  for (Integer option = 1; option <= 4; ++option) {
    optUpPoyas[option].Click = live([this, option] { Model.Inputs.UpPoyasBrace = option; });
    optDownPoyas[option].Click = live([this, option] { Model.Inputs.DownPoyasBrace = option; });
  }
  chkProgib.Click = live([this] { chkProgib_Click(); });
  // The shown deflection is dropped as soon as anything that it depends on moves.
  const auto dropProgib = [this] { txtProgib.SetText(""); };
  const auto changeGeometry = [this] {
    txtProgib.SetText("");
    RefreshGeometry();
  };
  txtLengthF.Change = live(changeGeometry);
  txtHight.Change = live(changeGeometry);
  txtLenOporn.Change = live(changeGeometry);
  // The two chords share a frame: choosing one clears the other.
  optBP.Click = live([this, dropProgib] {
    optNP.SetValue(false);
    dropProgib();
  });
  optNP.Click = live([this, dropProgib] {
    optBP.SetValue(false);
    dropProgib();
  });

  for (Long option = 1; option <= groupCount; ++option) {
    optElementSection[option].Click = live([this, option] { optElementSection_Click(option); });
  }
  cmbTypeProfile.Click = live([this] { cmbTypeProfile_Click(); });
  cmbSectType.Click = live([this] { cmbSectType_Click(); });
  cmbGdist.Click = live([this] { cmbGdist_Click(); });

  cmbKnotNum.Click = live([this] { cmbKnotNum_Click(); });
  tglUpPoyas.Click = live([this] { tglUpPoyas_Click(); });
  tglDwnPoyas.Click = live([this] { tglDwnPoyas_Click(); });
  chkAllPanels.Click = live([this] { chkAllPanels_Click(); });
  chkOwnWeight.Click = live([this] { chkOwnWeight_Click(); });
}

void frmMain::tabMain_Click(Integer previousTab) {
  Guard(services_.Messages, "tabMain_Click", [&] {
    if (tabMain.Tab() <= previousTab) {
      return;
    }
    if (previousTab == schemeTab) {
      CheckGeometry();
      // A refused geometry has brought the first tab back by now.
      if (tabMain.Tab() == calculateTab) {
        RefreshLoadPreview();
      }
    } else if (previousTab == sectionTab) {
      RefreshLoadPreview();
    }
  });
}

std::vector<frmMain::MenuItem> frmMain::Menus() {
  const auto item = [](std::string name, std::string caption, std::function<void()> click) {
    const bool enabled = static_cast<bool>(click);
    return MenuItem{.Name = std::move(name),
                    .Caption = std::move(caption),
                    .Enabled = enabled,
                    .Click = std::move(click)};
  };
  // A handler of this form is offered only where the window behind it is there.
  const auto when = [](const std::function<void()>& opener, std::function<void()> handler) {
    return opener ? std::move(handler) : std::function<void()>();
  };
  std::vector<MenuItem> calculations{
      item("mnuCalc", "Вычислить", [this] { mnuCalc_Click(); }),
      item("mnuSearch", "Подобрать ...",
           openers_.ShowSearch ? [this] { mnuSearch_Click(); } : std::function<void()>()),
      item("mnuOtchet", "Отчет расчета ...",
           when(openers_.ShowOtchet, [this] { mnuOtchet_Click(); }))};
  if (openers_.ShowVariants) {
    calculations.push_back(item("mnuVariants", "Варианты ...", [this] { mnuVariants_Click(); }));
  }
  return {
      {.Name = "File",
       .Caption = "&Файл",
       .Items = {item("SaveParam", "Сохранить", [this] { SaveParam_Click(); }),
                 item("Restore", "Восстановить", [this] { Restore_Click(); }),
                 item("Exit", "Выход Alt+F4", [this] { Exit_Click(); })}},
      {.Name = "mnuCalcmain", .Caption = "Расчет", .Items = std::move(calculations)},
      {.Name = "DataBase",
       .Caption = "База данных",
       .Items = {item("mnuProfile", "Профильный прокат...",
                      when(openers_.ShowDataManager, [this] { mnuProfile_Click(); }))}},
      {.Name = "Options",
       .Caption = "&Параметры",
       .Items = {item("optio", "Па&раметры стали",
                      when(openers_.ShowParamerty, [this] { optio_Click(); }))}},
      {.Name = "Help",
       .Caption = "&Помощь",
       .Items = {item("About", "&О программе...", openers_.ShowAbout),
                 item("UserHelp", "Справка", [this] { UserHelp_Click(); })}},
  };
}

frmMain::MenuItem frmMain::FindMenuItem(const std::string& name) {
  for (const MenuItem& menu : Menus()) {
    for (const MenuItem& item : menu.Items) {
      if (item.Name == name) {
        return item;
      }
    }
  }
  return {.Name = name, .Enabled = false};
}

void frmMain::mnuCalc_Click() {
  if (GoToCommands()) {
    cmdCalculate_Click();
  }
}

void frmMain::mnuSearch_Click() {
  if (GoToCommands()) {
    cmdCalcAndSelect_Click();
  }
}

void frmMain::mnuOtchet_Click() {
  if (GoToCommands()) {
    cmdShowResults_Click();
  }
}

void frmMain::mnuVariants_Click() {
  if (GoToCommands()) {
    openers_.ShowVariants();
  }
}

bool frmMain::GoToCommands() {
  // The buttons stand on the last tab, and on the way there the geometry is checked and taken. The
  // menu can be reached from everywhere, so it takes the same way.
  tabMain.SetTab(calculateTab);
  return tabMain.Tab() == calculateTab;
}

void frmMain::mnuProfile_Click() {
  Form.SetVisible(false);
  Open(openers_.ShowDataManager);
  Form.SetVisible(true);
}

void frmMain::optio_Click() {
  Open(openers_.ShowParamerty);
  // The mass of a section goes by the density.
  ShowSectionOf(shownGroup_);
  TouchDesign();
}

void frmMain::cmdSteelGet_Click() {
  Open(openers_.ShowSteel);
  Form.SetVisible(true);
  txtProgib.SetText("");
}

void frmMain::UserHelp_Click() {
  Guard(services_.Messages, "Help comand", [&] {
    const std::string path = FindHelpFile("Trelo calculation.chm", services_);
    if (!path.empty()) {
      services_.Shell.OpenHelp(path);
    }
  });
}

void frmMain::Exit_Click() {
  // Nothing is saved and nothing is asked.
  Open(openers_.EndProgram);
}

void frmMain::Timer1_Timer() {
  StepWaitCaption(Form, waitCounter_);
}

void frmMain::tmrRuningString_Timer() {
  std::string computer = "noname";
  PassOver([&] { computer = services_.Shell.ComputerName(); });
  std::string user;
  PassOver([&] { user = services_.Shell.UserName(); });
  user = Utf8(Characters(user).substr(0, longestUserName));
  user = user.substr(0, user.find('\0'));
  PassOver([&] {
    Form.SetCaption(runningCaption_.Next(
        runningTitle,
        RunningCaption::Text(services_.Resources.String(aboutString), user, computer)));
  });
}

}  // namespace trelonit
