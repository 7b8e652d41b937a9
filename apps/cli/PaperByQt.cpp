#include <QGuiApplication>

#include "apps/cli/Paper.h"
#include "windows/drawing/DrawingPages.h"
#include "windows/editor/RichDocumentPdf.h"

namespace trelonit::cli {

namespace {

/// Fonts and pages without a display.
class Pages {
 public:
  Pages(int& argc, char** argv) : application_(argc, argv) {}

 private:
  /// The toolkit asks for its display as soon as the application is made.
  struct NoDisplay {
    NoDisplay() {
      qputenv("QT_QPA_PLATFORM", TRELONIT_PAGE_PLATFORM);
      // What the toolkit finds missing on a machine without a desktop does not matter here.
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    }
  };

  NoDisplay noDisplay_;
  QGuiApplication application_;
};

}  // namespace

Paper MakePaper(int argc, char** argv) {
  const auto drawn = [argc, argv](auto write) {
    return [argc, argv, write](const Drawing& drawing) mutable {
      const Pages pages(argc, argv);
      return write(drawing, {});
    };
  };
  return {.Pdf =
              [argc, argv](const RichDocument& document, const std::string& title) mutable {
                const Pages pages(argc, argv);
                return WritePdf(document, title);
              },
          .DrawingPdf = drawn(WriteDrawingPdf),
          .DrawingPng = drawn(WriteDrawingPng),
          .HandOver = {}};
}

}  // namespace trelonit::cli
