#include "editor/associations/MimeAssociations.h"

#include <array>

namespace trelonit {

namespace {

constexpr const char* plainText = "text/plain";
constexpr std::array ownedTypes{plainText, "text/x-log", "application/x-trelonit-project"};

}  // namespace

AssociationChoice MimeAssociations::Present() {
  return {.Owner = defaults_.DefaultProgram(plainText) == desktopEntry ? TextOwner::Pad
                                                                       : TextOwner::System};
}

void MimeAssociations::Apply(const AssociationChoice& choice) {
  if (choice.Owner == TextOwner::Other) {
    return;
  }
  for (const char* type : ownedTypes) {
    if (choice.Owner == TextOwner::Pad) {
      defaults_.SetDefaultProgram(type, desktopEntry);
    } else {
      defaults_.UndoDefaultProgram(type, desktopEntry);
    }
  }
}

std::string MimeAssociations::WhyNot() {
  return defaults_.HasProgram(desktopEntry)
             ? std::string()
             : "Программа не установлена: рабочий стол не может назначить ее для файлов.";
}

std::string MimeAssociations::WhyNoSendTo() const {
  return "На этом рабочем столе нет меню «Отправить»: файл открывают командой «Открыть с помощью».";
}

std::string MimeAssociations::WhyNoSourceViewer() const {
  return "Здесь браузер показывает исходный текст страницы сам, выбрать программу нельзя.";
}

}  // namespace trelonit
