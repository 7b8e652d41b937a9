// The find window over the document window.

#include <QCheckBox>
#include <QLineEdit>

#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class FindWindowOnScreen : public ::testing::Test, protected OtchetScreen {
 protected:
  FindWindowOnScreen() { Start(); }

  /// Puts the text into the document and opens the window; the caret stands at the beginning.
  void Look(const std::string& text) {
    Box->SetText(text);
    Form->Undo.Reset();
    Open();
  }
  void Open() {
    Trigger("mnuEdit12");
    ASSERT_NE(Shown(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Shown()));
  }
  /// The window; null where it is closed.
  QDialog* Shown() { return Window->findChild<QDialog*>(); }
  bool Gone() {
    return Soon([this] {
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      return Shown() == nullptr;
    });
  }
  QComboBox& Combo(const std::string& name) { return Find<QComboBox>(*Shown(), name); }
  QLineEdit& Line(const std::string& name) { return *Combo(name).lineEdit(); }
  QPushButton& Button(const std::string& name) { return Find<QPushButton>(*Shown(), name); }
  void Press(const std::string& name) { Click(Button(name)); }
  void Seek(const std::string& wanted, const std::string& replacement = {}) {
    Type(Line("cboFind"), wanted);
    Type(Line("cboReplace"), replacement);
  }
  std::string Stored(const std::string& section, int number) {
    return Settings.Get("KELV SOFTWARE\\Trelo_calculation\\" + section,
                        "Text" + std::to_string(number), "");
  }
};

TEST_F(FindWindowOnScreen, OpensBesideTheTextWithTheSelection) {
  Box->SetText("one two");
  Box->Select(4, 3);
  Open();
  EXPECT_EQ(FromQt(Shown()->windowTitle()), "Найти и заменить");
  EXPECT_FALSE(Shown()->isModal());
  EXPECT_TRUE(Window->isVisible());
  EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(Shown()->pos()));
  EXPECT_EQ(FromQt(Line("cboFind").text()), "two");
  EXPECT_EQ(FromQt(Line("cboFind").selectedText()), "two");
  EXPECT_TRUE(Soon([this] { return Line("cboFind").hasFocus(); }));
  EXPECT_EQ(FromQt(Line("cboReplace").text()), "");
  for (const auto& [name, caption] : {std::pair{"cmdFindNext", "Find Next"},
                                      {"cmdReplace", "Replace"},
                                      {"cmdReplaceAll", "Replace All"},
                                      {"cmdSelection0", "Selection"},
                                      {"cmdSelection1", "Selection"},
                                      {"cmdCancel", "Cancel"}}) {
    EXPECT_EQ(FromQt(Button(name).text()), caption);
    EXPECT_TRUE(Button(name).isEnabled()) << name;
  }
}

TEST_F(FindWindowOnScreen, FindsHitAfterHitByEnter) {
  Look("aba aba");
  Type(Line("cboFind"), "aba");
  QTest::keyClick(&Line("cboFind"), Qt::Key_Return);
  EXPECT_EQ(Selection(), (TextSpan{0, 3}));
  EXPECT_EQ(ShownSelection(), "aba");
  EXPECT_EQ(Entries(Combo("cboFind")), Texts{"aba"});
  EXPECT_TRUE(Button("cmdReplace").isEnabled());
  QTest::keyClick(&Line("cboFind"), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(Selection(), (TextSpan{4, 3}));
  QTest::keyClick(&Line("cboReplace"), Qt::Key_Return);
  EXPECT_EQ(Said(), Texts{"Text not found."});
  EXPECT_FALSE(Button("cmdReplace").isEnabled());
  EXPECT_EQ(Selection(), (TextSpan{4, 3}));
  Press("cmdFindNext");
  EXPECT_EQ(Selection(), (TextSpan{0, 3}));
  EXPECT_TRUE(Button("cmdReplace").isEnabled());
  EXPECT_EQ(FromQt(Line("cboFind").text()), "aba");
}

TEST_F(FindWindowOnScreen, TellsWhereItFindsNothingAndStaysOpen) {
  Look("abc");
  Seek("x");
  Press("cmdFindNext");
  EXPECT_EQ(Said(), Texts{"Text not found."});
  EXPECT_TRUE(Shown()->isVisible());
  EXPECT_EQ(FromQt(Line("cboFind").text()), "x");
}

TEST_F(FindWindowOnScreen, FindsRussianWordsByItsOptions) {
  Look("Узлы узел");
  Seek("УЗЕЛ");
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "узел");
  Click(Find<QCheckBox>(*Shown(), "ChCase"));
  Press("cmdFindNext");
  EXPECT_EQ(Said(), Texts{"Text not found."});
  Click(Find<QCheckBox>(*Shown(), "ChCase"));
  Seek("узл");
  Click(Find<QCheckBox>(*Shown(), "ChWord"));
  Press("cmdFindNext");
  EXPECT_EQ(Said(), Texts{"Text not found."});
  Click(Find<QCheckBox>(*Shown(), "ChWord"));
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "Узл");
}

TEST_F(FindWindowOnScreen, TellsTextsApartByTheirCase) {
  Look("beam Beam");
  Seek("beam");
  Press("cmdFindNext");
  Click(Find<QCheckBox>(*Shown(), "ChCase"));
  Seek("Beam");
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "Beam");
  EXPECT_EQ(Entries(Combo("cboFind")), (Texts{"beam", "Beam"}));
  EXPECT_EQ(FromQt(Line("cboFind").text()), "Beam");
}

TEST_F(FindWindowOnScreen, FindsATextOfSeveralLines) {
  Box->SetText("ab\r\ncd ab\r\ncd");
  Box->Select(0, 6);
  Open();
  Press("cmdFindNext");
  EXPECT_EQ(Selection(), (TextSpan{0, 6}));
  Press("cmdFindNext");
  EXPECT_EQ(Selection(), (TextSpan{7, 6}));
  EXPECT_EQ(ShownSelection(), "ab\ncd");
}

TEST_F(FindWindowOnScreen, ReplacesTheHitAsOneStep) {
  Look("one two one");
  Seek("one", "three");
  Press("cmdReplace");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "three two one");
  Press("cmdReplace");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "three two three");
  EXPECT_EQ(Entries(Combo("cboReplace")), Texts{"three"});
  Trigger("mnuEdit0");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "three two one");
}

TEST_F(FindWindowOnScreen, CountsWhatItReplacedInAll) {
  Look("a b a");
  Seek("b", "c");
  Press("cmdReplaceAll");
  Seek("a", "xy");
  Press("cmdReplaceAll");
  EXPECT_EQ(FromQt(Edit().toPlainText()), "xy c xy");
  EXPECT_EQ(Said(), (Texts{"1 item replaced", "2 items replaced"}));
  Press("cmdReplaceAll");
  EXPECT_EQ(Said(), Texts{"Text not found."});
  for (int step = 0; step < 3; ++step) {
    Trigger("mnuEdit0");
  }
  EXPECT_EQ(FromQt(Edit().toPlainText()), "a b a");
}

TEST_F(FindWindowOnScreen, StopsReplacingWithoutClosing) {
  const Long count = 300;
  Look(std::string(static_cast<std::size_t>(count), 'a'));
  Seek("a", "b");
  QTimer::singleShot(0, Shown(), [this] {
    EXPECT_TRUE(Form->Find.Replacing());
    QTest::keyClick(Shown(), Qt::Key_Escape);
  });
  Press("cmdReplaceAll");
  EXPECT_FALSE(Form->Find.Replacing());
  EXPECT_LT(Form->Undo.UndoCount(), count);
  EXPECT_TRUE(Shown()->isVisible());
  Said();
  Press("cmdReplaceAll");
  EXPECT_EQ(Box->Text(), std::string(static_cast<std::size_t>(count), 'b'));
}

TEST_F(FindWindowOnScreen, EndsReplacingBeforeTheDocumentCloses) {
  Look(std::string(300, 'a'));
  Seek("a", "b");
  bool closed = true;
  QTimer::singleShot(0, Shown(), [&] { closed = Window->close(); });
  Press("cmdReplaceAll");
  EXPECT_FALSE(closed);
  EXPECT_TRUE(Window->isVisible());
  EXPECT_FALSE(Form->Find.Replacing());
  Answer(MessageAnswer::No);
  EXPECT_TRUE(Window->close());
}

TEST_F(FindWindowOnScreen, TakesTheSelectionOfTheText) {
  Look("one two");
  Box->Select(0, 3);
  Press("cmdSelection0");
  Box->Select(4, 3);
  Press("cmdSelection1");
  EXPECT_EQ(FromQt(Line("cboFind").text()), "one");
  EXPECT_EQ(FromQt(Line("cboReplace").text()), "two");
  Press("cmdReplaceAll");
  EXPECT_EQ(Box->Text(), "two two");
}

TEST_F(FindWindowOnScreen, OffersTheTextsOfBefore) {
  Look("abc");
  Seek("a", "x");
  Press("cmdReplaceAll");
  Seek("b", "y");
  Press("cmdReplaceAll");
  QTest::keyClick(&Line("cboFind"), Qt::Key_Escape);
  EXPECT_TRUE(Gone());
  EXPECT_FALSE(Form->Find.Loaded());
  EXPECT_EQ(Stored("FindText", 1), "a");
  EXPECT_EQ(Stored("FindText", 2), "b");
  EXPECT_EQ(Stored("ReplaceText", 2), "y");
  Box->SetText("abc");
  Open();
  EXPECT_EQ(Entries(Combo("cboFind")), (Texts{"a", "b"}));
  EXPECT_EQ(Entries(Combo("cboReplace")), (Texts{"x", "y"}));
  EXPECT_EQ(FromQt(Line("cboFind").text()), "");
  Pick(Combo("cboFind"), "b");
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "b");
}

TEST_F(FindWindowOnScreen, ClosesByItsButtonAndByTheFrame) {
  Look("abc");
  Press("cmdCancel");
  EXPECT_TRUE(Gone());
  Open();
  Shown()->close();
  EXPECT_TRUE(Gone());
  EXPECT_FALSE(Form->Find.Loaded());
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(FindWindowOnScreen, ComesToTheFrontWhenItIsAskedForAgain) {
  Look("abc");
  QDialog* first = Shown();
  Seek("b");
  Window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  Open();
  EXPECT_EQ(Shown(), first);
  EXPECT_EQ(Window->findChildren<QDialog*>().size(), 1);
  EXPECT_EQ(FromQt(Line("cboFind").text()), "b");
}

TEST_F(FindWindowOnScreen, GoesWithTheDocumentWindow) {
  Look("beam");
  Seek("beam");
  Press("cmdFindNext");
  Answer(MessageAnswer::No);
  EXPECT_TRUE(Window->close());
  EXPECT_TRUE(Gone());
  EXPECT_EQ(Stored("FindText", 1), "beam");
  // What a later press of a button would use is there no more.
  EXPECT_FALSE(Form->Find.DoEvents);
  EXPECT_FALSE(Form->Find.Unload);
}

TEST_F(FindWindowOnScreen, StaysWhereTheDocumentWindowStays) {
  Look("beam");
  Seek("beam");
  Answer(MessageAnswer::Cancel);
  EXPECT_FALSE(Window->close());
  ASSERT_FALSE(Gone());
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "beam");
}

TEST_F(FindWindowOnScreen, LetsTheTextBeEditedMeanwhile) {
  Look("one");
  Window->activateWindow();
  Edit().setFocus();
  Key(Qt::Key_X);
  EXPECT_EQ(Box->Text(), "xone");
  Seek("x");
  Press("cmdFindNext");
  EXPECT_EQ(ShownSelection(), "x");
}

TEST_F(FindWindowOnScreen, CanBeUsedByKeysAlone) {
  Look("one");
  ASSERT_TRUE(Soon([this] { return Line("cboFind").hasFocus(); }));
  ExpectEveryInputHasAName(*Shown());
  ExpectTabReachesEveryInputOnce(*Shown());
  EXPECT_EQ(CaptionOf(*Shown(), Combo("cboFind")), "Найти:");
  EXPECT_EQ(CaptionOf(*Shown(), Combo("cboReplace")), "Заменить на:");
}

}  // namespace
}  // namespace trelonit::test
