// The compiled help by the viewer of the system: its function is called as it wants to be.

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/system/ProgramFolder.h"
#include "tests/win32/ErrorOf.h"
#include "tests/win32/htmlhelp/Viewer.h"
#include "windows/help/HtmlHelp.h"

namespace trelonit::test {

namespace {

/// A viewer of our own. Loaded already, it is what its name means from then on.
class SystemHelp : public testing::Test {
 protected:
  SystemHelp() {
    const HMODULE library = LoadLibraryW((ExecutableFolder() / L"htmlhelp/hhctrl.ocx").c_str());
    if (library == nullptr) {
      throw std::logic_error("no viewer");
    }
    lastCall_ = Function<LastHelpCallFunction>(library, "LastHelpCall");
    answer_ = Function<AnswerHelpCallsFunction>(library, "AnswerHelpCalls");
  }
  const HelpCall& Call() const { return *lastCall_(); }
  void Answer(HWND window) { answer_(window); }

 private:
  template <class FunctionType>
  static FunctionType Function(HMODULE library, const char* name) {
    auto* function = GetProcAddress(library, name);
    if (function == nullptr) {
      throw std::logic_error("the system's own viewer was loaded");
    }
    return reinterpret_cast<FunctionType>(reinterpret_cast<void*>(function));
  }

  LastHelpCallFunction lastCall_ = nullptr;
  AnswerHelpCallsFunction answer_ = nullptr;
};

constexpr const char* helpFile = "C:\\Program Files\\Trelonit\\Trelo calculation.chm";

TEST_F(SystemHelp, GetsTheFileAndTheWindowThatAsks) {
  QLabel window(QStringLiteral("window"));
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto handle = reinterpret_cast<HWND>(window.winId());
  Answer(handle);
  const int before = Call().Count;
  EXPECT_TRUE(ShowHtmlHelp(helpFile));
  EXPECT_EQ(Call().Count, before + 1);
  EXPECT_EQ(Call().Owner, handle);
  EXPECT_EQ(Call().File, helpFile);
  EXPECT_EQ(Call().Command, 0U);
  EXPECT_EQ(Call().Data, 0U);
}

TEST_F(SystemHelp, ThatShowsNoWindowIsAFileThatIsNotThere) {
  Answer(nullptr);
  const int before = Call().Count;
  EXPECT_EQ(ErrorOf([] { ShowHtmlHelp(helpFile); }), 53);
  EXPECT_EQ(Call().Count, before + 1);
}

}  // namespace

}  // namespace trelonit::test
