#include <algorithm>
#include <string_view>

#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "platform/RuntimeError.h"

namespace trelonit::cli {

namespace {

using Pieces = std::vector<ReportPiece>;

std::string AsText(const Pieces& pieces) {
  std::string text;
  for (const ReportPiece& piece : pieces) {
    text += piece.Text;
  }
  return text;
}

/// For a terminal, which wants no carriage returns.
std::string AsLines(const Pieces& pieces) {
  std::string text = AsText(pieces);
  std::erase(text, '\r');
  return text;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '\r':
        break;
      default:
        escaped.push_back(character);
    }
  }
  return escaped;
}

/// The lines as they stand, headings as headings.
std::string AsHtml(const Pieces& pieces) {
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"ru\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<title>Расчет фермы</title>\n<style>body { font-family: sans-serif; margin: 2em; } "
      "h2 { font-size: 1.1em; margin: 1.2em 0 0.3em; } pre { font: inherit; margin: 0; "
      "white-space: pre-wrap; }</style>\n</head>\n<body>\n";
  for (const ReportPiece& piece : pieces) {
    const std::string text = Escaped(piece.Text);
    html += piece.Heading ? "<h2>" + text + "</h2>\n" : "<pre>" + text + "</pre>\n";
  }
  return html + "</body>\n</html>\n";
}

bool EndsWith(std::string_view name, std::string_view extension) {
  return name.size() > extension.size() &&
         std::equal(extension.rbegin(), extension.rend(), name.rbegin(),
                    [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b); });
}

Status Write(const std::string& file, const std::string& bytes) {
  try {
    DiskFiles().ReplaceFile(file, bytes);
  } catch (const RuntimeError& error) {
    std::cerr << "trelonit-cli: файл «" << file << "» не записан: " << error.Description() << "\n";
    return Status::Failed;
  }
  return Status::Done;
}

}  // namespace

Status RunReport(const ReportOptions& options) {
  const bool html = EndsWith(options.Output, ".html");
  if (options.Output != "-" && !html && !EndsWith(options.Output, ".txt")) {
    std::cerr << "trelonit-cli: вид отчёта «" << options.Output
              << "» неизвестен: нужен файл .txt или .html или «-»\n";
    return Status::WrongUsage;
  }
  Pieces report;
  ConsoleSession session(MessageAnswer::No,
                         {.ShowOtchet = [&report](const Pieces& pieces) { report = pieces; }});
  if (!Restore(session, options.Project)) {
    return Status::Failed;
  }
  session.Main().cmdShowResults_Click();
  if (report.empty() || session.MetRuntimeError()) {
    return Status::Failed;
  }
  if (options.Output == "-") {
    return Print(AsLines(report));
  }
  return Write(options.Output, html ? AsHtml(report) : AsText(report));
}

}  // namespace trelonit::cli
