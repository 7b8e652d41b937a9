#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

#include "tests/windows/Hands.h"
#include "tests/workstation/main/Desk.h"
#include "windows/dialogs/AboutWindow.h"

namespace trelonit::test {
namespace {

class AboutTheProgram : public ::testing::Test {
 protected:
  AboutTheProgram() {
    Form.Form_Load();
    Window = std::make_unique<AboutWindow>(Form, nullptr);
    Window->show();
  }
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const QLabel* label : Window->findChildren<QLabel*>()) {
      texts.push_back(FromQt(label->text()));
    }
    return texts;
  }
  Desk desk;
  frmAbout Form{desk.Outside.Bundle()};
  std::unique_ptr<AboutWindow> Window;
};

TEST_F(AboutTheProgram, TellsItsNameVersionAndPurpose) {
  EXPECT_EQ(FromQt(Window->windowTitle()), "About Трелонит");
  const std::vector<std::string> expected{"Трелонит", "Версия 1.0.0",
                                          desk.Outside.Bundle().Resources.String(101)};
  EXPECT_EQ(Texts(), expected);
  EXPECT_FALSE(expected.back().empty());
}

TEST_F(AboutTheProgram, OkUnloadsIt) {
  Click(Find<QAbstractButton>(*Window, "cmdOK"));
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(AboutTheProgram, EscapeAndEnterUnloadIt) {
  QTest::keyClick(Window.get(), Qt::Key_Escape);
  EXPECT_FALSE(Window->isVisible());
  Window->show();
  QTest::keyClick(Window.get(), Qt::Key_Return);
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(AboutTheProgram, TellsThatThereIsNoSystemInformation) {
  Click(Find<QAbstractButton>(*Window, "cmdSysInfo"));
  EXPECT_EQ(desk.TakeMessages(),
            Messages{Message{.Text = "System Information Is Unavailable At This Time"}});
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(AboutTheProgram, StartsTheToolOfTheRegistry) {
  desk.Outside.Registry
      .Keys[{RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"}]["PATH"] =
      "tool.exe";
  Click(Find<QAbstractButton>(*Window, "cmdSysInfo"));
  EXPECT_EQ(desk.Outside.Shell.Started, std::vector<std::string>{"tool.exe"});
}

TEST_F(AboutTheProgram, LeavesTheFormUsable) {
  Window.reset();
  EXPECT_FALSE(Form.Unload);
  EXPECT_NO_THROW(Form.cmdOK_Click());
  const AboutWindow again(Form, nullptr);
  EXPECT_EQ(FromQt(again.windowTitle()), "About Трелонит");
}

}  // namespace
}  // namespace trelonit::test
