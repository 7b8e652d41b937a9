#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "apps/trelonit/DesktopSession.h"
#include "apps/trelonit/Machine.h"
#include "platform/errors/Message.h"
#include "platform/system/Caller.h"
#include "platform/system/ProgramNames.h"
#include "windows/services/Desktop.h"
#include "windows/services/FontsAhead.h"
#include "windows/services/GuardedApplication.h"

namespace {

void Tell(const trelonit::RuntimeError& error) {
  trelonit::DesktopMessages().Show(
      trelonit::ErrorMessage(trelonit::applicationTitle, error.Number(), error.Description()));
}

/// The answer to --help or --version, to a wrong command line its line; nothing to go on.
/// They need no display, so they come before the application.
std::optional<int> AnswerCommandLine(int argc, char** argv) {
  if (argc < 2) {
    return std::nullopt;
  }
  const std::string_view argument = argv[1];
  if (argc == 2 && argument == "--version") {
    trelonit::TellCaller(std::string("trelonit ") + trelonit::applicationVersion + '\n');
    return 0;
  }
  if (argc == 2 && (argument == "--help" || argument == "-h")) {
    trelonit::TellCaller(
        "Использование: trelonit [ФАЙЛ]\n\n"
        "Расчет плоских стальных стропильных ферм: открывает рабочее окно программы.\n"
        "Проект (.tsav) восстанавливается в этом окне, документ (.txt, .rtf, .doc)\n"
        "открывается в окне отчета. Расчет без окон: trelonit-cli --help.\n\n"
        "  -h, --help   показать эту справку\n"
        "  --version    показать версию\n");
    return 0;
  }
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  if (const std::optional<int> answer = AnswerCommandLine(argc, argv)) {
    return *answer;
  }
  try {
    trelonit::PrepareToolkit();
    trelonit::FontsAhead fonts;
    trelonit::GuardedApplication application(argc, argv);
    const trelonit::FontsAhead::Taken untilItEnds(fonts);
    application.Tell = Tell;
    const std::optional<std::string> file = trelonit::HandedFile(QApplication::arguments());
    if (!file) {
      trelonit::ComplainToCaller("trelonit: можно открыть один файл; справка: trelonit --help\n");
      return 2;
    }
    const trelonit::Desktop desktop;
    trelonit::DesktopSession session;
    session.Start(*file, [&fonts] { fonts.WaitForList(); });
    return QApplication::exec();
  } catch (const std::exception& error) {
    trelonit::ComplainToCaller(std::string("trelonit: ") + error.what() + '\n');
    return 1;
  }
}
