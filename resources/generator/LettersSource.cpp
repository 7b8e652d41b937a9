#include "resources/generator/LettersSource.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

namespace trelonit::packer {

namespace {

constexpr unsigned missingLetter = 0xFFFD;

/// A whole number from one end of the text to the other.
template <class T>
bool ReadWhole(std::string_view text, T& value, int base = 10) {
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  return fault == std::errc() && end == text.data() + text.size();
}

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    words.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

struct LetterOutline {
  std::string Verbs;
  std::string Numbers;  ///< as a list of the source
};

/// How many numbers follow a verb; below zero for what is none.
int NumbersOf(std::string_view verb) {
  return verb == "M" || verb == "L" ? 2 : verb == "Q" ? 4 : verb == "Z" ? 0 : -1;
}

/// Whether nothing stands there yet that would have to be closed.
bool IsClosed(const LetterOutline& outline) {
  return outline.Verbs.empty() || outline.Verbs.back() == 'Z';
}

LetterOutline ReadOutline(const CsvTable& table, const CsvLine& line) {
  LetterOutline outline;
  int awaited = 0;
  for (const std::string_view word : Words(line.Cells[2])) {
    std::int16_t number = 0;
    if (awaited > 0 && ReadWhole(word, number)) {
      outline.Numbers += (outline.Numbers.empty() ? "" : ", ") + std::to_string(number);
      --awaited;
    } else if (awaited == 0 && NumbersOf(word) >= 0 && (word == "M") == IsClosed(outline)) {
      outline.Verbs += word;
      awaited = NumbersOf(word);
    } else {
      table.Refuse(line, "no outline at " + std::string(word));
    }
  }
  if (awaited > 0 || !IsClosed(outline)) {
    table.Refuse(line, "an outline that is not closed");
  }
  return outline;
}

}  // namespace

std::string LettersSource(const CsvTable& table) {
  std::string outlines;
  std::string letters;
  unsigned previous = 0;
  for (const CsvLine& line : table.Lines) {
    unsigned code = 0;
    std::int16_t advance = 0;
    if (!ReadWhole(line.Cells[0], code, 16) || code <= previous) {
      table.Refuse(line, "no code, or one out of order: " + line.Cells[0]);
    }
    if (!ReadWhole(line.Cells[1], advance) || advance < 0) {
      table.Refuse(line, "no width: " + line.Cells[1]);
    }
    const LetterOutline outline = ReadOutline(table, line);
    std::string numbers = "{}";
    if (!outline.Numbers.empty()) {
      const std::string name = "n" + line.Cells[0];
      outlines += "constexpr std::int16_t " + name + "[] = {" + outline.Numbers + "};\n";
      numbers = "Carried<std::int16_t>(" + name + ")";
    }
    letters += "    {" + std::to_string(code) + ", " + std::to_string(advance) + ", \"" +
               outline.Verbs + "\", " + numbers + "},\n";
    previous = code;
  }
  if (previous != missingLetter) {
    throw SourceFault(table.File, 1, "the last letter is not FFFD");
  }
  return "// Made from the table in resources/letters when the program is built.\n"
         "#include \"resources/CompiledLetters.h\"\n\n"
         "namespace trelonit {\n\nnamespace {\n\n" +
         outlines + "\nconstexpr CompiledLetter all[] = {\n" + letters +
         "};\n\n}  // namespace\n\n"
         "Carried<CompiledLetter> CompiledLetters() {\n"
         "  return Carried<CompiledLetter>(all);\n}\n\n}  // namespace trelonit\n";
}

}  // namespace trelonit::packer
