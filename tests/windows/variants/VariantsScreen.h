#pragma once

#include "tests/windows/DialogHands.h"
#include "windows/variants/VariantPlotView.h"
#include "windows/variants/VariantTableView.h"
#include "windows/variants/VariantsWindow.h"

namespace trelonit::test {

/// The program with loads on its truss, and the window of the studies over it.
class VariantsScreen {
 public:
  VariantsScreen() {
    for (double& load : Program.Root.Main().Model.Inputs.Loads.UpDistForce) {
      load = 1.2;
    }
  }

  /// Opens the window as the menu does; the test's work is done in it.
  void Open(const std::function<void()>& work) {
    work_ = work;
    Program.Trigger("mnuVariants");
  }
  QAbstractButton& Button(const std::string& name) { return Find<QAbstractButton>(*Window, name); }
  QLineEdit& Edit(const std::string& name) { return Find<QLineEdit>(*Window, name); }
  QLabel& LabelOf(const std::string& name) { return Find<QLabel>(*Window, name); }
  QTableView& Table() { return Find<QTableView>(*Window, "VariantTable"); }
  VariantPlotView& Plot() {
    return dynamic_cast<VariantPlotView&>(Find<QWidget>(*Window, "VariantPlot"));
  }
  QAction& Entry(const std::string& name) {
    auto* action = Window->findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no entry " + name);
    }
    return *action;
  }
  /// Three heights and two panel counts.
  void WriteSmall() {
    Type(Edit("txtHeight"), "1.5:2.5:0.5");
    Type(Edit("txtPanels"), "8,10");
  }
  bool Ends() {
    constexpr int longest = 20'000;
    return QTest::qWaitFor([this] { return !Form->IsRunning(); }, longest);
  }
  void RunToTheEnd() {
    Click(Button("cmdStart"));
    ASSERT_TRUE(Ends());
  }
  std::string Cell(int row, int column) {
    return FromQt(Table().model()->index(row, column).data().toString());
  }

  frmVariants* Form = nullptr;
  VariantsWindow* Window = nullptr;
  int Opened = 0;
  ProgramWith Program{{.ShowVariants = [this](frmVariants& form) {
    ++Opened;
    VariantsWindow window(form, nullptr);
    Form = &form;
    Window = &window;
    window.show();
    work_();
    Window = nullptr;
  }}};

 private:
  std::function<void()> work_ = [] {};
};

}  // namespace trelonit::test
