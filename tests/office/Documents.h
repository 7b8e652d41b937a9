#pragma once

#include <string>
#include <vector>

#include "editor/document/RichDocument.h"

namespace trelonit::test {

struct NamedDocument {
  std::string Name;
  RichDocument Document;
};

/// Documents with all that the editor can hold: each format alone and with the others, each
/// alignment, tab stops, scripts, empty paragraphs, a report.
std::vector<NamedDocument> SampleDocuments();

/// Documents of any text and any formats, the same in every run.
std::vector<NamedDocument> RandomDocuments(int count);

/// The document as lines of text, one a paragraph and one a run, for comparing and showing.
std::string Described(const RichDocument& document);

}  // namespace trelonit::test
