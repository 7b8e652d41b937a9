#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <optional>

#include "editor/associations/frmAssoc.h"
#include "platform/errors/RuntimeError.h"
#include "tests/windows/DialogHands.h"
#include "windows/editor/AssocWindow.h"

namespace trelonit::test {

/// A machine of which the test says what it is and can do.
class ScriptedAssociations : public FileAssociations {
 public:
  AssociationChoice Present() override { return State; }
  void Apply(const AssociationChoice& choice) override {
    ++Applied;
    if (Failure) {
      throw RuntimeError(*Failure);
    }
    State = choice;
  }
  std::string OwnedFiles() const override { return Files; }
  std::string WhyNoSendTo() const override { return NoSendTo; }
  std::string WhyNoSourceViewer() const override { return NoSourceViewer; }

  AssociationChoice State{.Owner = TextOwner::System};
  std::optional<ErrorNumber> Failure;
  int Applied = 0;
  std::string Files = ".txt, .log";
  std::string NoSendTo;
  std::string NoSourceViewer;
};

/// The window of the associations on screen.
class AssocScreen {
 public:
  /// Makes, loads and shows the window.
  void Open() {
    Window.reset();
    Form.emplace(Machine, Messages);
    Form->Form_Load();
    Window.emplace(*Form, nullptr);
    ShowActive(*Window);
  }
  QAbstractButton& Button(const std::string& name) { return Find<QAbstractButton>(*Window, name); }
  QLabel& Reason(const std::string& name) { return Find<QLabel>(*Window, name); }

  ScriptedAssociations Machine;
  RecordingMessages Messages;
  std::optional<frmAssoc> Form;
  std::optional<AssocWindow> Window;
};

}  // namespace trelonit::test
