#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "editor/document/RichDocument.h"

namespace trelonit {

// The characters of one paragraph. Offsets count UTF-16 units and lie within the paragraph. After
// every edit no run is empty and no two neighbours look alike.

using TextRuns = std::vector<TextRun>;

std::size_t RunsLength(const TextRuns& runs);
std::u16string RunsText(const TextRuns& runs);

/// The run that holds the unit in front of the offset (the first one at offset 0); null without
/// runs.
const TextRun* RunBefore(const TextRuns& runs, std::size_t offset);
/// The run that holds the unit behind the offset; null at the end.
const TextRun* RunAfter(const TextRuns& runs, std::size_t offset);

TextRuns CopyRuns(const TextRuns& runs, std::size_t from, std::size_t to);
void EraseRuns(TextRuns& runs, std::size_t from, std::size_t to);
void InsertRuns(TextRuns& runs, std::size_t offset, const TextRuns& inserted);
/// Cuts the paragraph at the offset and returns what stood behind.
TextRuns CutRuns(TextRuns& runs, std::size_t offset);
void AppendRuns(TextRuns& runs, const TextRuns& appended);
void FormatRuns(TextRuns& runs, std::size_t from, std::size_t to, const CharFormat& format);

}  // namespace trelonit
