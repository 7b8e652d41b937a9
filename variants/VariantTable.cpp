#include "variants/VariantTable.h"

#include <array>
#include <charconv>

namespace trelonit {

namespace {

struct GroupColumn {
  const char* Name;
  SectionPlace Place;
};

constexpr std::array<GroupColumn, sectionCount> groupColumns{{
    {"Верхний пояс", sectionUpPoyas},
    {"Нижний пояс", sectionDwnPoyas},
    {"Раскосы", sectionRaskos},
    {"Стойки", sectionStoyka},
    {"Опорные раскосы", sectionOpornRaskos},
}};

std::string Text(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number == 0 ? 0.0 : number).ptr;
  return {digits.begin(), end};
}

}  // namespace

std::vector<std::string> VariantColumns() {
  std::vector<std::string> columns{
      "Номер",         "Схема", "Пролет, м", "Высота, м", "Крайняя панель, м",
      "Число панелей", "Сталь", "Ry, МПа"};
  for (const GroupColumn& group : groupColumns) {
    const std::string name = group.Name;
    for (const char* what : {": расположение", ": сортамент", ": профиль", ": зазор, мм",
                             ": коэффициент использования"}) {
      columns.push_back(name + what);
    }
  }
  for (const char* name :
       {"Масса, т", "Прогиб, м", "Прогиб / пролет", "Кругов подбора", "Итог", "Причина"}) {
    columns.emplace_back(name);
  }
  return columns;
}

std::vector<std::string> VariantFields(const Variant& variant) {
  const DesignInputs& inputs = variant.Inputs;
  const bool possible = variant.Verdict != VariantVerdict::Impossible;
  const auto figure = [possible](double number) { return possible ? Text(number) : std::string(); };
  std::vector<std::string> fields{std::to_string(variant.Number + 1),
                                  std::to_string(inputs.TreloType),
                                  Text(inputs.LengthF),
                                  Text(inputs.Hight),
                                  Text(inputs.LenOporn),
                                  std::to_string(inputs.PanelNum),
                                  inputs.SteelName,
                                  Text(inputs.Ry)};
  for (const GroupColumn& group : groupColumns) {
    const SectionRec& section = inputs.ElementSection[group.Place];
    fields.push_back(std::to_string(section.Layout));
    fields.push_back(std::to_string(section.TypeIdx));
    fields.push_back(possible ? section.Profile.Name.Trimmed() : std::string());
    fields.push_back(section.Paired ? Text(section.Gdist) : std::string());
    fields.push_back(figure(variant.Use[static_cast<std::size_t>(group.Place) - 1]));
  }
  fields.push_back(figure(variant.Mass));
  fields.push_back(figure(variant.Progib));
  fields.push_back(figure(variant.Progib / inputs.LengthF));
  fields.push_back(std::to_string(variant.Rounds));
  fields.emplace_back(VerdictName(variant.Verdict));
  fields.push_back(variant.Reason);
  return fields;
}

std::string CsvRow(const std::vector<std::string>& fields) {
  std::string row;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) {
      row += ',';
    }
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
      row += field;
      continue;
    }
    row += '"';
    for (const char letter : field) {
      row += letter;
      if (letter == '"') {
        row += '"';
      }
    }
    row += '"';
  }
  return row + "\r\n";
}

std::string_view VerdictName(VariantVerdict verdict) {
  switch (verdict) {
    case VariantVerdict::Passes:
      return "годится";
    case VariantVerdict::Fails:
      return "не годится";
    case VariantVerdict::Impossible:
      break;
  }
  return "невозможен";
}

}  // namespace trelonit
