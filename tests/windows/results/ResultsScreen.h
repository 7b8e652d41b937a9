#pragma once

#include <QListWidget>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "apps/Program.h"
#include "tests/windows/Hands.h"
#include "tests/workstation/main/Desk.h"
#include "windows/main/MainWindow.h"
#include "windows/results/KoeffOfUseWindow.h"

namespace trelonit::test {

/// What a results window showed before it was closed.
struct SeenResults {
  std::vector<std::string> Heads;
  std::vector<Grid::Row> Rows;
  std::vector<std::string> Lines;

  friend bool operator==(const SeenResults&, const SeenResults&) = default;
};

inline SeenResults Look(const QWidget& window) {
  SeenResults seen;
  const auto& table = Find<QTableWidget>(window, "MSFlexGKoefUse");
  for (int column = 0; column < table.columnCount(); ++column) {
    seen.Heads.push_back(FromQt(table.horizontalHeaderItem(column)->text()));
  }
  for (int row = 0; row < table.rowCount(); ++row) {
    seen.Rows.push_back({FromQt(table.item(row, 0)->text()), FromQt(table.item(row, 1)->text())});
  }
  const auto& list = Find<QListWidget>(window, "lstForces");
  for (int row = 0; row < list.count(); ++row) {
    seen.Lines.push_back(FromQt(list.item(row)->text()));
  }
  return seen;
}

/// The whole program with its windows in the outside world of a test. A results window is looked at
/// and closed by its button.
class ProgramScreen {
 public:
  /// With files in memory.
  ProgramScreen() : ProgramScreen(nullptr, "/program") {}
  /// With files of the caller's, the program's own in the folder.
  ProgramScreen(FileService& files, const std::string& folder) : ProgramScreen(&files, folder) {}

  QTabWidget& Tabs() { return Find<QTabWidget>(*Window, "tabMain"); }
  void GoTo(int tab) { ClickTab(Tabs(), tab); }
  void Press(const std::string& name) { Click(Find<QAbstractButton>(*Window, name)); }
  void TypeInto(const std::string& name, const std::string& text) {
    Type(Find<QLineEdit>(*Window, name), text);
  }
  void PickIn(const std::string& name, const std::string& entry) {
    Pick(Find<QComboBox>(*Window, name), entry);
  }
  void Trigger(const char* menuEntry) { Window->findChild<QAction*>(menuEntry)->trigger(); }

 private:
  EmbeddedResources resources_;

 public:
  World Outside;
  std::vector<SeenResults> Seen;
  /// Looks at a results window before it is closed.
  std::function<void(KoeffOfUseWindow&)> Inspect;
  Program Root;
  std::unique_ptr<MainWindow> Window;

 private:
  ProgramScreen(FileService* files, const std::string& folder)
      : Outside(resources_),
        Root(BundleWith(files, folder),
             {.ShowKoeffOfUse = [this](frmKoeffOfUse& form) { Show(form); },
              .ShowAbout = [](frmAbout&) {},
              .EndProgram = [] {}}) {
    Root.Main().Form_Load();
    Window = std::make_unique<MainWindow>(Root.Main(), Outside.Settings);
    Window->CompleteTabs();
    Window->show();
  }

  Services BundleWith(FileService* files, const std::string& folder) {
    const Services whole = Outside.Bundle();
    return {whole.Messages,  whole.Dialogs,
            whole.Clipboard, whole.Settings,
            whole.Registry,  whole.Automation,
            whole.Shell,     whole.Clock,
            whole.Resources, files == nullptr ? whole.Files : *files,
            whole.Locale,    folder};
  }

  void Show(frmKoeffOfUse& form) {
    KoeffOfUseWindow results(form, Window.get());
    results.show();
    Seen.push_back(Look(results));
    if (Inspect) {
      Inspect(results);
    }
    Click(Find<QAbstractButton>(results, "cmdClose"));
    EXPECT_FALSE(results.isVisible());
    EXPECT_EQ(results.result(), QDialog::Accepted);
  }
};

}  // namespace trelonit::test
