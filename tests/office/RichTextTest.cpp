#include <gtest/gtest.h>

#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "tests/office/Documents.h"
#include "tests/office/FlatText.h"
#include "tests/office/OfficeBatch.h"

namespace trelonit::test {
namespace {

constexpr int randomDocuments = 60;

std::vector<NamedDocument> AllDocuments() {
  std::vector<NamedDocument> documents = SampleDocuments();
  for (NamedDocument& document : RandomDocuments(randomDocuments)) {
    documents.push_back(std::move(document));
  }
  return documents;
}

std::vector<std::string> Written(const std::vector<NamedDocument>& documents) {
  std::vector<std::string> texts;
  for (const NamedDocument& document : documents) {
    texts.push_back(WriteRtf(document.Document));
  }
  return texts;
}

/// LibreOffice itself saves such a name in bytes of a Japanese code page, so that this document
/// goes one way only.
NamedDocument FontNamedInCyrillic() {
  return {"Cyrillic font name", {{{{{u"x", {.FontName = "Шрифт ≥"}}}, {}, {}}}}};
}

TEST(RichTextInOffice, WhatIsWrittenOpensThereTheSame) {
  std::vector<NamedDocument> documents = AllDocuments();
  documents.push_back(FontNamedInCyrillic());
  const std::vector<std::string> opened =
      ConvertAll(Written(documents), "rtf", "fodt", "OpenDocument Text Flat XML");
  ASSERT_EQ(opened.size(), documents.size());
  for (std::size_t place = 0; place < documents.size(); ++place) {
    for (const auto other : {OtherScriptLook::EastAsian, OtherScriptLook::Complex}) {
      EXPECT_EQ(Described(ReadFlatText(opened[place], other)), Described(documents[place].Document))
          << documents[place].Name;
    }
  }
}

TEST(RichTextInOffice, ATextIsRussianAndOnA4Paper) {
  const std::vector<std::string> opened =
      ConvertAll({WriteRtf(RichDocument())}, "rtf", "fodt", "OpenDocument Text Flat XML");
  ASSERT_EQ(opened.size(), 1U);
  for (const char* part :
       {"fo:page-width=\"8.2681in\"", "fo:page-height=\"11.6929in\"", "fo:language=\"ru\""}) {
    EXPECT_NE(opened[0].find(part), std::string::npos) << part;
  }
}

TEST(RichTextInOffice, WhatIsOpenedAndSavedThereReadsBackTheSame) {
  const std::vector<NamedDocument> documents = AllDocuments();
  const std::vector<std::string> saved =
      ConvertAll(Written(documents), "rtf", "rtf", "Rich Text Format");
  ASSERT_EQ(saved.size(), documents.size());
  for (std::size_t place = 0; place < documents.size(); ++place) {
    EXPECT_EQ(Described(ReadRtf(saved[place])), Described(documents[place].Document))
        << documents[place].Name;
  }
}

}  // namespace
}  // namespace trelonit::test
