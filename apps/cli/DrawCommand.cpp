#include <array>
#include <memory>
#include <optional>

#include "apps/DesignDrawing.h"
#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OutputFile.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "drawing/sheet/SvgWriter.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit::cli {

namespace {

using Writer = std::function<std::string(const Drawing&)>;

struct DrawingForm {
  const char* Extension;
  /// Empty where this program cannot make it.
  Writer Write;
};

std::string OnSheet(const Drawing& drawing) {
  return WriteDrawingSvg(drawing);
}

/// By the output's name; nothing for an unknown extension.
std::optional<DrawingForm> FormOf(const std::string& output, const Paper& paper) {
  const std::array forms{DrawingForm{".dxf", WriteDxf}, DrawingForm{".svg", OnSheet},
                         DrawingForm{".pdf", paper.DrawingPdf},
                         DrawingForm{".png", paper.DrawingPng}};
  for (const DrawingForm& form : forms) {
    if (HasExtension(output, form.Extension)) {
      return form;
    }
  }
  return std::nullopt;
}

/// Both schemes of the design; null where a message told why not all of it could be drawn.
std::shared_ptr<Drawing> Drawn(const Calculation& design) {
  ConsoleMessages messages(std::cerr);
  std::shared_ptr<Drawing> drawing =
      DrawingOf({design.TreloData, design.TreloResult, design.ElementSection}, messages,
                SystemNumberLocale());
  return messages.Shown().empty() ? drawing : nullptr;
}

/// A design of which there is no report is not drawn either: its texts are that of the report.
std::shared_ptr<Drawing> DrawnProject(const std::string& project) {
  ConsoleSession session;
  const auto unread = [](const ReportPiece&) {};
  return Restore(session, project) && session.Main().MakeReport(unread) &&
                 !session.MetRuntimeError()
             ? Drawn(session.Main().Model.Last)
             : nullptr;
}

}  // namespace

Status RunDraw(const DrawOptions& options, const Paper& paper) {
  const std::optional<DrawingForm> form = FormOf(options.Output, paper);
  if (!form) {
    std::cerr << "trelonit-cli: вид чертежа «" << options.Output
              << "» неизвестен: нужен файл .dxf, .svg, .pdf или .png\n";
    return Status::WrongUsage;
  }
  if (!form->Write) {
    return paper.HandOver();
  }
  const std::shared_ptr<Drawing> drawing = DrawnProject(options.Project);
  if (drawing == nullptr) {
    return Status::Failed;
  }
  std::string bytes;
  try {
    bytes = form->Write(*drawing);
  } catch (const RuntimeError& error) {
    std::cerr << "trelonit-cli: чертёж не сделан: " << error.Description() << "\n";
    return Status::Failed;
  }
  return WriteOutput(options.Output, bytes);
}

}  // namespace trelonit::cli
