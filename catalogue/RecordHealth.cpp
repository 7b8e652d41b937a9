#include "catalogue/RecordHealth.h"

#include <algorithm>
#include <cmath>

#include "catalogue/CatalogueHealth.h"

namespace trelonit {

namespace {

/// A computed figure, which is above zero, with as many digits as tables print.
std::string Computed(double value, const NumberLocale& locale) {
  constexpr int digits = 5;
  constexpr int mostDecimals = 6;
  const int before = static_cast<int>(std::floor(std::log10(value))) + 1;
  const int decimals = std::clamp(digits - before, 0, mostDecimals);
  return NumberToText(RoundToDecimals(value, decimals), locale);
}

std::string DeviationText(const Deviation& found, const NumberLocale& locale) {
  const bool area = found.Quantity == "A";
  const std::string unit = area ? " см²" : " см⁴";
  return found.Quantity + " = " + NumberToText(found.Stored, locale) + unit + ", по размерам " +
         Computed(found.Computed, locale) + unit + ": отклонение " +
         FormatShown(found.Percent, 2, locale) + " %, допуск " +
         FormatShown(found.Tolerance, 2, locale) + " %";
}

}  // namespace

RecordHealth JudgeRecord(Long standard, const ProfileRec& record, const NumberLocale& locale) {
  const std::vector<Deviation> found = VerifyRecord(standard, record);
  if (found.empty()) {
    return {.Sound = true, .Text = "Геометрия: A, Jy и Jz сходятся с размерами."};
  }
  const std::string& first = found.front().Quantity;
  if (first == "empty") {
    return {.Text = "Геометрия: запись пуста."};
  }
  if (first == "standard") {
    return {.Text = "Геометрия: такого стандарта в каталоге программы нет, проверить нечем."};
  }
  if (first == "dimensions") {
    return {.Text = "Геометрия: по этим размерам сечение не построить."};
  }
  if (first == "numbers") {
    return {.Text = "Геометрия: A, Jy или Jz не годятся для сравнения."};
  }
  std::string text = "Геометрия: ";
  for (const Deviation& deviation : found) {
    text += (&deviation == &found.front() ? "" : "; ") + DeviationText(deviation, locale);
  }
  return {.Text = text + "."};
}

}  // namespace trelonit
