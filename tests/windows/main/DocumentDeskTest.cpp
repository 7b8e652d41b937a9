#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

#include "platform/files/Paths.h"
#include "tests/windows/main/Screen.h"
#include "windows/main/DocumentDesk.h"

namespace trelonit::test {
namespace {

class WindowDocument : public ::testing::Test {
 protected:
  WindowDocument()
      : document(screen.Main, screen.Outside.Bundle(),
                 StateFolder(PathOfUtf8(FromQt(folder.path())))) {
    desk = new DocumentDesk(document, screen.Window, screen.Outside.Settings);
    screen.Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&screen.Window));
  }
  // The document outlives it.
  ~WindowDocument() override { delete desk; }

  static void Settle() { QTest::qWait(1); }
  std::string Title() { return FromQt(screen.Window.windowTitle()); }
  void Save(const std::string& name) {
    screen.Outside.Dialogs.Names = {name};
    screen.MenuEntry("mnuSaveAs").trigger();
  }
  /// Drops files on a widget, as a file manager does.
  static bool Drop(QWidget& target, const QList<QUrl>& files) {
    QMimeData content;
    content.setUrls(files);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &content, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
      return false;
    }
    QDropEvent drop({5, 5}, Qt::CopyAction, &content, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    Settle();
    return true;
  }

  const QTemporaryDir folder;
  Screen screen;
  ProjectDocument document;
  DocumentDesk* desk = nullptr;
};

TEST_F(WindowDocument, StandsInTheTitleBehindTheRunningCaption) {
  screen.Main.Form.SetCaption("Трелонит v 1.0.0 *** text *** ");
  EXPECT_EQ(Title(), "Трелонит v 1.0.0 *** text ***  Новый проект[*]");
  EXPECT_FALSE(screen.Window.isWindowModified());
  screen.TypeInto("txtLengthF", "30");
  Settle();
  EXPECT_TRUE(screen.Window.isWindowModified());
  Save(WholeName("ферма.tsav"));
  EXPECT_FALSE(screen.Window.isWindowModified());
  // The caption may have run on meanwhile.
  EXPECT_TRUE(Title().ends_with(" ***  ферма.tsav[*]")) << Title();
}

TEST_F(WindowDocument, KeepsTheFormsEntriesInTheirPlaces) {
  QStringList entries;
  for (const QAction* action : screen.Window.menuBar()->actions().front()->menu()->actions()) {
    if (!action->isSeparator()) {
      entries.append(action->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')));
    }
  }
  EXPECT_EQ(FromQt(entries.join(QLatin1Char('|'))),
            "Сохранить|Сохранить в тот же файл|Сохранить как ...|Восстановить|Последние "
            "файлы|Выход");
  EXPECT_EQ(screen.MenuEntry("mnuSave").shortcut(), QKeySequence(QKeySequence::Save));
  EXPECT_EQ(screen.MenuEntry("mnuSaveAs").shortcut(), QKeySequence("Ctrl+Shift+S"));
}

TEST_F(WindowDocument, TheKnownKeySavesToTheSameFile) {
  Save(WholeName("a.tsav"));
  screen.TypeInto("txtLengthF", "31");
  Settle();
  const std::size_t dialogs = screen.Outside.Dialogs.Requests.size();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(screen.Window.isWindowModified());
  EXPECT_EQ(screen.Outside.Dialogs.Requests.size(), dialogs);
  EXPECT_NE(screen.Outside.Files.Content[WholeName("a.tsav")].find("\"31\""), std::string::npos);
  EXPECT_EQ(screen.TakeMessages(), Messages());
}

TEST_F(WindowDocument, ClosingAsksAndMayBeRefused) {
  screen.TypeInto("txtLengthF", "31");
  screen.Outside.Messages.Answers = {MessageAnswer::Cancel};
  EXPECT_FALSE(screen.Window.close());
  EXPECT_TRUE(screen.Window.isVisible());
  EXPECT_EQ(screen.TakeMessages().size(), 1U);
  EXPECT_TRUE(screen.Opened.empty());
  screen.Outside.Messages.Answers = {MessageAnswer::No};
  screen.MenuEntry("Exit").trigger();
  EXPECT_EQ(screen.TakeMessages().size(), 1U);
  EXPECT_EQ(screen.Opened, std::vector<std::string>{"End"});
}

TEST_F(WindowDocument, AnUntouchedStartClosesWithoutAQuestion) {
  EXPECT_TRUE(screen.Window.close());
  EXPECT_EQ(screen.TakeMessages(), Messages());
}

TEST_F(WindowDocument, UndoToTheSavedDesignTakesTheMarkAway) {
  screen.TypeInto("txtLengthF", "31");
  Settle();
  EXPECT_TRUE(screen.Window.isWindowModified());
  screen.MenuEntry("mnuUndo").trigger();
  EXPECT_FALSE(screen.Window.isWindowModified());
}

TEST_F(WindowDocument, AProjectIsDroppedAnywhereOnTheWindow) {
  screen.TypeInto("txtLengthF", "31");
  Save(WholeName("dropped.tsav"));
  screen.TypeInto("txtLengthF", "20");
  Save(WholeName("other.tsav"));
  const QUrl project = QUrl::fromLocalFile(ToQt(WholeName("dropped.tsav")));
  EXPECT_TRUE(Drop(screen.Edit("txtHight"), {project}));
  EXPECT_EQ(FromQt(screen.Edit("txtLengthF").text()), "31");
  EXPECT_EQ(FromQt(screen.Edit("txtHight").text()), "1.5");
  EXPECT_EQ(document.File(), WholeName("dropped.tsav"));
}

TEST_F(WindowDocument, WhatIsNoProjectIsNotTaken) {
  const QUrl text = QUrl::fromLocalFile(ToQt(WholeName("a.txt")));
  const QUrl project = QUrl::fromLocalFile(ToQt(WholeName("a.tsav")));
  EXPECT_FALSE(Drop(screen.Window, {text}));
  EXPECT_FALSE(Drop(screen.Window, {project, project}));
  EXPECT_FALSE(Drop(screen.Window, {QUrl(QStringLiteral("http://localhost/a.tsav"))}));
}

TEST_F(WindowDocument, LastFilesOpenFromTheirMenu) {
  screen.TypeInto("txtLengthF", "31");
  Save(WholeName("a.tsav"));
  screen.TypeInto("txtLengthF", "32");
  Save(WholeName("b.tsav"));
  QMenu* file = screen.Window.menuBar()->actions().front()->menu();
  emit file->aboutToShow();
  auto& recent = Find<QMenu>(screen.Window, "mnuRecent");
  ASSERT_EQ(recent.actions().size(), 2);
  EXPECT_EQ(FromQt(recent.actions()[0]->text()), "&1  " + WholeName("b.tsav"));
  recent.actions()[1]->trigger();
  Settle();
  EXPECT_EQ(FromQt(screen.Edit("txtLengthF").text()), "31");
}

}  // namespace
}  // namespace trelonit::test
