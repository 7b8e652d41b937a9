#include <QBuffer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextBlock>
#include <gtest/gtest.h>

#include "editor/document/HtmlWriter.h"
#include "platform/errors/RuntimeError.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/binding/Binding.h"
#include "windows/editor/ReportPdf.h"
#include "windows/editor/RichDocumentHtml.h"
#include "windows/editor/RichDocumentPdf.h"
#include "windows/editor/RichDocumentQt.h"

namespace trelonit::test {
namespace {

RichDocument Colourful() {
  RichDocument document;
  document.Paragraphs.resize(4);
  CharFormat loud{.FontName = "Arial", .FontSize = 14.5, .Bold = true, .Italic = true};
  loud.TextColor = 0x123456;
  CharFormat struck;
  struck.Underline = true;
  struck.StrikeThru = true;
  document.Paragraphs[0].Runs = {{u"Отчёт ", {}}, {u"громко", loud}, {u"\tконец", struck}};
  document.Paragraphs[0].TabStops = {720, 1441};
  document.Paragraphs[2].Runs = {{u"\U0001F600 x", loud}};
  document.Paragraphs[2].Alignment = ParagraphAlignment::Centre;
  document.Paragraphs[1].Alignment = ParagraphAlignment::Justified;
  document.Paragraphs[3].Alignment = ParagraphAlignment::Right;
  return document;
}

TEST(RichDocumentQt, GivesBackTheDocumentThatItWasFilledWith) {
  QTextDocument text;
  FillDocument(text, Colourful());
  EXPECT_EQ(ReadDocument(text), Colourful());
  FillDocument(text, RichDocument{});
  EXPECT_EQ(ReadDocument(text), RichDocument{});
}

TEST(RichDocumentQt, ReadsASelectionWithWhatItCutsThrough) {
  QTextDocument text;
  FillDocument(text, Colourful());
  QTextCursor cursor(&text);
  cursor.setPosition(4);
  cursor.setPosition(22, QTextCursor::KeepAnchor);
  const RichDocument read = ReadSelection(cursor);
  ASSERT_EQ(read.Paragraphs.size(), 3u);
  EXPECT_EQ(read.Paragraphs[0].Runs[0].Text, u"т ");
  EXPECT_EQ(read.Paragraphs[0].Runs[1], Colourful().Paragraphs[0].Runs[1]);
  EXPECT_EQ(read.Paragraphs[1], Colourful().Paragraphs[1]);
  EXPECT_EQ(read.Paragraphs[2].Runs[0].Text, u"\U0001F600");
}

TEST(RichDocumentQt, WritesAFamilyOfOneWidthInOneThatIsThere) {
  CharFormat format;
  for (const char* family : {"Lucida Console", "Courier New"}) {
    format.FontName = family;
    const QFont font = FontFor(format);
    EXPECT_TRUE(QFontInfo(font).fixedPitch()) << family;
    const QFontMetricsF metrics(font);
    EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("iii")),
              metrics.horizontalAdvance(QStringLiteral("ШЖЫ")))
        << family;
  }
  EXPECT_EQ(FamiliesFor("Arial"), QStringList{QStringLiteral("Arial")});
}

TEST(RichDocumentQt, TurnsTabStopsIntoPixels) {
  RichParagraph paragraph;
  paragraph.TabStops = {1440};
  EXPECT_EQ(BlockFormatOf(paragraph).tabPositions().front().position, 96);
}

// Pages ----------------------------------------------------------------------------------------

RichDocument ManyLines(int count) {
  RichDocument document;
  document.Paragraphs.clear();
  for (int line = 0; line < count; ++line) {
    document.Paragraphs.push_back({{{u"Строка с русским текстом", {}}}});
  }
  return document;
}

/// What another program reads out of the PDF.
QString TextOfPdf(const std::string& pdf, const QStringList& options) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("page.pdf")));
  file.open(QIODevice::WriteOnly);
  file.write(QByteArray::fromStdString(pdf));
  file.close();
  QProcess process;
  process.start(QStringLiteral("pdftotext"),
                options + QStringList{file.fileName(), QStringLiteral("-")});
  process.waitForFinished(20000);
  return QString::fromUtf8(process.readAllStandardOutput());
}

bool PdfReaderIsThere() {
  return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

TEST(RichDocumentPdf, WritesAPdfWithTitleAndPages) {
  const std::string pdf = WritePdf(ManyLines(150), "Отчет");
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
  EXPECT_NE(pdf.find("/Count 3"), std::string::npos);
  // A title beyond ASCII stands in UTF-16.
  EXPECT_NE(pdf.find(std::string("\xFE\xFF\x04\x1E\x04\x42\x04\x47", 8)), std::string::npos);
}

TEST(RichDocumentPdf, NumbersThePagesAndHoldsItsTextAsText) {
  if (!PdfReaderIsThere()) {
    GTEST_SKIP() << "no pdftotext";
  }
  const QString text = TextOfPdf(WritePdf(ManyLines(150), "Отчет"), {});
  EXPECT_EQ(text.count(QStringLiteral("Строка с русским текстом")), 150);
  for (const char* foot : {"Стр. 1 из 3", "Стр. 2 из 3", "Стр. 3 из 3"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(foot))) << foot;
  }
}

TEST(RichDocumentPdf, PutsTextBehindATabWhereTheStopIs) {
  if (!PdfReaderIsThere()) {
    GTEST_SKIP() << "no pdftotext";
  }
  RichDocument document;
  document.Paragraphs[0].Runs = {{u"a\tb", {}}};
  document.Paragraphs[0].TabStops = {1440};
  const QString boxes = TextOfPdf(WritePdf(document, ""), {QStringLiteral("-bbox")});
  const QRegularExpression word(QStringLiteral("xMin=\"([0-9.]+)\"[^>]*>([ab])<"));
  double left[2] = {0, 0};
  for (auto match = word.globalMatch(boxes); match.hasNext();) {
    const QRegularExpressionMatch hit = match.next();
    left[hit.captured(2) == QLatin1String("b") ? 1 : 0] = hit.captured(1).toDouble();
  }
  const double margin = 20 / 25.4 * 72;
  EXPECT_NEAR(left[0], margin, 1);
  EXPECT_NEAR(left[1], margin + 72, 1);
}

/// Lines, then two headings one under the other with an empty line behind each, then lines again.
RichDocument Headed(int before) {
  RichDocument document = ManyLines(before);
  const CharFormat bold{.FontSize = 11, .Bold = true};
  for (const char16_t* heading : {u"Заголовок", u"Подзаголовок"}) {
    document.Paragraphs.push_back({{{heading, bold}}});
    document.Paragraphs.emplace_back();
  }
  const RichDocument after = ManyLines(3);
  document.Paragraphs.insert(document.Paragraphs.end(), after.Paragraphs.begin(),
                             after.Paragraphs.end());
  return document;
}

TEST(RichDocumentPdf, LeavesNoHeadingAloneAtTheEndOfAPage) {
  if (!PdfReaderIsThere()) {
    GTEST_SKIP() << "no pdftotext";
  }
  // However many lines stand before, from half a page to more than one.
  int moved = 0;
  for (int before = 40; before < 90; ++before) {
    const QString text = TextOfPdf(WritePdf(Headed(before), ""), {});
    for (const QString& page : text.split(QLatin1Char('\f'))) {
      if (page.contains(QStringLiteral("Заголовок"))) {
        EXPECT_TRUE(page.contains(QStringLiteral("Подзаголовок"))) << before;
        EXPECT_GT(page.lastIndexOf(QStringLiteral("Строка")),
                  page.indexOf(QStringLiteral("Подзаголовок")))
            << before;
        moved += page.startsWith(QStringLiteral("Заголовок")) ? 1 : 0;
      }
    }
  }
  EXPECT_GT(moved, 2);
}

TEST(RichDocumentPdf, LosesNothingBehindAHeadingThatMoves) {
  // Ten pages and more, with a heading over every few lines.
  RichDocument document;
  document.Paragraphs.clear();
  for (int part = 0; part < 100; ++part) {
    const RichDocument headed = Headed(3);
    document.Paragraphs.insert(document.Paragraphs.end(), headed.Paragraphs.begin(),
                               headed.Paragraphs.end());
  }
  const std::string pdf = WritePdf(document, "");
  const std::size_t count = pdf.find("/Count ");
  ASSERT_NE(count, std::string::npos);
  EXPECT_GE(std::stoi(pdf.substr(count + 7)), 10);
  if (PdfReaderIsThere()) {
    EXPECT_EQ(TextOfPdf(pdf, {}).count(QStringLiteral("Строка")), 600);
  }
}

TEST(RichDocumentPdf, LeavesADocumentOfHeadingsAsItIs) {
  RichDocument document = ManyLines(150);
  for (RichParagraph& paragraph : document.Paragraphs) {
    paragraph.Runs.front().Format.Bold = true;
  }
  EXPECT_NE(WritePdf(document, "").find("/Count 3"), std::string::npos);
}

TEST(RichDocumentPdf, PaintsTheChosenPagesAlone) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setPageLayout(PaperLayout());
    writer.setPageRanges(QPageRanges::fromString(QStringLiteral("2-3")));
    EXPECT_EQ(PaintDocument(ManyLines(300), writer), 5);
  }
  EXPECT_TRUE(bytes.data().contains("/Count 2"));
}

TEST(RichDocumentPdf, RaisesAnErrorWhereNothingCanBeWritten) {
  QPdfWriter writer(QStringLiteral("/no/such/folder/page.pdf"));
  try {
    PaintDocument({}, writer);
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 57);
  }
}

// HTML -----------------------------------------------------------------------------------------

TEST(RichDocumentHtml, ReadsBackWhatTheWriterWrites) {
  RichDocument document = Colourful();
  document.Paragraphs[0].TabStops.clear();
  // Qt reads no justified paragraphs.
  document.Paragraphs[1].Alignment = ParagraphAlignment::Left;
  document.Paragraphs[3].Runs = {{u"два  пробела  <&>", {}}};
  EXPECT_EQ(FromHtml(WriteHtml(document, "t")), document);
}

TEST(RichDocumentHtml, ReadsAPageOfAnotherProgram) {
  const RichDocument document = FromHtml(
      "<h1>Title</h1><p>one<br>two <b>bold</b> <span style='font-size:20px; color:#ff0000'>red"
      "</span></p><ul><li>item</li></ul><img src='file:///etc/passwd'>");
  ASSERT_GE(document.Paragraphs.size(), 4u);
  EXPECT_EQ(document.Paragraphs[0].Runs[0].Text, u"Title");
  EXPECT_EQ(document.Paragraphs[0].Runs[0].Format.FontSize, 18);
  EXPECT_TRUE(document.Paragraphs[0].Runs[0].Format.Bold);
  EXPECT_EQ(document.Paragraphs[1].Runs[0].Text, u"one");
  const std::vector<TextRun>& second = document.Paragraphs[2].Runs;
  ASSERT_EQ(second.size(), 4u);
  EXPECT_EQ(second[1].Text, u"bold");
  EXPECT_TRUE(second[1].Format.Bold);
  EXPECT_EQ(second[3].Format.TextColor, Color{colorRed});
  EXPECT_EQ(second[3].Format.FontSize, 15);
  EXPECT_EQ(document.Paragraphs[3].Runs[0].Text, u"item");
}

TEST(RichDocumentHtml, TakesAnyTextForAPage) {
  EXPECT_EQ(FromHtml(""), RichDocument{});
  EXPECT_EQ(FromHtml("plain").Paragraphs[0].Runs[0].Text, u"plain");
  EXPECT_EQ(FromHtml("<b><i>open").Paragraphs[0].Runs[0].Text, u"open");
}

TEST(ReportPdf, PutsASheetForEachDrawingBehindThePages) {
  const std::shared_ptr<Drawing> small = SmallDrawing();
  const std::string pdf =
      WriteReportPdf(ManyLines(150), "Отчет", PaperLayout(), {small, small}, {});
  EXPECT_NE(pdf.find("/Count 5"), std::string::npos);
  // The pages of the text are A4 upright, the sheets lie.
  const QRegularExpression box(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"));
  int upright = 0;
  int lying = 0;
  for (auto match = box.globalMatch(QString::fromLatin1(pdf.data(), qsizetype(pdf.size())));
       match.hasNext();) {
    const QRegularExpressionMatch page = match.next();
    (page.captured(1).toDouble() < page.captured(2).toDouble() ? upright : lying) += 1;
  }
  EXPECT_EQ(upright, 3);
  EXPECT_EQ(lying, 2);
}

TEST(ReportPdf, HasTheTitleBlockOnItsSheets) {
  if (!PdfReaderIsThere()) {
    GTEST_SKIP() << "no pdftotext";
  }
  const TitleBlock block{.Code = "15-2026", .Author = "Иванов"};
  const QString text =
      TextOfPdf(WriteReportPdf(ManyLines(3), "", PaperLayout(), {SmallDrawing()}, block), {});
  const QString sheet = text.section(QLatin1Char('\f'), 1, 1);
  EXPECT_TRUE(sheet.contains(QStringLiteral("15-2026")));
  EXPECT_TRUE(sheet.contains(QStringLiteral("Иванов")));
  EXPECT_TRUE(sheet.contains(QStringLiteral("М 1:")));
  EXPECT_TRUE(sheet.contains(QStringLiteral("L = 10.00")));
}

}  // namespace
}  // namespace trelonit::test
