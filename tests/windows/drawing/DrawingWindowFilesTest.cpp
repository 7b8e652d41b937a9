#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTemporaryDir>

#include "tests/windows/Modal.h"
#include "tests/windows/drawing/DrawingScreen.h"

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace trelonit::test {
namespace {

/// Types the name and presses the button that takes it.
void Take(QFileDialog& dialog, const QString& name) {
  dialog.setDirectory(QFileInfo(name).absolutePath());
  dialog.findChild<QLineEdit*>()->setText(QFileInfo(name).fileName());
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Save), Qt::LeftButton);
}

class DrawingWindowFiles : public DrawingWindowOnScreen {
 protected:
  QString At(const QString& name) const { return Folder.filePath(name); }
  QByteArray Bytes(const QString& name) const {
    QFile file(At(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << FromQt(name);
    return file.readAll();
  }
  /// Lets the act open its dialogue and takes this name there.
  void SaveAs(const std::function<void()>& act, const QString& name) {
    const OnceModal<QFileDialog> once([&](QFileDialog& dialog) { Take(dialog, name); });
    act();
    EXPECT_TRUE(once.Acted());
  }
  /// The same where the file cannot be written: what the user is told.
  std::string Refusal(const std::string& entry, const QString& name) {
    std::string told;
    const OnceModal<QMessageBox> box([&](QMessageBox& message) {
      EXPECT_EQ(FromQt(message.windowTitle()), "Чертеж");
      EXPECT_EQ(message.icon(), QMessageBox::Critical);
      EXPECT_EQ(message.textFormat(), Qt::PlainText);
      told = FromQt(message.text());
      message.accept();
    });
    SaveAs([&] { Entry(entry).trigger(); }, name);
    EXPECT_TRUE(box.Acted());
    return told;
  }
  QStringList Files() const { return QDir(Folder.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir Folder;
};

TEST_F(DrawingWindowFiles, TakesTheSheetThatIsChosen) {
  struct Case {
    const char* Name;
    const char* Sheet;
    double Width;
  };
  for (const Case& c :
       {Case{"PaperA4", "Лист A4, М 1:40", 297}, Case{"PaperA3", "Лист A3, М 1:40", 420},
        Case{"PaperA2", "Лист A2, М 1:20", 594}, Case{"PaperA1", "Лист A1, М 1:15", 841},
        Case{"PaperA0", "Лист A0, М 1:10", 1189}, Case{"Paper", "Лист A4, М 1:40", 297}}) {
    Entry(c.Name).trigger();
    EXPECT_TRUE(Entry(c.Name).isChecked());
    EXPECT_EQ(Says("Sheet"), c.Sheet);
    SaveAs([&] { Entry("SaveSvg").trigger(); }, At(QLatin1String(c.Name)));
    EXPECT_TRUE(Bytes(QLatin1String(c.Name) + ".svg")
                    .contains(QByteArray("width=\"") + QByteArray::number(c.Width) + "mm\""))
        << c.Name;
  }
}

TEST_F(DrawingWindowFiles, WritesEveryKindOfFile) {
  struct Case {
    const char* Entry;
    const char* Title;
    const char* Extension;
    const char* Beginning;
  };
  for (const Case& c : {Case{"SaveDxf", "Сохранить как DXF", ".dxf", "  0\nSECTION"},
                        Case{"SaveSvg", "Экспорт в SVG", ".svg", "<?xml"},
                        Case{"SavePdf", "Экспорт в PDF", ".pdf", "%PDF-"},
                        Case{"SavePng", "Экспорт в PNG", ".png", "\x89PNG"}}) {
    const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
      EXPECT_EQ(FromQt(dialog.windowTitle()), c.Title);
      EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(QFileInfo(dialog.selectedFiles().value(0)).fileName(),
                "Drawing2" + QLatin1String(c.Extension));
      EXPECT_TRUE(dialog.selectedNameFilter().contains("*" + QLatin1String(c.Extension)));
      Take(dialog, At("ферма"));
    });
    Entry(c.Entry).trigger();
    EXPECT_TRUE(once.Acted());
    const QByteArray bytes = Bytes("ферма" + QLatin1String(c.Extension));
    EXPECT_TRUE(bytes.startsWith(c.Beginning)) << c.Entry << bytes.left(20).toStdString();
    EXPECT_EQ(FromQt(Window.statusBar()->currentMessage()),
              FromQt("Записан файл «" + At("ферма") + QLatin1String(c.Extension) + "»"));
  }
  EXPECT_EQ(Files().size(), 4);
  EXPECT_TRUE(Bytes("ферма.dxf").contains("ENDSEC"));
}

TEST_F(DrawingWindowFiles, SavesOnCtrlS) {
  SaveAs([&] { QTest::keyClick(&View(), Qt::Key_S, Qt::ControlModifier); }, At("a.dxf"));
  EXPECT_EQ(Files(), QStringList{"a.dxf"});
}

TEST_F(DrawingWindowFiles, OffersTheFolderOfTheLastFile) {
  SaveAs([&] { Entry("SaveDxf").trigger(); }, At("a.dxf"));
  const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), QDir(Folder.path()).absolutePath());
    EXPECT_EQ(QFileInfo(dialog.selectedFiles().value(0)).fileName(), "Drawing2.svg");
    dialog.reject();
  });
  Entry("SaveSvg").trigger();
  EXPECT_TRUE(once.Acted());
  EXPECT_EQ(Files(), QStringList{"a.dxf"});
}

TEST_F(DrawingWindowFiles, WritesNothingAfterACancel) {
  for (const char* entry : {"SaveDxf", "SaveSvg", "SavePdf", "SavePng"}) {
    const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
      dialog.setDirectory(Folder.path());
      dialog.reject();
    });
    Entry(entry).trigger();
    EXPECT_TRUE(once.Acted());
  }
  EXPECT_TRUE(Files().isEmpty());
}

#ifndef _WIN32
/// Without the rights of root for as long as it stands.
class PlainUser {
 public:
  PlainUser() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::seteuid(nobody) != 0) {
      throw std::logic_error("no other user");
    }
  }
  ~PlainUser() { ::seteuid(::getuid()); }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
};

/// Files of more than so many bytes are refused as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    if (::getrlimit(RLIMIT_FSIZE, &before_) != 0) {
      throw std::logic_error("no limit");
    }
    signal_ = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limited = before_;
    limited.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*signal_)(int) = SIG_DFL;
};

TEST_F(DrawingWindowFiles, TellsAFolderThatMayNotBeWrittenTo) {
  QFile::setPermissions(Folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                           QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                           QFileDevice::ReadOther | QFileDevice::ExeOther);
  for (const std::string kind : {"dxf", "svg", "pdf", "png"}) {
    const PlainUser plain;
    std::string entry = "Save" + kind;
    entry[4] = static_cast<char>(entry[4] - 'a' + 'A');
    EXPECT_EQ(Refusal(entry, At("a")), "Файл «a." + kind + "» не записан: нет прав на запись.");
  }
  EXPECT_TRUE(Files().isEmpty());
  EXPECT_EQ(Tabs().count(), 2);
}

TEST_F(DrawingWindowFiles, TellsAFullDiskAndLeavesTheOldFileWhole) {
  for (const char* name : {"a.dxf", "a.svg", "a.pdf", "a.png"}) {
    QFile file(At(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
  }
  for (const std::string kind : {"Dxf", "Svg", "Pdf", "Png"}) {
    const QString name = "a." + ToQt(kind).toLower();
    // The dialogue asks before it gives a name that is taken.
    const OnceModal<QFileDialog> once([&](QFileDialog& dialog) {
      dialog.setOption(QFileDialog::DontConfirmOverwrite);
      Take(dialog, At(name));
    });
    std::string told;
    const OnceModal<QMessageBox> box([&](QMessageBox& message) {
      told = FromQt(message.text());
      message.accept();
    });
    const FullDisk full(100);
    Entry("Save" + kind).trigger();
    EXPECT_EQ(told, FromQt("Файл «" + name + "» не записан: на диске нет места."));
  }
  for (const char* name : {"a.dxf", "a.svg", "a.pdf", "a.png"}) {
    EXPECT_EQ(Bytes(name), "mine");
  }
  EXPECT_EQ(Files().size(), 4);
}
#endif

TEST_F(DrawingWindowFiles, TellsADrawingThatCannotBeWritten) {
  Second->ModelSpace.push_back(LineOn("Main", {-1.7e308, 0}, {1.7e308, 0}));
  Window.Renew(Second);
  EXPECT_EQ(Refusal("SavePdf", At("a.pdf")),
            "Файл «a.pdf» не записан: координаты чертежа слишком велики.");
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(DrawingWindowFiles, PrintsOnePageIntoAFile) {
  const OnceModal<QPrintDialog> once([&](QPrintDialog& dialog) {
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Печать");
    QPrinter& printer = *dialog.printer();
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::A4);
    EXPECT_EQ(FromQt(printer.docName()), "Drawing2.dwg");
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(At("a.pdf"));
    // The dialogue itself would ask for the file again.
    dialog.QDialog::done(QDialog::Accepted);
  });
  QTest::keyClick(&View(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(once.Acted());
  EXPECT_TRUE(Bytes("a.pdf").startsWith("%PDF-"));
  EXPECT_TRUE(Bytes("a.pdf").contains("/Count 1"));
}

TEST_F(DrawingWindowFiles, PrintsNothingAfterACancel) {
  const OnceModal<QPrintDialog> once([&](QPrintDialog& dialog) {
    dialog.printer()->setOutputFileName(At("a.pdf"));
    dialog.reject();
  });
  Entry("Print").trigger();
  EXPECT_TRUE(once.Acted());
  EXPECT_TRUE(Files().isEmpty());
}

}  // namespace
}  // namespace trelonit::test
