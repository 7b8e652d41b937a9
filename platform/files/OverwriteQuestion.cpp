#include "platform/files/OverwriteQuestion.h"

namespace trelonit {

bool MayOverwrite(MessageService& messages) {
  return messages.Show({.Title = "Переписать файл ?",
                        .Text = "Такой файл уже существует! Заменить?",
                        .Style = MessageStyle::QuestionYesNo}) == MessageAnswer::Yes;
}

}  // namespace trelonit
