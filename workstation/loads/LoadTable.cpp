#include "workstation/loads/LoadTable.h"

#include <algorithm>
#include <array>
#include <map>

#include "platform/errors/Guard.h"
#include "platform/text/Text.h"
#include "workstation/loads/PastedTable.h"

namespace trelonit {

namespace {

// Sums with own weight leave their traces in the last digits.
constexpr int loadDecimals = 12;
constexpr std::size_t columnCount = 4;
constexpr const char* ownWeightKind = "собств. вес";

const char* ChordName(Chord chord) {
  return chord == Chord::Upper ? "верхний" : "нижний";
}

/// "узел 3 верхнего пояса" and, of what is missing, "узла 3 верхнего пояса".
std::string Named(const LoadSpot& spot, bool missing = false) {
  const char* joint = missing ? "узла " : "узел ";
  const char* panel = missing ? "панели " : "панель ";
  return (spot.Panel ? panel : joint) + std::to_string(spot.Number) +
         (spot.Of == Chord::Upper ? " верхнего пояса" : " нижнего пояса");
}

template <class Loads>
auto& ArrayOf(Loads& loads, const LoadSpot& spot) {
  if (spot.Of == Chord::Upper) {
    return spot.Panel ? loads.UpDistForce : loads.UpPForce;
  }
  return spot.Panel ? loads.DwnDistForce : loads.DwnPForce;
}

double InsideAt(const LoadState& state, const LoadSpot& spot) {
  return spot.Panel ? InsideOf(state.OwnWeight) : 0;
}

void Put(LoadArrays& loads, const LoadState& state, const LoadSpot& spot, double value) {
  ArrayOf(loads, spot)[spot.Number] = value + InsideAt(state, spot);
}

std::string Lower(const std::string& text) {
  std::u32string characters = Characters(text);
  for (char32_t& character : characters) {
    if (character >= U'А' && character <= U'Я') {
      character += U'а' - U'А';
    }
  }
  return LowerLatin(Utf8(characters));
}

bool BeginsWith(const std::string& text, std::string_view beginning) {
  return text.compare(0, beginning.size(), beginning) == 0;
}

/// A number with either decimal separator and blanks between its groups; nothing for other texts.
std::optional<double> NumberIn(const std::string& text) {
  constexpr std::size_t longest = 100;
  if (text.size() > longest) {
    return std::nullopt;
  }
  std::string plain;
  int separators = 0;
  for (const char32_t character : Characters(text)) {
    if (character == U',' || character == U'.') {
      ++separators;
      plain += '.';
    } else if (character != U' ' && character != U'\u00A0' && character != U'\u202F') {
      AppendUtf8(plain, character);
    }
  }
  std::optional<double> number;
  if (separators <= 1) {
    PassOver([&] { number = TextToNumber(plain, NumberLocale()); });
  }
  return number;
}

/// A foreign text in a line of ours, in quotes, cut where it would fill the line.
std::string Quoted(const std::string& text) {
  constexpr std::size_t longest = 40;
  // As many bytes as so many characters can have.
  const std::u32string characters = Characters(std::string_view(text).substr(0, 4 * longest));
  const bool whole = characters.size() <= longest && text.size() <= 4 * longest;
  return "«" + Utf8(characters.substr(0, longest)) + (whole ? "»" : "...»");
}

std::string NoNumber(const std::string& text) {
  return Quoted(text) + " - не число.";
}

constexpr const char* notToEdit =
    "Собственный вес считает программа: в таблице его не правят, его выключает флажок.";

LoadEdit Refused(std::string error) {
  return {.Loads = std::nullopt, .Error = std::move(error)};
}

LoadEdit RefusedLine(std::size_t line, const std::string& error) {
  return Refused("Строка " + std::to_string(line) + ": " + error);
}

/// What a line of four cells says, or what is wrong with it.
struct ReadLine {
  LoadSpot Spot;
  double Value = 0;
  std::string Error;
};

ReadLine Read(const PastedLine& cells, const LoadArrays& loads) {
  ReadLine read;
  if (cells.size() != columnCount) {
    read.Error = "столбцов " + std::to_string(cells.size()) +
                 ", а нужно 4 (пояс, узел или панель, номер, величина) или один (величина).";
    return read;
  }
  constexpr std::size_t enough = 16;
  const std::string chord = Lower(cells[0].substr(0, enough));
  if (!BeginsWith(chord, "верх") && !BeginsWith(chord, "ни")) {
    read.Error = "пояс " + Quoted(cells[0]) + ", а нужно «верхний» или «нижний».";
    return read;
  }
  read.Spot.Of = BeginsWith(chord, "верх") ? Chord::Upper : Chord::Lower;
  const std::string kind = Lower(cells[1].substr(0, enough));
  if (!BeginsWith(kind, "уз") && !BeginsWith(kind, "пан")) {
    read.Error = Quoted(cells[1]) + ", а нужно «узел» или «панель».";
    return read;
  }
  read.Spot.Panel = BeginsWith(kind, "пан");
  const std::optional<double> number = NumberIn(cells[2]);
  if (!number || *number < 0 || *number > mostJoints || *number != static_cast<Long>(*number)) {
    read.Error = "номер " + Quoted(cells[2]) + ", а нужно целое число от 0.";
    return read;
  }
  read.Spot.Number = static_cast<Long>(*number);
  const BoundedArray<double>& places = ArrayOf(loads, read.Spot);
  const Long last = places.IsAllocated() ? places.UpperBound() : -1;
  if (read.Spot.Number > last) {
    read.Error =
        "нет " + Named(read.Spot, true) + ", последний номер " + std::to_string(last) + ".";
    return read;
  }
  const std::optional<double> value = cells[3].empty() ? 0 : NumberIn(cells[3]);
  if (!value) {
    read.Error = NoNumber(cells[3]);
    return read;
  }
  read.Value = *value;
  return read;
}

/// Heads of columns: no numbers where numbers are to be.
bool IsHead(const PastedLine& cells) {
  if (cells.size() == 1) {
    return !NumberIn(cells[0]);
  }
  return cells.size() == columnCount && !NumberIn(cells[2]) && !NumberIn(cells[3]);
}

LoadEdit PasteValues(const LoadState& state, std::size_t row, const std::vector<PastedLine>& lines,
                     std::size_t first) {
  const std::vector<LoadRow> rows = LoadRows(state);
  const std::size_t count = lines.size() - first;
  if (row >= rows.size()) {
    return Refused("Не выбрана строка, с которой начинать.");
  }
  if (rows[row].OwnWeight) {
    return Refused(notToEdit);
  }
  if (count > rows.size() - row) {
    return Refused("Величин " + std::to_string(count) + ", а строк от выбранной до конца таблицы " +
                   std::to_string(rows.size() - row) + ".");
  }
  LoadArrays loads = state.Loads;
  for (std::size_t line = first; line < lines.size(); ++line) {
    const PastedLine& cells = lines[line];
    if (cells.size() > 1) {
      const std::string error = Read(cells, loads).Error;
      return RefusedLine(line + 1, error.empty() ? "столбцов больше, чем в строках выше." : error);
    }
    const std::optional<double> value = cells.empty() ? 0 : NumberIn(cells[0]);
    if (!value) {
      return RefusedLine(line + 1, NoNumber(cells[0]));
    }
    Put(loads, state, rows[row + line - first].Spot, *value);
  }
  return {.Loads = loads};
}

}  // namespace

std::vector<LoadRow> LoadRows(const LoadState& state) {
  std::vector<LoadRow> rows;
  if (state.OwnWeight.Added) {
    rows.push_back({.OwnWeight = true, .Value = state.OwnWeight.PerMetre});
  }
  for (const Chord chord : {Chord::Upper, Chord::Lower}) {
    for (const bool panel : {false, true}) {
      LoadSpot spot{.Of = chord, .Panel = panel};
      for (const double load : ArrayOf(state.Loads, spot)) {
        rows.push_back(
            {.Spot = spot, .Value = RoundToDecimals(load - InsideAt(state, spot), loadDecimals)});
        ++spot.Number;
      }
    }
  }
  return rows;
}

std::vector<std::string> LoadColumns(const LoadRow& row, const NumberLocale& locale) {
  if (row.OwnWeight) {
    return {"оба", ownWeightKind, "все", NumberToText(row.Value, locale)};
  }
  return {ChordName(row.Spot.Of), row.Spot.Panel ? "панель" : "узел",
          std::to_string(row.Spot.Number),
          row.Value == 0 ? std::string() : NumberToText(row.Value, locale)};
}

LoadEdit TypeLoad(const LoadState& state, std::size_t row, const std::string& text) {
  const std::vector<LoadRow> rows = LoadRows(state);
  if (row >= rows.size() || rows[row].OwnWeight) {
    return Refused(notToEdit);
  }
  const std::optional<double> value = Trim(text).empty() ? 0 : NumberIn(text);
  if (!value) {
    return Refused(NoNumber(text));
  }
  LoadArrays loads = state.Loads;
  Put(loads, state, rows[row].Spot, *value);
  return {.Loads = loads};
}

LoadEdit PasteLoads(const LoadState& state, std::size_t row, const std::string& text) {
  const std::size_t count = CountPasted(text);
  const std::size_t places = LoadRows(state).size();
  if (count == 0) {
    return Refused("В буфере обмена нет таблицы.");
  }
  // With a line of heads; larger texts are not taken apart.
  if (count > places + 1) {
    return Refused("Строк " + std::to_string(count) + ", а мест для нагрузок у этой фермы " +
                   std::to_string(places) + ".");
  }
  const std::vector<PastedLine> lines = SplitPasted(text);
  const std::size_t first = lines.size() > 1 && IsHead(lines.front()) ? 1 : 0;
  if (lines[first].size() <= 1) {
    return PasteValues(state, row, lines, first);
  }
  LoadArrays loads = state.Loads;
  // What a pasted own weight says is the program's.
  std::map<std::array<Long, 3>, std::size_t> seen;
  for (std::size_t line = first; line < lines.size(); ++line) {
    if (lines[line].empty() ||
        (lines[line].size() == columnCount && lines[line][1] == ownWeightKind)) {
      continue;
    }
    const ReadLine read = Read(lines[line], loads);
    if (!read.Error.empty()) {
      return RefusedLine(line + 1, read.Error);
    }
    const std::array<Long, 3> place{read.Spot.Of == Chord::Upper ? 0 : 1, read.Spot.Panel ? 1 : 0,
                                    read.Spot.Number};
    const auto [known, added] = seen.emplace(place, line + 1);
    if (!added) {
      return RefusedLine(
          line + 1, Named(read.Spot) + " уже есть в строке " + std::to_string(known->second) + ".");
    }
    Put(loads, state, read.Spot, read.Value);
  }
  return {.Loads = loads};
}

LoadEdit DeleteLoads(const LoadState& state, const std::vector<std::size_t>& rows) {
  const std::vector<LoadRow> all = LoadRows(state);
  LoadArrays loads = state.Loads;
  bool any = false;
  for (const std::size_t row : rows) {
    if (row < all.size() && !all[row].OwnWeight) {
      Put(loads, state, all[row].Spot, 0);
      any = true;
    }
  }
  return any ? LoadEdit{.Loads = loads} : Refused(notToEdit);
}

LoadEdit FillLoadsDown(const LoadState& state, const std::vector<std::size_t>& rows) {
  const std::vector<LoadRow> all = LoadRows(state);
  std::vector<std::size_t> sorted;
  for (const std::size_t row : rows) {
    if (row < all.size() && !all[row].OwnWeight) {
      sorted.push_back(row);
    }
  }
  if (sorted.size() < 2) {
    return Refused("Выберите строку с величиной и строки под ней, которые надо заполнить.");
  }
  std::sort(sorted.begin(), sorted.end());
  const LoadRow& first = all[sorted.front()];
  LoadArrays loads = state.Loads;
  for (const std::size_t row : sorted) {
    if (all[row].Spot.Panel != first.Spot.Panel) {
      return Refused("Узлы - в тоннах, панели - в тоннах на метр: заполняйте их по отдельности.");
    }
    Put(loads, state, all[row].Spot, first.Value);
  }
  return {.Loads = loads};
}

std::string CopyLoads(const LoadState& state, const std::vector<std::size_t>& rows,
                      const NumberLocale& locale) {
  const std::vector<LoadRow> all = LoadRows(state);
  std::string text;
  for (const std::size_t row : rows) {
    if (row < all.size()) {
      std::string line;
      for (const std::string& column : LoadColumns(all[row], locale)) {
        line += (line.empty() ? "" : "\t") + column;
      }
      text += line + '\n';
    }
  }
  return text;
}

}  // namespace trelonit
