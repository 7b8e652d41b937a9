#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/design/SmallTruss.h"
#include "tests/workstation/report/ReportComparison.h"

namespace trelonit::test {

using ReportPieces = std::vector<ReportPiece>;

inline ReportPiece PlainPiece(const std::string& text) {
  return {.Spans = {{text}}};
}
inline ReportPiece HeadingPiece(const std::string& text) {
  return {.Spans = {{text}}, .Heading = true};
}

inline ReportPiece WarningPiece(const std::string& text) {
  return {.Spans = {{text}}, .Warning = true};
}

/// A piece as one text, whatever its parts are.
inline ReportPiece Flat(const ReportPiece& piece) {
  ReportPiece flat = piece;
  flat.Spans = {{piece.Text()}};
  return flat;
}

/// The pieces one after the other.
inline std::string Joined(const ReportPieces& pieces) {
  std::string text;
  for (const ReportPiece& piece : pieces) {
    text += piece.Text();
  }
  return text;
}

/// Without the line ends. A failure of the test where a carriage return or a line feed stands
/// alone, or the text does not end with both.
inline ReportText LinesOf(const std::string& text) {
  ReportText lines;
  std::size_t begin = 0;
  for (std::size_t end = text.find("\r\n"); end != std::string::npos;
       end = text.find("\r\n", begin)) {
    lines.push_back(text.substr(begin, end - begin));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << lines.back();
    begin = end + 2;
  }
  EXPECT_EQ(begin, text.size()) << "an open last line: " << text.substr(begin);
  return lines;
}

inline ReportText LinesOf(const ReportPieces& pieces) {
  return LinesOf(Joined(pieces));
}

/// From the line that is the first text up to, without it, the next one that is the second.
inline ReportText Between(const ReportText& lines, const std::string& first,
                          const std::string& last) {
  const auto begin = std::find(lines.begin(), lines.end(), first);
  EXPECT_NE(begin, lines.end()) << first;
  const auto end = std::find(begin, lines.end(), last);
  EXPECT_NE(end, lines.end()) << last;
  return {begin, end};
}

inline bool HasLine(const ReportText& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

/// How many lines hold the text.
inline std::ptrdiff_t CountWith(const ReportText& lines, const std::string& part) {
  return std::count_if(lines.begin(), lines.end(), [&part](const std::string& line) {
    return line.find(part) != std::string::npos;
  });
}

/// Presses the button and takes what the editor was given.
inline ReportText Reported(SmallTruss& desk) {
  desk.Main.cmdShowResults_Click();
  return LinesOf(desk.Report);
}

/// A text in a field of this many characters.
inline std::string Wide(std::string text, std::size_t characters) {
  text.append(characters - Characters(text).size(), ' ');
  return text;
}

}  // namespace trelonit::test
