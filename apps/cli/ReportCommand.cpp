#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OutputFile.h"
#include "editor/document/HtmlWriter.h"
#include "editor/rtf/RtfWriter.h"

namespace trelonit::cli {

namespace {

using Pieces = std::vector<ReportPiece>;

constexpr const char* reportTitle = "Расчет фермы";

std::string AsText(const Pieces& pieces) {
  std::string text;
  for (const ReportPiece& piece : pieces) {
    text += piece.Text();
  }
  return text;
}

RichDocument AsDocument(const Pieces& pieces) {
  std::vector<LookPiece> looks;
  std::transform(pieces.begin(), pieces.end(), std::back_inserter(looks), LookOf);
  return ReportDocument(looks);
}

/// For a terminal, which wants no carriage returns.
std::string AsLines(const Pieces& pieces) {
  std::string text = AsText(pieces);
  std::erase(text, '\r');
  return text;
}

enum class ReportForm { Lines, Text, Page, RichText, Pdf };

/// By the output's name; nothing for an unknown extension.
std::optional<ReportForm> FormOf(const std::string& output) {
  if (output == "-") {
    return ReportForm::Lines;
  }
  using Named = std::pair<const char*, ReportForm>;
  constexpr std::array forms{Named{".txt", ReportForm::Text}, Named{".html", ReportForm::Page},
                             Named{".rtf", ReportForm::RichText}, Named{".pdf", ReportForm::Pdf}};
  for (const auto& [extension, form] : forms) {
    if (HasExtension(output, extension)) {
      return form;
    }
  }
  return std::nullopt;
}

}  // namespace

Status RunReport(const ReportOptions& options, const Paper& paper) {
  const std::optional<ReportForm> form = FormOf(options.Output);
  if (!form) {
    std::cerr << "trelonit-cli: вид отчёта «" << options.Output
              << "» неизвестен: нужен файл .txt, .rtf, .pdf или .html или «-»\n";
    return Status::WrongUsage;
  }
  if (form == ReportForm::Pdf && !paper.Pdf) {
    return paper.HandOver();
  }
  ConsoleSession session;
  if (!Restore(session, options.Project)) {
    return Status::Failed;
  }
  session.Main().ReportAppendix = options.Appendix;
  Pieces pieces;
  if (!session.Main().MakeReport([&](const ReportPiece& piece) { pieces.push_back(piece); }) ||
      session.MetRuntimeError()) {
    return Status::Failed;
  }
  switch (*form) {
    case ReportForm::Lines:
      return Print(AsLines(pieces));
    case ReportForm::Text:
      return WriteOutput(options.Output, AsText(pieces));
    case ReportForm::Page:
      return WriteOutput(options.Output, WriteHtml(AsDocument(pieces), reportTitle));
    case ReportForm::RichText:
      return WriteOutput(options.Output, WriteRtf(AsDocument(pieces)));
    case ReportForm::Pdf:
      return WriteOutput(options.Output, paper.Pdf(AsDocument(pieces), reportTitle));
  }
  return Status::Failed;
}

}  // namespace trelonit::cli
