#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit {

/// Icon and buttons of a message box; the values are the platform's own and appear in the console
/// program's output.
enum class MessageStyle : int {
  Plain = 0,
  QuestionYesNoCancel = 3,
  Critical = 16,
  QuestionYesNo = 32 + 4,
  Exclamation = 48,
  Information = 64,
};

enum class MessageAnswer { Ok, Cancel, Yes, No };

/// A message box. An empty title stands for the application's own.
struct Message {
  std::string Title;
  std::string Text;
  MessageStyle Style = MessageStyle::Plain;
  /// It tells that a run-time error has ended a routine.
  bool Failure = false;

  /// Equal to the user's eye.
  friend bool operator==(const Message& a, const Message& b) {
    return a.Title == b.Title && a.Text == b.Text && a.Style == b.Style;
  }
};

/// What is to be told to the user, in its order.
using Messages = std::vector<Message>;

/// Shows message boxes one after the other and waits for the answer.
class MessageService {
 public:
  virtual ~MessageService() = default;
  virtual MessageAnswer Show(const Message& message) = 0;
};

/// The common form of a failure: " Err # ", number, " Discription : ", description, stop icon.
Message ErrorMessage(std::string_view title, int number, std::string_view description);

/// Whether the box asks something, so that its answer counts.
bool IsQuestion(const Message& message);

/// Whether one of the boxes tells that a run-time error has ended a routine.
bool TellFailure(const Messages& messages);

/// Shows one box after the other.
void ShowAll(MessageService& messages, const Messages& told);

}  // namespace trelonit
