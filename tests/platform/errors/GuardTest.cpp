#include <gtest/gtest.h>
#include <ios>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/errors/Guard.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

namespace {

TEST(MessageStyle, HasTheValuesOfThePlatform) {
  EXPECT_EQ(static_cast<int>(MessageStyle::Plain), 0);
  EXPECT_EQ(static_cast<int>(MessageStyle::Critical), 16);
  EXPECT_EQ(static_cast<int>(MessageStyle::QuestionYesNo), 36);
  EXPECT_EQ(static_cast<int>(MessageStyle::Exclamation), 48);
  EXPECT_EQ(static_cast<int>(MessageStyle::Information), 64);
}

TEST(Message, IsAnotherOneWhereTitleTextOrIconIs) {
  const Message message{"title", "text", MessageStyle::Critical};
  EXPECT_EQ(message, (Message{"title", "text", MessageStyle::Critical}));
  EXPECT_NE(message, (Message{"other", "text", MessageStyle::Critical}));
  EXPECT_NE(message, (Message{"title", "other", MessageStyle::Critical}));
  EXPECT_NE(message, (Message{"title", "text", MessageStyle::Exclamation}));
  EXPECT_NE(message, (Message{"other", "other", MessageStyle::Critical}));
  // The user does not see why it is shown.
  EXPECT_EQ(message, (Message{"title", "text", MessageStyle::Critical, true}));
}

TEST(ErrorMessage, TellsNumberAndDescriptionWithAStopIcon) {
  const Message message = ErrorMessage("Form_Load", 53, "File not found");
  EXPECT_EQ(message.Title, "Form_Load");
  EXPECT_EQ(message.Text, " Err # 53 Discription : File not found");
  EXPECT_EQ(message.Style, MessageStyle::Critical);
}

TEST(TellFailure, GoesByWhatHappenedAndNotByItsWords) {
  EXPECT_TRUE(
      TellFailure({{"Form_Load", "fine"}, ErrorMessage("Form_Load", 53, "File not found")}));
  EXPECT_FALSE(TellFailure({{"Form_Load", " Err # 53", MessageStyle::Critical}}));
  EXPECT_FALSE(TellFailure({}));
}

TEST(Guard, RunsTheBodyAndShowsNothing) {
  RecordingMessages messages;
  int runs = 0;
  EXPECT_TRUE(Guard(messages, "title", [&] { ++runs; }));
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(Guard, ShowsARunTimeErrorUnderItsTitle) {
  RecordingMessages messages;
  EXPECT_FALSE(
      Guard(messages, "CalcTrelo1", [] { throw RuntimeError(ErrorNumber::DivisionByZero); }));
  EXPECT_EQ(messages.Shown,
            (std::vector<Message>{{"CalcTrelo1", " Err # 11 Discription : Division by zero",
                                   MessageStyle::Critical}}));
}

TEST(Guard, ShowsTheNumberAndDescriptionOfAHost) {
  RecordingMessages messages;
  EXPECT_FALSE(Guard(messages, "host", [] { throw RuntimeError(-5, "Not ready"); }));
  EXPECT_EQ(messages.Shown, (std::vector<Message>{{"host", " Err # -5 Discription : Not ready",
                                                   MessageStyle::Critical}}));
}

TEST(Guard, LeavesTheBodyAtTheErrorAndKeepsWhatItHadChanged) {
  RecordingMessages messages;
  int steps = 0;
  Guard(messages, "title", [&] {
    ++steps;
    if (steps == 1) {
      throw RuntimeError(ErrorNumber::Overflow);
    }
    ++steps;
  });
  EXPECT_EQ(steps, 1);
}

TEST(Guard, ShowsNothingForAnErrorWithoutANumber) {
  RecordingMessages messages;
  EXPECT_FALSE(Guard(messages, "title", [] { throw RuntimeError(0, "nothing"); }));
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(Guard, ShowsExhaustedMemoryAsItsRunTimeError) {
  RecordingMessages messages;
  EXPECT_FALSE(Guard(messages, "ReDimLoadArrays", [] { throw std::bad_alloc(); }));
  EXPECT_EQ(messages.Shown,
            (std::vector<Message>{{"ReDimLoadArrays", " Err # 7 Discription : Out of memory",
                                   MessageStyle::Critical}}));
}

TEST(Guard, ShowsAFailedStreamAsADeviceError) {
  RecordingMessages messages;
  EXPECT_FALSE(Guard(messages, "Restore comand", [] { throw std::ios_base::failure("read"); }));
  EXPECT_EQ(messages.Shown,
            (std::vector<Message>{{"Restore comand", " Err # 57 Discription : Device I/O error",
                                   MessageStyle::Critical}}));
}

TEST(Guard, ShowsWhatNobodyForesawInItsOwnWords) {
  RecordingMessages messages;
  EXPECT_FALSE(Guard(messages, "title", [] { throw std::length_error("too long"); }));
  EXPECT_FALSE(Guard(messages, "title", [] { throw 1; }));
  EXPECT_EQ(messages.Shown,
            (std::vector<Message>{
                {"title", " Err # 51 Discription : too long", MessageStyle::Critical},
                {"title", " Err # 51 Discription : Internal error", MessageStyle::Critical}}));
}

TEST(Guard, ShowsAnErrorOnceWhenGuardsAreNested) {
  RecordingMessages messages;
  const bool outer = Guard(messages, "outer", [&] {
    EXPECT_FALSE(Guard(messages, "inner", [] { throw RuntimeError(ErrorNumber::TypeMismatch); }));
  });
  EXPECT_TRUE(outer);
  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(messages.Shown[0].Title, "inner");
}

TEST(PassOver, RunsTheStatement) {
  int runs = 0;
  EXPECT_TRUE(PassOver([&] { ++runs; }));
  EXPECT_EQ(runs, 1);
}

TEST(PassOver, GoesOnAfterARunTimeError) {
  int steps = 0;
  EXPECT_FALSE(PassOver([&] {
    ++steps;
    throw RuntimeError(ErrorNumber::ObjectNotSet);
  }));
  EXPECT_EQ(steps, 1);
}

TEST(PassOver, GoesOnAfterAFailedStream) {
  EXPECT_FALSE(PassOver([] { throw std::ios_base::failure("read"); }));
}

// Exhausted memory is a run-time error as any other, for Guard as well.
TEST(PassOver, GoesOnWhenMemoryIsExhausted) {
  bool ran = true;
  EXPECT_NO_THROW(ran = PassOver([] { throw std::bad_alloc(); }));
  EXPECT_FALSE(ran);
}

}  // namespace

}  // namespace trelonit::test
