#include "platform/Guard.h"
#include "workstation/CalculationChain.h"
#include "workstation/frmMain.h"

namespace trelonit {

namespace {

constexpr Integer limitOverflowBitmap = 101;
constexpr int progibDecimals = 5;

}  // namespace

CheckNumbers frmMain::ReadCheckNumbers() const {
  return {.Ry = Number(txtRy),
          .E = Number(txtModulYung),
          .Yc = Number(txtUsloviyaRabot),
          .Gn = Number(txtNadegnost),
          .Density = Number(txtDensitSteel),
          .Dynamic = chkDinloadEnable.Checked(),
          .LimitUser = Number(txtLimitFlex)};
}

void frmMain::cmdCalculate_Click() {
  Guard(services_.Messages, "cmdCalculate_Click", [&] {
    const CheckNumbers numbers = ReadCheckNumbers();
    AnalyseAndCheck(Model, numbers, services_.Messages);
    if (chkOwnWeight.Checked() && ApplyOwnWeight(Model, numbers, services_.Messages)) {
      RefreshLoadPreview();
    }
    const Long scheme = Model.TreloData.TreloType;
    ResultLists lists{
        .lstForces =
            BuildForceList(scheme, Model.TreloResult, Model.CheckData.Mass, services_.Locale),
        .MSFlexGKoefUse = BuildUtilisationGrid(scheme, Model.CheckData, services_.Locale),
        .Picture = {.Bars = BuildBars(Model.TreloData, Model.TreloResult),
                    .Use = BuildUse(scheme, Model.CheckData),
                    .OverLimit = RowsOverLimit(scheme, Model.CheckData)}};
    if (chkProgib.Checked()) {
      lists.Progib = CheckProgib(Model, optBP.Value(), numbers.E, cmbLenlim.Text(),
                                 services_.Locale, services_.Messages);
      for (std::string& line : ProgibLines(*lists.Progib, services_.Locale)) {
        lists.lstForces.push_back(std::move(line));
      }
      ShowProgib(*lists.Progib);
    }
    if (openers_.ShowKoeffOfUse) {
      openers_.ShowKoeffOfUse(lists);
    }
  });
}

void frmMain::ShowProgib(const ProgibResult& progib) {
  tabMain.SetTab(0);
  txtProgib.SetText(FormatShown(progib.Value, progibDecimals, services_.Locale));
  imgLenLimoverflow.Show(progib.Satisfied ? Picture()
                                          : services_.Resources.Bitmap(limitOverflowBitmap));
}

}  // namespace trelonit
