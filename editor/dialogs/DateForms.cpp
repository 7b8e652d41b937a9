#include "editor/dialogs/DateForms.h"

#include <array>
#include <cstddef>
#include <optional>

#include "platform/system/SystemTimeText.h"
#include "platform/text/Text.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

namespace {

constexpr Long twentyFourHourForm = 5;

constexpr std::array<const char*, 7> weekdays{"воскресенье", "понедельник", "вторник", "среда",
                                              "четверг",     "пятница",     "суббота"};

/// As they stand behind the day of the month.
constexpr std::array<const char*, 12> months{"января",   "февраля", "марта",  "апреля",
                                             "мая",      "июня",    "июля",   "августа",
                                             "сентября", "октября", "ноября", "декабря"};

std::string Digits(int value, std::size_t width) {
  std::string digits = std::to_string(value);
  if (digits.size() < width) {
    digits.insert(0, width - digits.size(), '0');
  }
  return digits;
}

/// Index of the weekday from Sunday (Sakamoto's method, Gregorian calendar).
std::size_t Weekday(const ClockReading& reading) {
  constexpr std::array<int, 12> shifts{0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  const int year = reading.Month < 3 ? reading.Year - 1 : reading.Year;
  const int shift = shifts.at(static_cast<std::size_t>(reading.Month - 1));
  return static_cast<std::size_t>(
      (year + year / 4 - year / 100 + year / 400 + shift + reading.Day) % 7);
}

std::string Day(const ClockReading& reading, std::size_t dayWidth, const char* separator) {
  return Digits(reading.Day, dayWidth) + separator + Digits(reading.Month, 2) + separator;
}

std::string Time(const ClockReading& reading, std::size_t hourWidth) {
  return Digits(reading.Hour, hourWidth) + ":" + Digits(reading.Minute, 2) + ":" +
         Digits(reading.Second, 2);
}

std::string InWords(const ClockReading& reading) {
  return std::string(weekdays.at(Weekday(reading))) + ", " + std::to_string(reading.Day) + " " +
         months.at(static_cast<std::size_t>(reading.Month - 1)) + " " +
         std::to_string(reading.Year);
}

/// As the system writes it, or else as Russian ones do.
std::string SystemForm(const ClockReading& reading) {
  if (const std::optional<std::string> told = SystemTimeText(reading)) {
    return std::string(Trim(*told));
  }
  return Day(reading, 2, ".") + Digits(reading.Year, 4) + " " + Time(reading, 1);
}

}  // namespace

std::string DateForm(Long index, const ClockReading& reading) {
  const std::string year = Digits(reading.Year, 4);
  const std::string shortYear = Digits(reading.Year % 100, 2);
  switch (index) {
    case 0:
      return Day(reading, 2, "/") + shortYear;
    case 1:
      return Day(reading, 1, "/") + shortYear;
    case 2:
      return Day(reading, 2, "/") + year;
    case 3:
      return year + "-" + Digits(reading.Month, 2) + "-" + Digits(reading.Day, 2);
    case 4:
      return InWords(reading);
    case twentyFourHourForm:
      return Time(reading, 2);
    case 6:
      return Time(reading, 1);
    case 7:
      return SystemForm(reading);
    default:
      RaiseSubscriptOutOfRange();
  }
}

std::vector<std::string> DateFormList(const ClockReading& reading) {
  std::vector<std::string> list;
  list.reserve(static_cast<std::size_t>(dateFormCount));
  for (Long index = 0; index < dateFormCount; ++index) {
    list.push_back(DateForm(index, reading));
  }
  list[twentyFourHourForm] += "-(24 hr)";
  return list;
}

}  // namespace trelonit
