// The calculation report in the document window.

#include "editor/document/ReportLook.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

constexpr Color headingColor = 0x64381F;
constexpr Color warningColor = 0x0000C0;

CharFormat Look(double size, bool bold, Color color = colorBlack) {
  return {.FontSize = size, .Bold = bold, .TextColor = color};
}

const CharFormat plain = Look(9, false);
const CharFormat value = Look(9, true);

class Report : public OtchetTest {
 protected:
  using Runs = std::vector<TextRun>;
  const Runs& Line(std::size_t number) { return box.Document().Paragraphs.at(number).Runs; }
  void Append(const std::string& text, ReportRole role = ReportRole::Line) {
    form.AppendReport({.Spans = {{text}}, .Role = role});
  }
  /// A line with a value.
  void Append(const std::string& caption, const std::string& figure,
              ReportRole role = ReportRole::Line) {
    form.AppendReport({.Spans = {{caption}, {figure, true}, {"\r\n"}}, .Role = role});
  }
  void Begin() {
    form.BeginReport();
    Append("\r\nРасчет фермы\r\n", ReportRole::Heading);
  }
};

TEST_F(Report, HoldsExactlyItsPieces) {
  form.BeginReport();
  std::string whole;
  for (const char* piece : {"\r\nРасчет фермы\r\n", "Высота : 2\r\n", "Нагрузки - \r\n", "\r\n",
                            "a = 1\r\nb = 2\r\n", "без перевода строки", "", " : \r\n"}) {
    Append(piece);
    whole += piece;
    EXPECT_EQ(box.Text(), whole);
  }
  form.RTF_SelChange();
  EXPECT_EQ(Panel(2), "Строка 9, столбец 1");
  form.EndReport();
  EXPECT_EQ(box.Text(), whole);
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
  EXPECT_EQ(Panel(2), "Строка 1, столбец 1");
  EXPECT_TRUE(form.Changed());
  EXPECT_EQ(Said(), Messages{});
}

TEST_F(Report, MakesEachPieceOneStepOfUndo) {
  Begin();
  Append("Высота : 2\r\n");
  Append("Предупреждение\r\n", ReportRole::Warning);
  form.EndReport();
  EXPECT_EQ(form.Undo.UndoCount(), 3);
  EXPECT_TRUE(form.mnuEdit[0].Enabled());
  form.Undo.Undo();
  EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\nВысота : 2\r\n");
  form.Undo.Undo();
  EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\n");
  form.Undo.Undo();
  EXPECT_EQ(box.Text(), "");
  EXPECT_FALSE(form.Undo.canUndo());
  for (int step = 0; step < 3; ++step) {
    form.Undo.Redo();
  }
  EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\nВысота : 2\r\nПредупреждение\r\n");
}

// Looks --------------------------------------------------------------------------------------

TEST_F(Report, WritesItsTitleLargerThanTheHeadings) {
  Begin();
  Append("\r\nНагрузки\r\n", ReportRole::Heading);
  EXPECT_EQ(Line(1), (Runs{{u"Расчет фермы", Look(14, true, headingColor)}}));
  EXPECT_EQ(Line(3), (Runs{{u"Нагрузки", Look(11, true, headingColor)}}));
}

TEST_F(Report, GivesAHeadingBehindOtherLinesTheSmallerSize) {
  form.BeginReport();
  Append("строка\r\n");
  Append("Нагрузки\r\n", ReportRole::Heading);
  EXPECT_EQ(Line(1), (Runs{{u"Нагрузки", Look(11, true, headingColor)}}));
}

TEST_F(Report, MarksTheValueBehindItsCaption) {
  Begin();
  Append("Высота фермы : ", "2.5");
  form.AppendReport({.Spans = {{"N = "}, {"-10", true}, {" тонн ", true}, {"\r\n"}}});
  Append("a : b = c - 8\r\n");
  EXPECT_EQ(Line(2), (Runs{{u"Высота фермы : ", plain}, {u"2.5", value}}));
  EXPECT_EQ(Line(3), (Runs{{u"N = ", plain}, {u"-10 тонн ", value}}));
  // What is a value is told, not found.
  EXPECT_EQ(Line(4), (Runs{{u"a : b = c - 8", plain}}));
}

TEST_F(Report, MarksTheTitleOfAGroup) {
  Begin();
  Append("", "Верхний пояс : ");
  EXPECT_EQ(Line(2), (Runs{{u"Верхний пояс : ", value}}));
}

TEST_F(Report, MarksEachLineOfAPiece) {
  Begin();
  form.AppendReport({.Spans = {{"a = "}, {"1", true}, {"\r\n\r\nb = "}, {"2", true}, {"\r\n"}}});
  EXPECT_EQ(Line(2), (Runs{{u"a = ", plain}, {u"1", value}}));
  EXPECT_EQ(Line(3), Runs{});
  EXPECT_EQ(Line(4), (Runs{{u"b = ", plain}, {u"2", value}}));
}

TEST_F(Report, CountsCharactersOutsideTheBasicPlaneAsTheBoxDoes) {
  Begin();
  Append("\U0001F600 : ", "\U0001F600");
  Append("b = ", "2");
  EXPECT_EQ(Line(2), (Runs{{u"\U0001F600 : ", plain}, {u"\U0001F600", value}}));
  EXPECT_EQ(Line(3), (Runs{{u"b = ", plain}, {u"2", value}}));
}

TEST_F(Report, WritesWarningsInTheirColour) {
  Begin();
  Append("Прогиб больше, K = ", "1.2", ReportRole::Warning);
  Append("Увеличьте сечение\r\n", ReportRole::Warning);
  Append("дальше\r\n");
  EXPECT_EQ(Line(2), (Runs{{u"Прогиб больше, K = ", Look(9, false, warningColor)},
                           {u"1.2", Look(9, true, warningColor)}}));
  EXPECT_EQ(Line(3), (Runs{{u"Увеличьте сечение", Look(9, false, warningColor)}}));
  EXPECT_EQ(Line(4), (Runs{{u"дальше", plain}}));
}

TEST_F(Report, BuildsItsLooksUponTheFontOfTheEditor) {
  const CharFormat chosen{.FontName = "Arial", .FontSize = 12, .Italic = true, .TextColor = 5};
  dialogs.ToFont.push_back(chosen);
  form.mnuFormatFont_Click();
  Begin();
  Append("N = ", "1");
  CharFormat title = chosen;
  title.FontSize = 17;
  title.Bold = true;
  title.TextColor = headingColor;
  CharFormat bold = chosen;
  bold.Bold = true;
  EXPECT_EQ(Line(1), (Runs{{u"Расчет фермы", title}}));
  EXPECT_EQ(Line(2), (Runs{{u"N = ", chosen}, {u"1", bold}}));
}

TEST_F(Report, LeavesItsLooksToNoLaterDocument) {
  Begin();
  Append("Внимание\r\n", ReportRole::Warning);
  form.EndReport();
  Answer(no);
  form.mnuFileNew_Click();
  EXPECT_EQ(box.SelFormat(), plain);
  Enter("new");
  EXPECT_EQ(Line(0), (Runs{{u"new", plain}}));
  files.Content["/home/a.txt"] = "text";
  Answer(no);
  Open("/home/a.txt");
  EXPECT_EQ(Line(0), (Runs{{u"text", plain}}));
}

TEST_F(Report, KeepsItsLooksInARichTextFile) {
  Begin();
  Append("N = 1\r\n");
  form.EndReport();
  const RichDocument before = box.Document();
  SaveAs("/home/a", richTextKind);
  form.mnuFileNew_Click();
  Open("/home/a.rtf");
  EXPECT_EQ(box.Document(), before);
}

// The document -------------------------------------------------------------------------------

TEST_F(Report, TakesThePlaceOfAnOpenDocument) {
  MakeUnsavedDocument();
  box.SetEnabled(false);
  Begin();
  EXPECT_EQ(Said(), Messages{});
  EXPECT_EQ(form.FileName(), "");
  EXPECT_EQ(form.Form.Caption(), "Vestra");
  EXPECT_EQ(Panel(1), "File not saved");
  EXPECT_EQ(Panel(3), "Изменен");
  EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\n");
  EXPECT_EQ(form.Undo.UndoCount(), 1);
  EXPECT_EQ(form.Undo.RedoCount(), 0);
  EXPECT_TRUE(form.Undo.RichEditing());
  EXPECT_TRUE(box.Enabled());
  EXPECT_EQ(files.Content["/home/old.txt"], "old text");
}

TEST_F(Report, TakesThePlaceOfTheReportBefore) {
  for (int run = 0; run < 2; ++run) {
    Begin();
    Append("N = 1\r\n");
    form.EndReport();
    EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\nN = 1\r\n");
    EXPECT_EQ(Line(1), (Runs{{u"Расчет фермы", Look(14, true, headingColor)}}));
    EXPECT_EQ(form.Undo.UndoCount(), 2);
  }
}

TEST_F(Report, IsSavedAsANewDocumentWhenTheWindowCloses) {
  Begin();
  form.EndReport();
  Answer(yes);
  dialogs.ToSave.push_back({"/home/отчет", richTextKind});
  EXPECT_TRUE(form.Form_QueryUnload());
  EXPECT_EQ(dialogs.Saved, (std::vector<FileChoice>{{"", 2}}));
  EXPECT_EQ(files.Content["/home/отчет.rtf"], box.TextRTF());
}

TEST_F(Report, TakesNoPieceBeforeItsBeginningOrBehindItsEnd) {
  Append("early\r\n");
  EXPECT_EQ(box.Text(), "");
  Begin();
  form.EndReport();
  Append("late\r\n");
  EXPECT_EQ(box.Text(), "\r\nРасчет фермы\r\n");
}

}  // namespace
}  // namespace trelonit::test
