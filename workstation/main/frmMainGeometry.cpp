#include "analysis/Scheme.h"
#include "checks/CheckFormulas.h"
#include "platform/errors/Guard.h"
#include "platform/system/ProgramNames.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

namespace {

constexpr Integer schemeBitmapBase = 100;
constexpr int hoptDecimals = 5;
constexpr Long hoptPanel = 6;

}  // namespace

void frmMain::ShowScheme(Long scheme) {
  imgMain.Show(services_.Resources.Bitmap(static_cast<Integer>(schemeBitmapBase + scheme)));
  imgPrevSchem.Show(imgMain.Shown());
}

void frmMain::imgTreloType_Click(Long scheme) {
  Guard(services_.Messages, "imgTreloType_Click", [&] {
    for (Image& picture : imgTreloType) {
      picture.SetMarked(false);
    }
    const Long old = Model.Inputs.TreloType;
    // Only five schemes have a large picture; the others end here.
    ShowScheme(scheme);
    imgTreloType[scheme].SetMarked(true);
    Model.Inputs.TreloType = static_cast<Integer>(scheme);
    const Scheme& now = *FindScheme(scheme);
    const Scheme* before = FindScheme(old);
    if (before == nullptr || now.OwnEndPanels != before->OwnEndPanels) {
      cmbPanelNum.Clear();
      FillPanelNum(now.FewestPanels, now.PanelStep);
      cmbPanelNum.Select(0);
      ShowEndPanels(now.OwnEndPanels);
    }
    ShowVerticals(now.HasVerticals);
    ReDimLoadArrays();
    txtProgib.SetText("");
    RefreshHopt();
    RefreshGeometry();
  });
}

void frmMain::ShowEndPanels(bool own) {
  txtLenOporn.SetEnabled(own);
  txtLenOporn.SetBackColor(own ? colorWindowBackground : colorDisabledGrey);
}

void frmMain::ShowVerticals(bool shown) {
  optElementSection[optionStoyka].SetVisible(shown);
  imgProfileSec[optionStoyka].SetVisible(shown);
  lblProfilName[optionStoyka].SetVisible(shown);
}

void frmMain::cmbPanelNum_Click() {
  ReDimLoadArrays();
  txtProgib.SetText("");
  RefreshHopt();
  RefreshGeometry();
}

void frmMain::txtLengthF_LostFocus() {
  RefreshHopt();
}

void frmMain::RefreshHopt() {
  // A panel count that is no number leaves the text as it stands.
  PassOver([&] {
    const Long scheme = Model.Inputs.TreloType;
    Real height;
    if (scheme >= 1 && scheme <= 5) {
      // The panel length: the height with which the diagonals lie at 45 degrees.
      height = Real(Number(txtLengthF)) / PanelNum();
    }
    StatusBarMain[hoptPanel].SetCaption("Hopt = " +
                                        FormatShown(height, hoptDecimals, services_.Locale));
  });
}

void frmMain::chkProgib_Click() {
  const bool on = chkProgib.Checked();
  txtProgib.SetEnabled(on);
  cmbLenlim.SetEnabled(on);
  optBP.SetEnabled(on);
  optNP.SetEnabled(on);
  lblProgib.SetVisible(on);
  cmbLenlim.SetBackColor(on ? colorWindowBackground : colorDisabledGrey);
}

void frmMain::FillPanelNum(Long first, Long step) {
  for (Long count = first < mostPanels ? first : 2; count <= mostPanels; count += step) {
    cmbPanelNum.AddItem(std::to_string(count));
  }
}

void frmMain::WritePanelNumEven(Long first) {
  FillPanelNum(first, 2);
}

void frmMain::WritePanelNumAll(Long first) {
  FillPanelNum(first, 1);
}

void frmMain::WriteLenLim() {
  cmbLenlim.AddItem("1 / 120");
  for (int denominator = 150; denominator <= 2500; denominator += 50) {
    cmbLenlim.AddItem("1 / " + std::to_string(denominator));
  }
}

void frmMain::WriteGdist() {
  for (int gap = 4; gap <= 30; ++gap) {
    cmbGdist.AddItem(std::to_string(gap));
  }
}

bool frmMain::TakeGeometry() {
  const DesignInputs& inputs = ReadInputs();
  const double L = inputs.LengthF;
  const double H = inputs.Hight;
  const Long n = PanelNum();
  if (!(L > 0) || !(H > 0)) {
    return false;
  }
  AcceptedGeometry& accepted = Model.Accepted;
  accepted.LengthF = L;
  accepted.Hight = H;
  accepted.PanelNum = n;
  accepted.LenOporn = EndPanelOf(inputs);
  return true;
}

void frmMain::CheckGeometry() {
  if (!TakeGeometry()) {
    tabMain.SetTab(0);
    services_.Messages.Show({.Title = warningTitle,
                             .Text = "Неверно заданы геометрические параметры фермы.\n"
                                     "Проверте значение длинны/высоты фермы !",
                             .Style = MessageStyle::Critical});
    return;
  }
  const double L = Model.Accepted.LengthF;
  const double H = Model.Accepted.Hight;
  if (!(L > H)) {
    services_.Messages.Show({.Title = warningTitle,
                             .Text = "Высота фермы превышает ее длинну !\n"
                                     "Возможно данный случай продиктован конструктивно,\n"
                                     " но не лучше ли использовать простую балку ? .",
                             .Style = MessageStyle::Information});
    return;
  }
  if (HasSteepDiagonals(Model.Inputs)) {
    WarnProportions();
  }
}

void frmMain::WarnProportions() {
  services_.Messages.Show(
      {.Title = warningTitle,
       .Text = "Соотношение высоты фермы и длинны панели вызывают сомнения \n"
               "в оптимальности выбора соотношений длинна фермы - высота фермы - !\n"
               " кол-во панелей. Угол наклона раскосов > 65 град .",
       .Style = MessageStyle::Information});
}

}  // namespace trelonit
