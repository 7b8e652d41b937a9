// The document window at work: opens rich texts of two lengths, types and undoes keys in two
// numbers. Tells what each took.

#include <QApplication>
#include <chrono>
#include <functional>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "bench/FirstPaint.h"
#include "editor/document/frmOtchetMain.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/console/ConsoleServices.h"
#include "resources/EmbeddedResources.h"
#include "windows/editor/OtchetWindow.h"
#include "windows/services/Desktop.h"

namespace {

using namespace trelonit;
using Clock = std::chrono::steady_clock;

constexpr std::size_t megabyte = 1000 * 1000;

double Milliseconds(const std::function<void()>& work) {
  const Clock::time_point start = Clock::now();
  work();
  QApplication::processEvents();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Lines like those of a report, in two looks.
RichDocument ReportLines(std::size_t count) {
  RichDocument document;
  CharFormat bold;
  bold.Bold = true;
  document.Paragraphs.assign(
      count, {.Runs = {{u" Стержень № 17 , усилие : ", {}}, {u"-27.2595669105821 тонн ", bold}}});
  return document;
}

/// Rich text of about this length.
std::string RichTextOf(std::size_t bytes) {
  constexpr std::size_t sample = 1000;
  return WriteRtf(ReportLines(bytes * sample / WriteRtf(ReportLines(sample)).size()));
}

/// Files in memory under their names.
class Shelf : public DiskFiles {
 public:
  std::unique_ptr<std::istream> OpenForReading(const std::string&) override {
    return std::make_unique<std::istringstream>(Content);
  }
  std::uint64_t FileLength(const std::string&) override { return Content.size(); }
  std::string Content;
};

class Work {
 public:
  Work() {
    form_.Form_Load();
    window_ = std::make_unique<OtchetWindow>(form_, box_, nullptr);
    window_->show();
    QApplication::processEvents();
  }

  double Open(std::size_t bytes) {
    files_.Content = RichTextOf(bytes);
    const double time = Milliseconds([this] { form_.RTF_FileDropped("report.rtf"); });
    return time;
  }

  /// Types letters and takes all of them back.
  double TypeAndUndo(int keys) {
    form_.RTF.SetText("");
    form_.Undo.Reset();
    return Milliseconds([&] {
      for (int count = 0; count < keys; ++count) {
        Integer key = count % 60 == 59 ? 13 : 'A';
        form_.RTF_KeyDown(key, 0);
        form_.RTF.SetSelText(key == 13 ? "\n" : "a");
      }
      while (form_.Undo.canUndo()) {
        form_.Undo.Undo();
      }
    });
  }

 private:
  MemorySettings settings_;
  ConsoleMessages messages_{std::cerr};
  NoDialogs dialogs_;
  MemoryClipboard clipboard_;
  NoRegistry registry_;
  NoAutomation automation_;
  ConsoleShell shell_;
  SystemClock clock_;
  EmbeddedResources resources_;
  Shelf files_;
  NoCommonDialogs documentDialogs_;
  QtRichTextBox box_;
  frmOtchetMain form_{{messages_,
                       dialogs_,
                       clipboard_,
                       settings_,
                       registry_,
                       automation_,
                       shell_,
                       clock_,
                       resources_,
                       files_,
                       {},
                       {}},
                      box_,
                      documentDialogs_,
                      {},
                      {}};
  std::unique_ptr<OtchetWindow> window_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const Desktop desktop;
  Work work;
  bench::Tell("opened5", work.Open(5 * megabyte));
  bench::Tell("opened10", work.Open(10 * megabyte));
  bench::Tell("typed10000", work.TypeAndUndo(10000));
  bench::Tell("typed20000", work.TypeAndUndo(20000));
  return 0;
}
