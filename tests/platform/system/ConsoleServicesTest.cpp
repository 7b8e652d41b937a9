#include <cstdlib>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/console/ConsoleServices.h"

#ifndef _WIN32
#include <array>
#include <pwd.h>
#include <unistd.h>
#endif

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

TEST(ConsoleMessages, WritesTitleAndTextInALine) {
  std::ostringstream stream;
  ConsoleMessages messages(stream);
  messages.Show({"CalcTrelo1", " Err # 11 Discription : Division by zero", MessageStyle::Critical});
  messages.Show({"Трелонит", "Готово", MessageStyle::Information});
  EXPECT_EQ(stream.str(),
            "CalcTrelo1:  Err # 11 Discription : Division by zero\nТрелонит: Готово\n");
}

TEST(ConsoleMessages, WritesTheTextAloneWithoutATitle) {
  std::ostringstream stream;
  ConsoleMessages messages(stream);
  messages.Show({"", "text", MessageStyle::Plain});
  EXPECT_EQ(stream.str(), "text\n");
}

TEST(ConsoleMessages, ShowsControlCharactersOnATerminalAndKeepsThemInAFile) {
  const Message message{"", "a\x1B[2J", MessageStyle::Plain};
  std::ostringstream file;
  ConsoleMessages(file).Show(message);
  EXPECT_EQ(file.str(), "a\x1B[2J\n");
  std::ostringstream terminal;
  ConsoleMessages(terminal, MessageAnswer::No, true).Show(message);
  EXPECT_EQ(terminal.str(), "a\u241B[2J\n");
}

TEST(ConsoleMessages, AnswersQuestionsWithNo) {
  std::ostringstream stream;
  ConsoleMessages messages(stream);
  EXPECT_EQ(messages.Show({"t", "q", MessageStyle::QuestionYesNo}), MessageAnswer::No);
}

TEST(ConsoleMessages, CancelsWhereACancelIsOffered) {
  std::ostringstream stream;
  ConsoleMessages messages(stream, MessageAnswer::Yes);
  EXPECT_EQ(messages.Show({"t", "q", MessageStyle::QuestionYesNoCancel}), MessageAnswer::Cancel);
}

TEST(ConsoleMessages, AnswersQuestionsAsTold) {
  std::ostringstream stream;
  ConsoleMessages messages(stream, MessageAnswer::Yes);
  EXPECT_EQ(messages.Show({"t", "q", MessageStyle::QuestionYesNo}), MessageAnswer::Yes);
}

TEST(ConsoleMessages, DoesNotAskWhatIsAnsweredAlready) {
  std::ostringstream stream;
  ConsoleMessages messages(stream, MessageAnswer::Yes);
  messages.Show({"t", "q", MessageStyle::QuestionYesNo});
  EXPECT_EQ(stream.str(), "");
  EXPECT_TRUE(messages.Shown().empty());
  messages.Show({"t", "q", MessageStyle::QuestionYesNoCancel});
  EXPECT_EQ(stream.str(), "t: q\n");
}

TEST(ConsoleMessages, AnswersEveryOtherMessageWithOk) {
  std::ostringstream stream;
  ConsoleMessages messages(stream, MessageAnswer::Yes);
  for (const MessageStyle style : {MessageStyle::Plain, MessageStyle::Critical,
                                   MessageStyle::Exclamation, MessageStyle::Information}) {
    EXPECT_EQ(messages.Show({"t", "m", style}), MessageAnswer::Ok);
  }
}

TEST(ConsoleMessages, KeepsWhatItHasShown) {
  std::ostringstream stream;
  ConsoleMessages messages(stream);
  EXPECT_TRUE(messages.Shown().empty());
  const Message first{"a", "b", MessageStyle::Exclamation};
  const Message second{"", "c", MessageStyle::QuestionYesNo};
  messages.Show(first);
  messages.Show(second);
  EXPECT_EQ(messages.Shown(), (std::vector<Message>{first, second}));
}

TEST(MemoryClipboard, KeepsTheLastText) {
  MemoryClipboard clipboard;
  EXPECT_FALSE(clipboard.HasText());
  EXPECT_EQ(clipboard.Text(), "");
  clipboard.SetText("one");
  clipboard.SetText("два");
  EXPECT_TRUE(clipboard.HasText());
  EXPECT_EQ(clipboard.Text(), "два");
  clipboard.SetText("");
  EXPECT_FALSE(clipboard.HasText());
}

TEST(MemoryClipboard, KeepsOneTextInBothForms) {
  MemoryClipboard clipboard;
  EXPECT_EQ(clipboard.RichText(), "");
  clipboard.SetRichText("{\\rtf1 a}", "a");
  EXPECT_EQ(clipboard.RichText(), "{\\rtf1 a}");
  EXPECT_EQ(clipboard.Text(), "a");
  clipboard.SetText("b");
  EXPECT_EQ(clipboard.RichText(), "");
}

TEST(MemorySettings, GiveTheFallbackWhereNothingIsStored) {
  MemorySettings settings;
  EXPECT_EQ(settings.Get("section", "key", "fallback"), "fallback");
  EXPECT_EQ(settings.Get("section", "key", ""), "");
}

TEST(MemorySettings, KeepTextsBySectionAndKey) {
  MemorySettings settings;
  settings.Set("a", "key", "one");
  settings.Set("b", "key", "two");
  settings.Set("a", "other", "");
  EXPECT_EQ(settings.Get("a", "key", "-"), "one");
  EXPECT_EQ(settings.Get("b", "key", "-"), "two");
  EXPECT_EQ(settings.Get("a", "other", "-"), "");
  EXPECT_EQ(settings.Get("b", "other", "-"), "-");
  settings.Set("a", "key", "three");
  EXPECT_EQ(settings.Get("a", "key", "-"), "three");
}

TEST(NoRegistry, OpensNoKey) {
  NoRegistry registry;
  for (const RegistryRoot root :
       {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser, RegistryRoot::LocalMachine}) {
    EXPECT_EQ(registry.Open(root, "SOFTWARE"), nullptr);
  }
}

TEST(NoAutomation, CannotCreateAnyObject) {
  NoAutomation automation;
  EXPECT_EQ(ErrorOf([&] { automation.Create("Word.Application"); }), 429);
  EXPECT_EQ(ErrorOf([&] { automation.Create(""); }), 429);
}

TEST(ConsoleShell, StartsNothing) {
  ConsoleShell shell;
  EXPECT_EQ(ErrorOf([&] { shell.StartProgram("/bin/true"); }), 53);
  EXPECT_EQ(ErrorOf([&] { shell.OpenHelp("help.chm"); }), 429);
}

#ifndef _WIN32

TEST(ConsoleShell, TellsTheNamesOfTheSystem) {
  ConsoleShell shell;
  std::array<char, 256> host{};
  ASSERT_EQ(::gethostname(host.data(), host.size() - 1), 0);
  EXPECT_EQ(shell.ComputerName(), host.data());
  const passwd* user = ::getpwuid(::getuid());
  EXPECT_EQ(shell.UserName(), user != nullptr ? user->pw_name : "");
}

/// A time zone far from the universal one, for as long as it lives.
class SystemClockTest : public testing::Test {
 protected:
  SystemClockTest() {
    if (const char* zone = std::getenv("TZ")) {
      before_ = zone;
    }
    ::setenv("TZ", "TEST-05:30", 1);
    ::tzset();
  }
  ~SystemClockTest() override {
    if (before_) {
      ::setenv("TZ", before_->c_str(), 1);
    } else {
      ::unsetenv("TZ");
    }
    ::tzset();
  }

 private:
  std::optional<std::string> before_;
};

TEST_F(SystemClockTest, TellsTheLocalDateAndTime) {
  SystemClock clock;
  const std::time_t before = std::time(nullptr);
  const ClockReading reading = clock.Now();
  const std::time_t after = std::time(nullptr);

  // The zone is five hours and a half ahead of universal time.
  std::tm universal{};
  universal.tm_year = reading.Year - 1900;
  universal.tm_mon = reading.Month - 1;
  universal.tm_mday = reading.Day;
  universal.tm_hour = reading.Hour - 5;
  universal.tm_min = reading.Minute - 30;
  universal.tm_sec = reading.Second;
  const std::time_t told = ::timegm(&universal);
  EXPECT_GE(told, before);
  EXPECT_LE(told, after);
  EXPECT_TRUE(reading.Month >= 1 && reading.Month <= 12) << reading.Month;
  EXPECT_TRUE(reading.Hour >= 0 && reading.Hour <= 23) << reading.Hour;
}

#endif

}  // namespace

}  // namespace trelonit::test
