#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "editor/document/RichTextBox.h"

namespace trelonit::test {

/// What every rich-text box does. The parameter makes one: a default-constructible type with a
/// member Make that returns the empty box as std::unique_ptr<RichTextBox>.
template <class Maker>
class RichTextBoxContract : public ::testing::Test {
 protected:
  RichTextBoxContract() : box_(maker_.Make()) {
    box_->Change = [this] { ++changes_; };
  }
  void Hold(const std::string& text) {
    box_->SetText(text);
    changes_ = 0;
  }
  /// Start and length of the selection.
  TextSpan Selection() const { return {box_->SelStart(), box_->SelLength()}; }
  static CharFormat Bold() {
    CharFormat format;
    format.Bold = true;
    return format;
  }

  Maker maker_;
  std::unique_ptr<RichTextBox> box_;
  int changes_ = 0;
};

TYPED_TEST_SUITE_P(RichTextBoxContract);

TYPED_TEST_P(RichTextBoxContract, IsEmptyAtFirst) {
  EXPECT_EQ(this->box_->Text(), "");
  EXPECT_EQ(this->box_->TextLength(), 0);
  EXPECT_EQ(this->box_->LineCount(), 1);
  EXPECT_EQ(this->Selection(), (TextSpan{0, 0}));
  EXPECT_EQ(this->box_->SelRTF(), "");
  EXPECT_TRUE(this->box_->Enabled());
  EXPECT_EQ(this->box_->RightMargin(), 0);
  EXPECT_EQ(this->box_->BackColor(), 0xFFFFFFu);
}

TYPED_TEST_P(RichTextBoxContract, CountsALineEndAsTwoAndACyrillicLetterAsOne) {
  this->Hold("аб\r\nв");
  EXPECT_EQ(this->box_->TextLength(), 5);
  EXPECT_EQ(this->box_->Text(), "аб\r\nв");
}

TYPED_TEST_P(RichTextBoxContract, CountsACharacterBeyondTheBasicPlaneAsTwo) {
  this->Hold("a\U0001F600b");
  EXPECT_EQ(this->box_->TextLength(), 4);
  EXPECT_EQ(this->box_->Text(), "a\U0001F600b");
}

TYPED_TEST_P(RichTextBoxContract, MakesWholeLineEndsOfHalfOnes) {
  this->Hold("a\nb\rc\r\nd");
  EXPECT_EQ(this->box_->Text(), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(this->box_->LineCount(), 4);
}

TYPED_TEST_P(RichTextBoxContract, KeepsALineEndAtTheEnd) {
  this->Hold("a\r\n");
  EXPECT_EQ(this->box_->Text(), "a\r\n");
  EXPECT_EQ(this->box_->TextLength(), 3);
  EXPECT_EQ(this->box_->LineCount(), 2);
}

TYPED_TEST_P(RichTextBoxContract, PutsTheCaretAtTheStartOfANewText) {
  this->Hold("abc");
  this->box_->Select(1, 2);
  this->box_->SetText("defg");
  EXPECT_EQ(this->Selection(), (TextSpan{0, 0}));
}

TYPED_TEST_P(RichTextBoxContract, KeepsTheSelectionWithinTheText) {
  this->Hold("abcd");
  this->box_->SetSelStart(9);
  EXPECT_EQ(this->Selection(), (TextSpan{4, 0}));
  this->box_->SetSelStart(-3);
  EXPECT_EQ(this->Selection(), (TextSpan{0, 0}));
  this->box_->Select(3, 100);
  EXPECT_EQ(this->Selection(), (TextSpan{3, 1}));
  this->box_->Select(3, -1);
  EXPECT_EQ(this->Selection(), (TextSpan{3, 0}));
  this->box_->Select(1, 2147483647);
  EXPECT_EQ(this->Selection(), (TextSpan{1, 3}));
}

TYPED_TEST_P(RichTextBoxContract, SelectsNothingWhenTheCaretMoves) {
  this->Hold("abcd");
  this->box_->Select(1, 2);
  this->box_->SetSelStart(2);
  EXPECT_EQ(this->Selection(), (TextSpan{2, 0}));
}

TYPED_TEST_P(RichTextBoxContract, NeverDividesALineEnd) {
  this->Hold("a\r\nb");
  this->box_->SetSelStart(2);
  EXPECT_EQ(this->Selection(), (TextSpan{1, 0}));
  this->box_->Select(1, 1);
  EXPECT_EQ(this->Selection(), (TextSpan{1, 2}));
  EXPECT_EQ(this->box_->SelText(), "\r\n");
  this->box_->Select(0, 2);
  EXPECT_EQ(this->Selection(), (TextSpan{0, 3}));
}

TYPED_TEST_P(RichTextBoxContract, NeverDividesASurrogatePair) {
  this->Hold("a\U0001F600b");
  this->box_->SetSelStart(2);
  EXPECT_EQ(this->Selection(), (TextSpan{1, 0}));
  this->box_->Select(1, 1);
  EXPECT_EQ(this->box_->SelText(), "\U0001F600");
}

TYPED_TEST_P(RichTextBoxContract, ReplacesTheSelectionAndLeavesTheCaretBehind) {
  this->Hold("один два");
  this->box_->Select(0, 4);
  this->box_->SetSelText("три\nи");
  EXPECT_EQ(this->box_->Text(), "три\r\nи два");
  EXPECT_EQ(this->Selection(), (TextSpan{6, 0}));
  EXPECT_EQ(this->changes_, 1);
}

TYPED_TEST_P(RichTextBoxContract, RemovesASelectionOverSeveralLines) {
  this->Hold("ab\r\ncd\r\nef");
  this->box_->Select(1, 8);
  EXPECT_EQ(this->box_->SelText(), "b\r\ncd\r\ne");
  this->box_->SetSelText("");
  EXPECT_EQ(this->box_->Text(), "af");
  EXPECT_EQ(this->box_->LineCount(), 1);
  EXPECT_EQ(this->box_->TextLength(), 2);
}

TYPED_TEST_P(RichTextBoxContract, RaisesNoChangeWhereNothingIsReplaced) {
  this->Hold("ab");
  this->box_->SetSelText("");
  this->box_->SetSelStart(1);
  this->box_->LockUpdates();
  this->box_->UnlockUpdates();
  EXPECT_EQ(this->changes_, 0);
  this->box_->SetText("ab");
  EXPECT_EQ(this->changes_, 1);
}

TYPED_TEST_P(RichTextBoxContract, TakesBackWhatItGaveAsRichText) {
  this->Hold("один\r\nдва\tтри");
  this->box_->Select(2, 6);
  this->box_->SetSelFormat(this->Bold());
  this->box_->Select(1, 9);
  const std::string piece = this->box_->SelRTF();
  const std::string text = this->box_->SelText();
  const std::string whole = this->box_->TextRTF();
  this->box_->SetSelRTF("");
  EXPECT_EQ(this->box_->Text(), "отри");
  EXPECT_EQ(this->Selection(), (TextSpan{1, 0}));
  this->box_->SetSelRTF(piece);
  EXPECT_EQ(this->box_->Text(), "один\r\nдва\tтри");
  EXPECT_EQ(this->Selection(), (TextSpan{10, 0}));
  EXPECT_EQ(this->box_->TextRTF(), whole);
  this->box_->Select(1, 9);
  EXPECT_EQ(this->box_->SelText(), text);
  this->box_->SetText("");
  this->box_->SetTextRTF(whole);
  EXPECT_EQ(this->box_->TextRTF(), whole);
  EXPECT_EQ(this->box_->Text(), "один\r\nдва\tтри");
}

TYPED_TEST_P(RichTextBoxContract, TakesALineEndBackAsRichText) {
  this->Hold("a\r\nb");
  this->box_->Select(1, 2);
  const std::string lineEnd = this->box_->SelRTF();
  this->box_->SetSelText("");
  EXPECT_EQ(this->box_->Text(), "ab");
  this->box_->SetSelRTF(lineEnd);
  EXPECT_EQ(this->box_->Text(), "a\r\nb");
}

TYPED_TEST_P(RichTextBoxContract, TakesOtherBytesAsPlainText) {
  this->box_->SetTextRTF("plain {text}");
  EXPECT_EQ(this->box_->Text(), "plain {text}");
  this->box_->Select(0, 5);
  this->box_->SetSelRTF("some");
  EXPECT_EQ(this->box_->Text(), "some {text}");
}

TYPED_TEST_P(RichTextBoxContract, FindsFromTheStartPositionOn) {
  this->Hold("раз два\r\nраз");
  EXPECT_EQ(this->box_->Find("раз", 0, findMatchCase), 0);
  EXPECT_EQ(this->box_->Find("раз", 1, findMatchCase), 9);
  EXPECT_EQ(this->box_->Find("раз", 9, findMatchCase), 9);
  EXPECT_EQ(this->box_->Find("раз", 10, findMatchCase), -1);
  EXPECT_EQ(this->box_->Find("раз", 100, findMatchCase), -1);
  EXPECT_EQ(this->box_->Find("", 0, 0), -1);
  EXPECT_EQ(this->Selection(), (TextSpan{0, 0}));
}

TYPED_TEST_P(RichTextBoxContract, IgnoresCaseUnlessToldOtherwise) {
  this->Hold("Ферма ФЕРМА Ёж truss");
  EXPECT_EQ(this->box_->Find("ферма", 0, 0), 0);
  EXPECT_EQ(this->box_->Find("ферма", 1, 0), 6);
  EXPECT_EQ(this->box_->Find("ферма", 0, findMatchCase), -1);
  EXPECT_EQ(this->box_->Find("ФЕРМА", 0, findMatchCase), 6);
  EXPECT_EQ(this->box_->Find("ёЖ", 0, 0), 12);
  EXPECT_EQ(this->box_->Find("TRUSS", 0, 0), 15);
}

TYPED_TEST_P(RichTextBoxContract, FindsWholeWordsWhereAsked) {
  this->Hold("подстрок строка строк, строк");
  EXPECT_EQ(this->box_->Find("строк", 0, 0), 3);
  EXPECT_EQ(this->box_->Find("строк", 0, findWholeWord), 16);
  EXPECT_EQ(this->box_->Find("строк", 17, findWholeWord), 23);
  EXPECT_EQ(this->box_->Find("Строк", 0, findWholeWord + findMatchCase), -1);
}

TYPED_TEST_P(RichTextBoxContract, FindsAcrossLineEndsAndFormats) {
  this->Hold("ab\r\ncd\r\nef");
  this->box_->Select(1, 4);
  this->box_->SetSelFormat(this->Bold());
  EXPECT_EQ(this->box_->Find("b\r\ncd\r\ne", 0, 0), 1);
  EXPECT_EQ(this->box_->Find("cd", 0, 0), 4);
  EXPECT_EQ(this->box_->Find("d\ne", 0, findWholeWord), -1);
  EXPECT_EQ(this->box_->Find("cd\nef", 0, findWholeWord), 4);
}

TYPED_TEST_P(RichTextBoxContract, TellsTheLineOfAPosition) {
  this->Hold("ab\r\n\r\ncde");
  EXPECT_EQ(this->box_->LineCount(), 3);
  EXPECT_EQ(this->box_->LineOf(0), 0);
  EXPECT_EQ(this->box_->LineOf(2), 0);
  EXPECT_EQ(this->box_->LineOf(4), 1);
  EXPECT_EQ(this->box_->LineOf(6), 2);
  EXPECT_EQ(this->box_->LineOf(9), 2);
  EXPECT_EQ(this->box_->LineSpan(1), (TextSpan{0, 2}));
  EXPECT_EQ(this->box_->LineSpan(4), (TextSpan{4, 0}));
  EXPECT_EQ(this->box_->LineSpan(9), (TextSpan{6, 3}));
  EXPECT_EQ(this->box_->LineSpan(0), (TextSpan{0, 2}));
}

TYPED_TEST_P(RichTextBoxContract, FormatsTheSelectionAlone) {
  this->Hold("abcd");
  this->box_->Select(1, 2);
  this->box_->SetSelFormat(this->Bold());
  EXPECT_EQ(this->changes_, 1);
  EXPECT_EQ(this->Selection(), (TextSpan{1, 2}));
  for (const auto& [start, bold] : {std::pair{0, false}, {1, true}, {2, true}, {3, false}}) {
    this->box_->Select(start, 1);
    EXPECT_EQ(this->box_->SelFormat().Bold, bold) << start;
  }
}

TYPED_TEST_P(RichTextBoxContract, TypesInTheFormatOfTheCharacterReplacedOrInFront) {
  this->Hold("abcd");
  this->box_->Select(1, 2);
  this->box_->SetSelFormat(this->Bold());
  this->box_->SetSelStart(1);
  EXPECT_FALSE(this->box_->SelFormat().Bold);
  this->box_->SetSelStart(3);
  this->box_->SetSelText("x");
  this->box_->Select(3, 1);
  EXPECT_TRUE(this->box_->SelFormat().Bold);
  this->box_->Select(1, 4);
  this->box_->SetSelText("y");
  this->box_->Select(1, 1);
  EXPECT_TRUE(this->box_->SelFormat().Bold);
}

TYPED_TEST_P(RichTextBoxContract, TypesInAFormatChosenWithNothingSelected) {
  this->box_->SetSelFormat(this->Bold());
  this->box_->SetSelText("a");
  this->box_->SetSelFormat({});
  this->box_->SetSelText("b");
  this->box_->Select(0, 1);
  EXPECT_TRUE(this->box_->SelFormat().Bold);
  this->box_->Select(1, 1);
  EXPECT_FALSE(this->box_->SelFormat().Bold);
}

REGISTER_TYPED_TEST_SUITE_P(
    RichTextBoxContract, IsEmptyAtFirst, CountsALineEndAsTwoAndACyrillicLetterAsOne,
    CountsACharacterBeyondTheBasicPlaneAsTwo, MakesWholeLineEndsOfHalfOnes, KeepsALineEndAtTheEnd,
    PutsTheCaretAtTheStartOfANewText, KeepsTheSelectionWithinTheText,
    SelectsNothingWhenTheCaretMoves, NeverDividesALineEnd, NeverDividesASurrogatePair,
    ReplacesTheSelectionAndLeavesTheCaretBehind, RemovesASelectionOverSeveralLines,
    RaisesNoChangeWhereNothingIsReplaced, TakesBackWhatItGaveAsRichText,
    TakesALineEndBackAsRichText, TakesOtherBytesAsPlainText, FindsFromTheStartPositionOn,
    IgnoresCaseUnlessToldOtherwise, FindsWholeWordsWhereAsked, FindsAcrossLineEndsAndFormats,
    TellsTheLineOfAPosition, FormatsTheSelectionAlone,
    TypesInTheFormatOfTheCharacterReplacedOrInFront, TypesInAFormatChosenWithNothingSelected);

}  // namespace trelonit::test
