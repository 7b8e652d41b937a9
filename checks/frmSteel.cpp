#include "checks/frmSteel.h"

#include <array>
#include <string>
#include <utility>

#include "platform/errors/RuntimeError.h"
#include "platform/text/NumberText.h"

namespace trelonit {

namespace {

constexpr Integer steelBlock = 101;
constexpr Long usualImportance = 2;
constexpr std::size_t coefficientColumn = 2;

/// Working-condition coefficients by kind of structure (SNiP II-23-81*, table 6*). One of them
/// holds for the whole truss, whatever kind of element its row describes.
const std::vector<Grid::Row>& ConditionRows() {
  static const std::vector<Grid::Row> rows{
      {"№ п/п", "Тип конструкций, сечений", "Yc"},
      {"1",
       "Сплошные балки и сжатые элементы ферм перекрытий под залами театров, клубов, "
       "кинотеатров, под трибунами, под помещениями магазинов, книгохранилищ и архивов "
       "и т. п. при весе перекрытий, равном или большем временной нагрузки ",
       "0.9"},
      {"2",
       "Сжатые основные элементы (кроме опорных) решетки составного таврового сечения "
       "из уголков сварных ферм покрытий и перекрытий (например, стропильных и "
       "аналогичных им ферм) при гибкости >=60 ",
       "0.8"},
      {"3", "Сплошные балки при расчетах на общую устойчивость при Fib < 1,0 ", "0.95"},
      {"4", "Затяжки, тяги, оттяжки, подвески, выполненные из прокатной стали", "0.9"},
      {"5",
       "Элементы стержневых конструкций покрытий и перекрытий: сжатые (за исключением "
       "замкнутых трубчатых сечений) при расчетах на устойчивость ",
       "0.95"},
      {"6",
       "Элементы стержневых конструкций покрытий и перекрытий: растянутых в сварных "
       "конструкциях  ",
       "0.95"},
      {"7",
       "Элементы стержневых конструкций покрытий и перекрытий: растянутые, сжатые, а "
       "также стыковые накладки в болтовых конструкциях (кроме конструкций на "
       "высокопрочных болтах) из стали с пределом текучести до 440 МПа (4500 "
       "кгс/кв.см), несущих статическую нагрузку, при расчетах на прочность",
       "1.05"}};
  return rows;
}

/// Reliability coefficients by importance (GOST 27751-88), as the program's own four options.
struct Importance {
  const char* Caption;
  double Gn;
};

constexpr std::array<Importance, frmSteel::importanceCount> importances{
    {{" U - объект уникального значения (Gn=1,15)", 1.15},
     {" 1 - объект особо важного значения (Gn=1)", 1},
     {" 2 - объект важного значения (Gn=0,95)", 0.95},
     {" 3 - объект ограниченого значения (Gn=0,9)", 0.9}}};

bool IsPresent(const TextBox& box) {
  return !box.Text().starts_with('-');
}

/// The background is what says which of the two resistances is chosen.
bool IsActive(const TextBox& box) {
  return box.BackColor() == colorWindowBackground;
}

void Activate(TextBox& chosen, TextBox& other) {
  chosen.SetBackColor(colorWindowBackground);
  other.SetBackColor(colorDisabledGrey);
}

}  // namespace

frmSteel::frmSteel(Services services, Targets targets)
    : services_(std::move(services)), targets_(targets) {
  Form.SetCaption("Стали");
  framYc.SetCaption("Коэффициент условия работы элементов :");
  framOtvetstven.SetCaption("Класс ответствености по ГОСТ 27751-88");
  for (Long option = 1; option <= importanceCount; ++option) {
    lblOtvetstven[option].SetCaption(importances[static_cast<std::size_t>(option - 1)].Caption);
    optOtvetstven[option].Click = [this, option] { optOtvetstven_Click(option); };
  }
  lblSteels.SetCaption(
      "Стали не разбиты на группы и климатические районы. Для подробной информации см. "
      "СНиП ||-23-81 Cтальные конструкции табл. 50");
  lblThickness.SetCaption(
      "За толщину фасонного проката следует принимать толщину полки (минимальная его толщина 4 "
      "мм).");
  lblChoice.SetCaption(
      "Для того, что бы выбрать расчетное сопротивление между текущими для листового и фасонного "
      "проката, щелкните мышкой над соответствующим полем ввода. В расчете используется то, у "
      "которого задний фон - белый, или, если на месте выбраного сопротивления стоит прочерк, то, "
      "которое задано для выбраной марки и толщины.");
  cmbSteelName.Click = [this] { cmbSteelName_Click(); };
  cmbSheetThick.Click = [this] { cmbSheetThick_Click(); };
}

void frmSteel::Form_Load() {
  Activate(txtRysheet, txtRyfason);
  FillGrid();
  optOtvetstven.ClearAll();
  Gn = 1;
  Steels.clear();
  cmbSteelName.Clear();
  cmbSheetThick.Clear();
  txtRysheet.SetText("");
  txtRyfason.SetText("");
  std::string_view table;
  try {
    table = services_.Resources.CustomBlock(steelBlock);
  } catch (const RuntimeError&) {
    services_.Messages.Show({.Text = "Ошибка считывания из ресурсов "});
    return;
  }
  Steels = ParseSteelTable(table);
  for (const SteelRec& steel : Steels) {
    cmbSteelName.AddItem(steel.Name.Trimmed());
  }
  if (!Steels.empty()) {
    cmbSteelName.Select(0);
  }
  optOtvetstven.Select(usualImportance);
  // The program's own rule: without a click on it the option that is shown does not count.
  Gn = 1;
}

void frmSteel::FillGrid() {
  MSFGridYc.SetRows(ConditionRows());
  Yc = 0.9;
}

void frmSteel::FillRanges() {
  cmbSheetThick.Clear();
  const SteelRec& steel = Steels.at(static_cast<std::size_t>(cmbSteelName.ListIndex()));
  for (const ThickRange& range : steel.Ranges) {
    cmbSheetThick.AddItem(range.Caption.Trimmed());
  }
  if (!steel.Ranges.empty()) {
    cmbSheetThick.Select(0);
  }
}

void frmSteel::ShowRange() {
  const SteelRec& steel = Steels.at(static_cast<std::size_t>(cmbSteelName.ListIndex()));
  const ThickRange& range = steel.Ranges.at(static_cast<std::size_t>(cmbSheetThick.ListIndex()));
  // The last field of a line keeps its carriage return where it has room for one.
  const auto shown = [](const FixedText<3>& value) {
    std::string text = value.Trimmed();
    std::erase(text, '\r');
    return text;
  };
  txtRysheet.SetText(shown(range.RySheet));
  txtRyfason.SetText(shown(range.RyFason));
}

void frmSteel::cmbSteelName_Click() {
  FillRanges();
}

void frmSteel::cmbSheetThick_Click() {
  ShowRange();
}

void frmSteel::txtRysheet_Click() {
  Activate(txtRysheet, txtRyfason);
}

void frmSteel::txtRyfason_Click() {
  Activate(txtRyfason, txtRysheet);
}

void frmSteel::MSFGridYc_SelChange(Long row) {
  const auto place = static_cast<std::size_t>(row);
  if (row > 0 && place < MSFGridYc.Rows().size()) {
    Yc = ParseNumber(MSFGridYc.Rows()[place].at(coefficientColumn), services_.Locale);
  }
}

void frmSteel::optOtvetstven_Click(Long option) {
  const bool known = option >= 1 && option <= importanceCount;
  Gn = known ? importances[static_cast<std::size_t>(option - 1)].Gn : 1;
}

void frmSteel::cmdApply_Click() {
  targets_.lblStillName.SetCaption("Сталь " + cmbSteelName.Text() + " " + cmbSheetThick.Text());
  // The chosen one first; where the norm has none, the other.
  const TextBox* taken = nullptr;
  for (const TextBox* box : {&txtRysheet, &txtRyfason}) {
    if (taken == nullptr && IsActive(*box) && IsPresent(*box)) {
      taken = box;
    }
  }
  for (const TextBox* box : {&txtRysheet, &txtRyfason}) {
    if (taken == nullptr && IsPresent(*box)) {
      taken = box;
    }
  }
  if (taken != nullptr) {
    targets_.txtRy.SetText(taken->Text());
  }
  targets_.txtNadegnost.SetText(NumberToText(Gn, services_.Locale));
  targets_.txtUsloviyaRabot.SetText(NumberToText(Yc, services_.Locale));
  if (Unload) {
    Unload();
  }
}

}  // namespace trelonit
