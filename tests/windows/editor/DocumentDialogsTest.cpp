// The common dialogues of the document window, as the desktop shows them.

#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>

#include "editor/document/MemoryRichTextBox.h"
#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "windows/editor/DocumentDialogs.h"

namespace trelonit::test {
namespace {

class DocumentDialogsOnScreen : public ::testing::Test {
 protected:
  std::string Path(const QString& name) const { return FileFromQt(folder_.filePath(name)); }
  std::string MakeFile(const QString& name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return Path(name);
  }
  std::string BytesOf(const QString& name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << FromQt(name);
    return file.readAll().toStdString();
  }
  /// Writes the name and presses Enter.
  static void Take(QFileDialog& dialog, const std::string& name) {
    auto& edit = Find<QLineEdit>(dialog, "fileNameEdit");
    edit.setText(ToQt(name));
    QTest::keyClick(&edit, Qt::Key_Return);
  }
  FileChoice Open(const FileChoice& offered, std::function<void(QFileDialog&)> act) {
    const OnceModal<QFileDialog> once(std::move(act));
    const FileChoice chosen = Dialogs.ShowOpen(offered);
    EXPECT_TRUE(once.Acted());
    return chosen;
  }
  FileChoice Save(const FileChoice& offered, std::function<void(QFileDialog&)> act) {
    const OnceModal<QFileDialog> once(std::move(act));
    const FileChoice chosen = Dialogs.ShowSave(offered);
    EXPECT_TRUE(once.Acted());
    return chosen;
  }
  /// Opens the preview and lets the user act on it.
  void Preview(std::function<void(QDialog&)> act) {
    MemoryRichTextBox box;
    box.SetText("Балка\r\nbeam");
    const OnceModal<QDialog> once(std::move(act));
    Dialogs.PreviewDocument(box, "отчет.rtf");
    EXPECT_TRUE(once.Acted());
  }
  static QAction& StorePdf(const QDialog& preview) {
    auto* action = preview.findChild<QAction*>(QStringLiteral("StorePdf"));
    if (action == nullptr) {
      throw std::logic_error("no way to PDF");
    }
    return *action;
  }

  DocumentDialogs Dialogs;

 private:
  QTemporaryDir folder_;
};

// Files ----------------------------------------------------------------------------------------

TEST_F(DocumentDialogsOnScreen, OfferFourKindsOfFiles) {
  for (Long kind = plainTextKind; kind <= allFilesKind; ++kind) {
    Open({{}, kind}, [kind](QFileDialog& dialog) {
      const QStringList kinds{"Plain text (*.txt)", "Rich text (*.rtf)", "Word Document (*.doc)",
                              "All files (*)"};
      EXPECT_EQ(dialog.nameFilters(), kinds);
      EXPECT_EQ(dialog.selectedNameFilter(), kinds[kind - 1]);
      EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
      EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
      EXPECT_EQ(FromQt(dialog.windowTitle()), "Открыть документ");
    });
  }
}

TEST_F(DocumentDialogsOnScreen, TellWhichFileAndKindWereChosen) {
  const std::string name = MakeFile("отчет.rtf");
  EXPECT_EQ(Open({{}, allFilesKind}, [&](QFileDialog& dialog) { Take(dialog, name); }),
            (FileChoice{name, allFilesKind}));
  EXPECT_EQ(Open({{}, allFilesKind},
                 [&](QFileDialog& dialog) {
                   Pick(Find<QComboBox>(dialog, "fileTypeCombo"), "Rich text (*.rtf)");
                   Take(dialog, name);
                 }),
            (FileChoice{name, richTextKind}));
}

TEST_F(DocumentDialogsOnScreen, TakeACancelForNoName) {
  const auto cancel = [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
  EXPECT_EQ(Open({{}, wordKind}, cancel), (FileChoice{{}, wordKind}));
  EXPECT_EQ(Save({Path("a.txt"), richTextKind}, cancel), (FileChoice{{}, richTextKind}));
}

TEST_F(DocumentDialogsOnScreen, OfferThePresentNameToSaveUnder) {
  const std::string name = MakeFile("отчет.rtf");
  EXPECT_EQ(Save({name, richTextKind},
                 [&](QFileDialog& dialog) {
                   EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
                   EXPECT_EQ(FromQt(dialog.windowTitle()), "Сохранить документ как");
                   EXPECT_EQ(dialog.selectedNameFilter(), "Rich text (*.rtf)");
                   auto& edit = Find<QLineEdit>(dialog, "fileNameEdit");
                   EXPECT_EQ(FromQt(edit.text()), "отчет.rtf");
                   // The file is there: whether it is replaced is the editor's question.
                   QTest::keyClick(&edit, Qt::Key_Return);
                   EXPECT_FALSE(dialog.isVisible());
                 }),
            (FileChoice{name, richTextKind}));
}

TEST_F(DocumentDialogsOnScreen, LeaveTheExtensionOfANewNameToTheEditor) {
  const std::string name = Path("новый");
  EXPECT_EQ(Save({{}, plainTextKind},
                 [&](QFileDialog& dialog) {
                   Pick(Find<QComboBox>(dialog, "fileTypeCombo"), "Word Document (*.doc)");
                   Take(dialog, name);
                 }),
            (FileChoice{name, wordKind}));
}

// Colour ---------------------------------------------------------------------------------------

TEST_F(DocumentDialogsOnScreen, ChooseAColour) {
  {
    const OnceModal<QColorDialog> once([](QColorDialog& dialog) {
      EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
      dialog.setCurrentColor(QColor(1, 2, 3));
      dialog.accept();
    });
    EXPECT_EQ(Dialogs.ShowColor(0x332211), Color{0x030201});
    EXPECT_TRUE(once.Acted());
  }
  const OnceModal<QColorDialog> once(
      [](QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(Dialogs.ShowColor(colorRed), std::nullopt);
  EXPECT_TRUE(once.Acted());
}

// Paper ----------------------------------------------------------------------------------------

TEST_F(DocumentDialogsOnScreen, ShowThePagesAndStoreThemAsPdf) {
  const std::string name = Path("страницы");
  Preview([&](QDialog& preview) {
    EXPECT_TRUE(preview.inherits("QPrintPreviewDialog"));
    EXPECT_EQ(FromQt(preview.windowTitle()), "Предварительный просмотр - отчет.rtf");
    const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
      EXPECT_EQ(FromQt(Find<QLineEdit>(dialog, "fileNameEdit").text()), "отчет");
      EXPECT_EQ(dialog.nameFilters(), QStringList{"Документ PDF (*.pdf)"});
      Take(dialog, name);
    });
    StorePdf(preview).trigger();
    EXPECT_TRUE(once.Acted());
    EXPECT_TRUE(preview.isVisible());
  });
  const std::string bytes = BytesOf("страницы.pdf");
  EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
  EXPECT_NE(bytes.find("%%EOF"), std::string::npos);
}

TEST_F(DocumentDialogsOnScreen, PreviewThePagesOnNoMoreThanTheScreen) {
  Preview([](QDialog& preview) {
    const QSize room = preview.screen()->availableSize();
    if (room.width() >= 900) {
      GTEST_SKIP() << "this screen has room for the usual size";
    }
    EXPECT_LE(preview.frameGeometry().width(), room.width());
    EXPECT_LE(preview.frameGeometry().height(), room.height());
  });
}

TEST_F(DocumentDialogsOnScreen, AskForTheNameOfPages) {
  const std::string name = Path("страницы");
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Экспорт в PDF");
    EXPECT_EQ(FromQt(Find<QLineEdit>(dialog, "fileNameEdit").text()), "отчет.pdf");
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    Take(dialog, name);
  });
  EXPECT_EQ(Dialogs.ShowSavePdf(Path("отчет.pdf")), name + ".pdf");
}

TEST_F(DocumentDialogsOnScreen, MakeTheSamePagesWithoutThePreview) {
  MemoryRichTextBox box;
  box.SetText("beam");
  const std::optional<std::string> pdf = Dialogs.PdfOf(box, "отчет.pdf");
  ASSERT_TRUE(pdf);
  EXPECT_TRUE(pdf->starts_with("%PDF-"));
  EXPECT_NE(pdf->find("/Count 1"), std::string::npos);
}

TEST_F(DocumentDialogsOnScreen, StoreNothingWhereTheNameIsCancelled) {
  Preview([](QDialog& preview) {
    const OnceModal<QFileDialog> once(
        [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    StorePdf(preview).trigger();
    EXPECT_TRUE(once.Acted());
    QTest::keyClick(&preview, Qt::Key_Escape);
    EXPECT_FALSE(preview.isVisible());
  });
  EXPECT_TRUE(QDir(ToQt(Path(""))).isEmpty());
}

TEST_F(DocumentDialogsOnScreen, TellThatAPdfCannotBeStored) {
  Preview([&](QDialog& preview) {
    std::string told;
    const OnceModal<QFileDialog> naming([&](QFileDialog& dialog) {
      // A folder stands where the file would.
      QDir().mkdir(ToQt(Path("a.pdf")));
      dialog.setDirectory(ToQt(Path("")));
      Find<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("a.pdf"));
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    const OnceModal<QMessageBox> telling([&told](QMessageBox& box) { told = FromQt(box.text()); });
    EXPECT_NO_THROW(StorePdf(preview).trigger());
    EXPECT_NE(told.find("Err # "), std::string::npos) << told;
    EXPECT_TRUE(preview.isVisible());
  });
}

TEST_F(DocumentDialogsOnScreen, KeepThePaperThatWasChosen) {
  {
    const OnceModal<QDialog> once([](QDialog& dialog) {
      Click(Find<QAbstractButton>(dialog, "landscape"));
      Click(StandardButton(dialog, QDialogButtonBox::Ok));
      EXPECT_FALSE(dialog.isVisible());
    });
    Dialogs.PageSetup();
    EXPECT_TRUE(once.Acted());
  }
  Preview([this](QDialog& preview) {
    const OnceModal<QFileDialog> once(
        [this](QFileDialog& dialog) { Take(dialog, Path("поперек.pdf")); });
    StorePdf(preview).trigger();
  });
  // A4, in points, lying.
  const std::string bytes = BytesOf("поперек.pdf");
  EXPECT_NE(bytes.find("/MediaBox [0 0 842"), std::string::npos)
      << bytes.substr(bytes.find("/MediaBox"), 40);
}

TEST_F(DocumentDialogsOnScreen, PrintToAFile) {
  MemoryRichTextBox box;
  box.SetText("beam");
  const std::string name = Path("лист.pdf");
  const OnceModal<QDialog> once([&name](QDialog& dialog) {
    auto& printers = Find<QComboBox>(dialog, "printers");
    printers.setCurrentIndex(printers.count() - 1);  // the one that prints to a file
    Find<QLineEdit>(dialog, "filename").setText(ToQt(name));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Dialogs.PrintDocument(box, "отчет");
  EXPECT_TRUE(once.Acted());
  EXPECT_EQ(BytesOf("лист.pdf").substr(0, 5), "%PDF-");
}

TEST_F(DocumentDialogsOnScreen, AskForPaperAndPrinter) {
  {
    const OnceModal<QDialog> once([](QDialog& dialog) {
      EXPECT_TRUE(dialog.inherits("QPageSetupDialog"));
      EXPECT_EQ(FromQt(dialog.windowTitle()), "Параметры страницы");
      QTest::keyClick(&dialog, Qt::Key_Escape);
      EXPECT_FALSE(dialog.isVisible());
    });
    Dialogs.PageSetup();
    EXPECT_TRUE(once.Acted());
  }
  MemoryRichTextBox box;
  box.SetText("beam");
  const OnceModal<QDialog> once([](QDialog& dialog) {
    EXPECT_TRUE(dialog.inherits("QPrintDialog"));
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Печать");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  Dialogs.PrintDocument(box, "отчет");
  EXPECT_TRUE(once.Acted());
}

}  // namespace
}  // namespace trelonit::test
