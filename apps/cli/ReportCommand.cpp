#include <array>
#include <optional>
#include <utility>

#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OutputFile.h"
#include "editor/document/HtmlWriter.h"
#include "editor/rtf/RtfReader.h"

namespace trelonit::cli {

namespace {

using Pieces = std::vector<ReportPiece>;

constexpr const char* reportTitle = "Расчет фермы";

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
  std::string richText;
  ConsoleSession session(MessageAnswer::No, {.ShowOtchet = [&richText](frmOtchetMain& shown) {
                           richText = shown.RTF.TextRTF();
                         }});
  if (!Restore(session, options.Project)) {
    return Status::Failed;
  }
  session.Main().ReportAppendix = options.Appendix;
  session.Main().cmdShowResults_Click();
  if (richText.empty() || session.MetRuntimeError()) {
    return Status::Failed;
  }
  const Pieces& pieces = session.TheProgram().Report();
  switch (*form) {
    case ReportForm::Lines:
      return Print(AsLines(pieces));
    case ReportForm::Text:
      return WriteOutput(options.Output, AsText(pieces));
    case ReportForm::Page:
      return WriteOutput(options.Output, WriteHtml(ReadRtf(richText), reportTitle));
    case ReportForm::RichText:
      return WriteOutput(options.Output, richText);
    case ReportForm::Pdf:
      return WriteOutput(options.Output, paper.Pdf(ReadRtf(richText), reportTitle));
  }
  return Status::Failed;
}

}  // namespace trelonit::cli
