#include "bench/DesktopCost.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "bench/ProcessCost.h"
#include "platform/text/NumberText.h"

namespace trelonit::bench {

namespace {

constexpr int startRuns = 30;
constexpr int calculateRuns = 3;

struct Figure {
  double Milliseconds = 0;  ///< when it was told, since the start of the program
  double Value = 0;
};

/// The line that begins with this word.
Figure Told(const std::vector<Report>& reports, const std::string& what) {
  for (const Report& report : reports) {
    std::istringstream line(report.Line);
    std::string word;
    Figure figure{.Milliseconds = report.Milliseconds};
    if (line >> word >> figure.Value && word == what) {
      return figure;
    }
  }
  throw std::runtime_error("nothing was told of \"" + what + "\"");
}

/// No settings of the user, and the same language everywhere.
Environment Desktop(const std::string& platform, const std::string& display) {
  const std::string folder =
      (std::filesystem::temp_directory_path() / "trelonit-bench-desktop").string();
  std::filesystem::create_directories(folder);
  // Warnings of the toolkit about the platform do not belong into the table.
  return {{"QT_QPA_PLATFORM", platform},
          {"DISPLAY", display},
          {"XDG_CONFIG_HOME", folder},
          {"XDG_RUNTIME_DIR", folder},
          {"LC_ALL", "C.UTF-8"},
          {"QT_QPA_PLATFORMTHEME", ""},
          {"QT_LOGGING_RULES", "*.warning=false"}};
}

/// Twice the work may take a little more than twice the time, the memory being larger.
constexpr double linear = 2.6;

void AddEditorRows(Table& table, const Environment& environment) {
  double open = 1e9;
  double longer = 1e9;
  double type = 1e9;
  double more = 1e9;
  for (int run = 0; run < calculateRuns; ++run) {
    const std::vector<Report> told = RunReportingProcess({TRELONIT_EDITOR_WORK}, environment);
    open = std::min(open, Told(told, "opened5").Value);
    longer = std::min(longer, Told(told, "opened10").Value);
    type = std::min(type, Told(told, "typed10000").Value);
    more = std::min(more, Told(told, "typed20000").Value);
  }
  table.Row("opening 5 MB of rich text", open, 1000, "ms");
  table.Row("opening 10 MB / 5 MB of rich text", longer / open, linear, "x");
  table.Row("typing and undoing 20,000 / 10,000 keys (" + FormatPlain(type, 0, {}) + " ms)",
            more / type, linear, "x");
}

void AddDrawingRows(Table& table, const Environment& environment) {
  constexpr double frameAtSixty = 1000.0 / 60;
  double whole = 1e9;
  double close = 1e9;
  for (int run = 0; run < calculateRuns; ++run) {
    const std::vector<Report> told = RunReportingProcess({TRELONIT_DRAWING_WORK}, environment);
    whole = std::min(whole, Told(told, "panned").Value);
    close = std::min(close, Told(told, "closepanned").Value);
  }
  table.Row("drawing n = 30, a frame while it is moved", whole, frameAtSixty, "ms");
  table.Row("the same six times larger", close, frameAtSixty, "ms");
}

}  // namespace

void AddDesktopRows(Table& table) {
  const BackgroundProcess display({"Xvfb", "-displayfd",
                                   std::to_string(BackgroundProcess::reportDescriptor), "-screen",
                                   "0", "1280x800x24", "-noreset", "-nolisten", "tcp"});
  const Environment onDisplay = Desktop("xcb", ":" + display.FirstLine());
  double empty = 1e9;
  double program = 1e9;
  double memory = 0;
  // Unpacks the catalogue and warms the caches.
  RunReportingProcess({TRELONIT_WHOLE_PROGRAM}, onDisplay);
  // Both take turns, so that a busy moment of the machine hits both alike.
  for (int run = 0; run < startRuns; ++run) {
    empty = std::min(
        empty,
        Told(RunReportingProcess({TRELONIT_EMPTY_WINDOW}, onDisplay), "painted").Milliseconds);
    const Figure painted =
        Told(RunReportingProcess({TRELONIT_WHOLE_PROGRAM}, onDisplay), "painted");
    program = std::min(program, painted.Milliseconds);
    memory = std::max(memory, painted.Value);
  }
  table.Row("start to first paint (" + FormatPlain(program, 0, {}) + " ms) / an empty window's",
            program / empty, 1.6, "x");

  const Environment offScreen = Desktop("offscreen", "");
  double calculate = 1e9;
  double report = 1e9;
  double live = 1e9;
  double memoryAfter = 0;
  for (int run = 0; run < calculateRuns; ++run) {
    const std::vector<Report> told =
        RunReportingProcess({TRELONIT_WHOLE_PROGRAM, "calculate"}, offScreen);
    calculate = std::min(calculate, Told(told, "calculated").Value);
    report = std::min(report, Told(told, "reported").Value);
    live = std::min(live, Told(told, "live").Value);
    memoryAfter = std::max(
        memoryAfter,
        Told(RunReportingProcess({TRELONIT_WHOLE_PROGRAM, "calculate"}, onDisplay), "memory")
            .Value);
  }
  table.Row("Calculate n = 30 to the shown results", calculate, 10, "ms");
  table.Row("a key n = 30 to the shown live result, processor time", live, 8, "ms");
  table.Row("report n = 30 to its shown window", report, 150, "ms");
  AddEditorRows(table, offScreen);
  AddDrawingRows(table, offScreen);
  table.Row("desktop program, memory after start", memory, 120, "MB");
  table.Row("desktop program, memory after Calculate", memoryAfter, 120, "MB");
}

}  // namespace trelonit::bench
