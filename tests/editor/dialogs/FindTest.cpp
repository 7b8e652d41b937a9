#include "tests/editor/dialogs/FindDesk.h"

namespace trelonit::test {
namespace {

TEST_F(Find, StartsAtTheTopWithTheSelectedText) {
  Hold("раз два");
  box.Select(4, 3);
  form.Form_Load();
  EXPECT_EQ(form.cboFind.Text(), "два");
  EXPECT_EQ(form.cboReplace.Text(), "");
  EXPECT_EQ(form.SearchPos(), 0);
  EXPECT_EQ(form.HitPos(), -1);
}

TEST_F(Find, SelectsHitAfterHitAndStartsAgainAfterTheLast) {
  Look("aba aba", "aba");
  form.cmdFindNext_Click();
  EXPECT_EQ(Selection(), (TextSpan{0, 3}));
  EXPECT_EQ(form.HitPos(), 0);
  EXPECT_EQ(form.SearchPos(), 3);
  EXPECT_TRUE(form.cmdReplace.Enabled());
  form.cmdFindNext_Click();
  EXPECT_EQ(Selection(), (TextSpan{4, 3}));
  EXPECT_EQ(form.SearchPos(), 7);
  EXPECT_EQ(Said(), Texts{});
  form.cmdFindNext_Click();
  EXPECT_EQ(Said(), Texts{"Text not found."});
  EXPECT_EQ(form.SearchPos(), 0);
  EXPECT_EQ(form.HitPos(), -1);
  EXPECT_FALSE(form.cmdReplace.Enabled());
  EXPECT_EQ(Selection(), (TextSpan{4, 3}));
  form.cmdFindNext_Click();
  EXPECT_EQ(Selection(), (TextSpan{0, 3}));
  EXPECT_TRUE(form.cmdReplace.Enabled());
}

TEST_F(Find, AddsUpItsOptions) {
  Look("Узлы узлы Узел узел", "узел");
  form.ChCase.SetChecked(true);
  form.cmdFindNext_Click();
  EXPECT_EQ(form.HitPos(), 15);
  Look("узелок Узел узел", "узел");
  form.Form_Load();
  form.cboFind.SetText("узел");
  form.ChWord.SetChecked(true);
  form.ChCase.SetChecked(true);
  form.cmdFindNext_Click();
  EXPECT_EQ(form.HitPos(), 12);
  form.Form_Load();
  form.cboFind.SetText("узел");
  form.ChWord.SetChecked(true);
  form.cmdFindNext_Click();
  EXPECT_EQ(form.HitPos(), 7);
}

TEST_F(Find, TellsTheBoxNoOptionsButThoseThatAreTicked) {
  struct AskedBox : MemoryRichTextBox {
    Long Find(const std::string&, Long, Long options) const override {
      Asked.push_back(options);
      return notFound;
    }
    mutable std::vector<Long> Asked;
  };
  AskedBox asked;
  frmFind asking(asked, undo, messages, settings, "Vestra");
  for (const bool word : {false, true}) {
    for (const bool matchCase : {false, true}) {
      asking.ChWord.SetChecked(word);
      asking.ChCase.SetChecked(matchCase);
      asking.cmdFindNext_Click();
    }
  }
  // 2 is the whole word, 4 is the case.
  EXPECT_EQ(asked.Asked, (std::vector<Long>{0, 4, 2, 6}));
}

TEST_F(Find, NamesItselfAndItsButtons) {
  EXPECT_EQ(form.Form.Caption(), "Найти и заменить");
  EXPECT_EQ(form.cmdFindNext.Caption(), "Find Next");
  EXPECT_EQ(form.cmdReplace.Caption(), "Replace");
  EXPECT_EQ(form.cmdReplaceAll.Caption(), "Replace All");
  EXPECT_EQ(form.cmdSelection[0].Caption(), "Selection");
  EXPECT_EQ(form.cmdSelection[1].Caption(), "Selection");
  EXPECT_EQ(form.cmdCancel.Caption(), "Cancel");
}

TEST_F(Find, FindsNothingForAnEmptyText) {
  Look("abc", "");
  form.cmdFindNext_Click();
  EXPECT_EQ(Said(), Texts{"Text not found."});
  EXPECT_TRUE(form.cboFind.List().empty());
}

TEST_F(Find, UnlocksTheUpdatesBeforeItSpeaks) {
  Look("abc", "x");
  form.cmdFindNext_Click();
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Locks, 0);
  EXPECT_EQ(box.Deepest, 1);
}

TEST_F(Find, ReplacesTheSelectedHitAsOneStep) {
  Look("раз два", "два", "три");
  form.cmdFindNext_Click();
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "раз три");
  EXPECT_EQ(undo.UndoCount(), 1);
  undo.Undo();
  EXPECT_EQ(box.Text(), "раз два");
}

TEST_F(Find, SeeksFirstWhereNoHitIsSelected) {
  Look("раз два", "два", "три");
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "раз три");
}

TEST_F(Find, ReplacesNoHitInAnotherCaseButSeeksTheNext) {
  Look("Узел УЗЕЛ узел", "узел", "x");
  form.cmdReplace_Click();
  EXPECT_EQ(Selection(), (TextSpan{0, 4}));
  form.cmdReplace_Click();
  EXPECT_EQ(Selection(), (TextSpan{5, 4}));
  EXPECT_EQ(box.Text(), "Узел УЗЕЛ узел");
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "Узел УЗЕЛ x");
}

TEST_F(Find, ReplacesNothingWhereNothingIsFound) {
  Look("abc", "x", "y");
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(Said(), Texts{"Text not found."});
  EXPECT_EQ(form.cboReplace.List(), Texts{"y"});
}

TEST_F(Find, CountsWhatItReplaced) {
  Look("a b", "a", "c");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "c b");
  EXPECT_EQ(Said(), Texts{"1 item replaced"});
  Look("a b a", "a", "c");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "c b c");
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
  EXPECT_EQ(undo.UndoCount(), 2);
  EXPECT_EQ(form.SearchPos(), 0);
  EXPECT_FALSE(form.Replacing());
  form.cmdReplaceAll_Click();
  EXPECT_EQ(Said(), Texts{"Text not found."});
}

TEST_F(Find, CanReplaceAllAgainAfterARunThatFailed) {
  Look("a b a", "a", "c");
  form.DoEvents = [] { throw RuntimeError(ErrorNumber::OutOfMemory); };
  EXPECT_THROW(form.cmdReplaceAll_Click(), RuntimeError);
  EXPECT_FALSE(form.Replacing());
  EXPECT_EQ(box.Locks, 0);
  form.DoEvents = nullptr;
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "c b c");
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
}

TEST_F(Find, ReplacesFromWhereTheLastSearchStopped) {
  Look("a a a", "a", "b");
  form.cmdFindNext_Click();
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "a b b");
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
}

TEST_F(Find, SearchesALongerReplacementAgainInPart) {
  // Goes on behind "ab" at 2, where "xxab" still has its "ab".
  Look("ab", "ab", "xxab");
  int rounds = 0;
  form.DoEvents = [&] {
    if (++rounds == 4) {
      form.cmdCancel_Click();
    }
  };
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "xxxxxxab");
  EXPECT_EQ(Said(), Texts{"3 items replaced"});
}

TEST_F(Find, GoesPastPartOfTheTextBehindAShorterReplacement) {
  // After the first hit the search goes on at 3, behind the second "aab" that moved to 1.
  Look("aabaab", "aab", "x");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "xaab");
  EXPECT_EQ(Said(), Texts{"1 item replaced"});
}

TEST_F(Find, StopsARunningReplaceAllOnCancel) {
  Look("a a a a", "a", "b");
  int rounds = 0;
  bool replacing = false;
  form.DoEvents = [&] {
    replacing = form.Replacing();
    if (++rounds == 3) {
      form.cmdCancel_Click();
    }
  };
  form.cmdReplaceAll_Click();
  EXPECT_TRUE(replacing);
  EXPECT_EQ(box.Text(), "b b a a");
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
  EXPECT_EQ(unloads, 0);
  form.DoEvents = nullptr;
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "b b b b");
}

TEST_F(Find, SaysNothingWhenStoppedBeforeTheFirstHit) {
  Look("a", "a", "b");
  form.DoEvents = [&] { form.cmdCancel_Click(); };
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "a");
  EXPECT_EQ(Said(), Texts{});
}

TEST_F(Find, RunsOneReplaceAllAtATime) {
  Look("a a", "a", "b");
  form.DoEvents = [&] { form.cmdReplaceAll_Click(); };
  form.cmdReplaceAll_Click();
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
}

TEST_F(Find, ClosesOnCancelOtherwise) {
  form.cmdCancel_Click();
  EXPECT_EQ(unloads, 1);
}

TEST_F(Find, TakesTheSelectedTextIntoEitherBox) {
  Hold("раз два");
  box.Select(0, 3);
  form.cmdSelection_Click(0);
  box.Select(4, 3);
  form.cmdSelection_Click(1);
  EXPECT_EQ(form.cboFind.Text(), "раз");
  EXPECT_EQ(form.cboReplace.Text(), "два");
  EXPECT_THROW(form.cmdSelection_Click(2), RuntimeError);
  EXPECT_THROW(form.cmdSelection_Click(-1), RuntimeError);
}

TEST_F(Find, KeepsEachTextOfTheHistoryOnce) {
  Look("abc", "a", "b");
  form.cmdFindNext_Click();
  EXPECT_EQ(form.cboFind.List(), Texts{"a"});
  EXPECT_TRUE(form.cboReplace.List().empty());
  form.cmdFindNext_Click();
  form.cboFind.SetText("c");
  form.cmdReplaceAll_Click();
  form.cboFind.SetText("a");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(form.cboFind.List(), (Texts{"a", "c"}));
  EXPECT_EQ(form.cboReplace.List(), Texts{"b"});
}

TEST_F(Find, ShowsItsMessagesWithoutAnIcon) {
  Look("a", "x");
  form.cmdFindNext_Click();
  Look("a", "a", "b");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(messages.Shown, (std::vector<Message>{{.Title = "", .Text = "Text not found."},
                                                  {.Title = "", .Text = "1 item replaced"}}));
}

TEST_F(Find, FindsASelectionOfSeveralLines) {
  Hold("раз\r\nдва, раз\r\nдва");
  box.Select(0, 8);
  form.cmdSelection_Click(0);
  form.cboReplace.SetText("вверхниз");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "вверхниз, вверхниз");
  EXPECT_EQ(Said(), Texts{"2 items replaced"});
}

TEST_F(Find, ReplacesAHitWhoseLineEndWasTypedShort) {
  Look("раз\r\nдва", "раз\nдва", "три");
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "три");
}

TEST_F(Find, StartsAgainWhereTheTextHasBecomeShorterThanItsPlace) {
  Look("aaaa b", "b");
  form.cmdFindNext_Click();
  EXPECT_EQ(form.SearchPos(), 6);
  Hold("b");
  form.cmdFindNext_Click();
  EXPECT_EQ(Said(), Texts{"Text not found."});
  form.cmdFindNext_Click();
  EXPECT_EQ(form.HitPos(), 0);
}

TEST_F(Find, RemembersNoEmptyText) {
  Look("abc", "b", "");
  form.cmdReplace_Click();
  EXPECT_EQ(box.Text(), "ac");
  EXPECT_EQ(form.cboFind.List(), Texts{"b"});
  EXPECT_EQ(form.cboReplace.List(), Texts{});
}

TEST_F(Find, TakesEachHitAsOneStepOfUndo) {
  Look("a a a", "a", "bb");
  form.cmdReplaceAll_Click();
  EXPECT_EQ(box.Text(), "bb bb bb");
  undo.Undo();
  EXPECT_EQ(box.Text(), "bb bb a");
  undo.Undo();
  undo.Undo();
  EXPECT_EQ(box.Text(), "a a a");
}

TEST_F(Find, HandsTheHistoryToTheNextForm) {
  Look("abc", "a", "x");
  form.cmdReplaceAll_Click();
  form.cboFind.SetText("b");
  form.cmdFindNext_Click();
  form.Form_Unload();
  EXPECT_EQ(settings.Get("KELV SOFTWARE\\Vestra\\FindText", "Text1", ""), "a");
  EXPECT_EQ(settings.Get("KELV SOFTWARE\\Vestra\\FindText", "Text2", ""), "b");
  EXPECT_EQ(settings.Get("KELV SOFTWARE\\Vestra\\ReplaceText", "Text1", ""), "x");
  frmFind next(box, undo, messages, settings, "Vestra");
  next.Form_Load();
  EXPECT_EQ(next.cboFind.List(), (Texts{"a", "b"}));
  EXPECT_EQ(next.cboReplace.List(), Texts{"x"});
}

TEST_F(Find, ForgetsTheOldestTextsOfALongHistory) {
  for (int number = 1; number <= 30; ++number) {
    form.cboFind.SetText("text " + std::to_string(number));
    form.cmdFindNext_Click();
  }
  // An older program may have kept more.
  settings.Set("KELV SOFTWARE\\Vestra\\FindText", "Text21", "left over");
  form.Form_Unload();
  form.Form_Load();
  ASSERT_EQ(form.cboFind.List().size(), 20u);
  EXPECT_EQ(form.cboFind.List().front(), "text 11");
  EXPECT_EQ(form.cboFind.List().back(), "text 30");
}

TEST_F(Find, OpensAfreshEveryTime) {
  Look("a b", "x");
  form.ChWord.SetChecked(true);
  form.ChCase.SetChecked(true);
  form.cmdFindNext_Click();
  EXPECT_FALSE(form.cmdReplace.Enabled());
  form.Form_Unload();
  form.Form_Load();
  EXPECT_TRUE(form.cmdReplace.Enabled());
  EXPECT_FALSE(form.ChWord.Checked());
  EXPECT_FALSE(form.ChCase.Checked());
}

}  // namespace
}  // namespace trelonit::test
