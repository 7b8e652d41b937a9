#include "editor/document/MemoryRichTextBox.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "editor/document/TextUnits.h"
#include "editor/rtf/RtfHealth.h"
#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

std::size_t DocumentLength(const RichDocument& document) {
  std::size_t length = (document.Paragraphs.size() - 1) * lineEndUnits.size();
  for (const RichParagraph& paragraph : document.Paragraphs) {
    length += RunsLength(paragraph.Runs);
  }
  return length;
}

std::string DocumentText(const RichDocument& document) {
  std::u16string units;
  for (const RichParagraph& paragraph : document.Paragraphs) {
    if (&paragraph != &document.Paragraphs.front()) {
      units += lineEndUnits;
    }
    for (const TextRun& run : paragraph.Runs) {
      units += run.Text;
    }
  }
  return Utf8(units);
}

RichDocument PlainDocument(std::u16string_view units, const CharFormat& format) {
  RichDocument document;
  for (;;) {
    const std::size_t end = units.find(lineEndUnits);
    const std::u16string_view line = units.substr(0, end);
    if (!line.empty()) {
      document.Paragraphs.back().Runs.push_back({std::u16string(line), format});
    }
    if (end == std::u16string_view::npos) {
      return document;
    }
    units.remove_prefix(end + lineEndUnits.size());
    document.Paragraphs.emplace_back();
  }
}

/// Every paragraph's runs as the edits need them; one paragraph at least.
void PutInOrder(RichDocument& document) {
  if (document.Paragraphs.empty()) {
    document.Paragraphs.emplace_back();
  }
  for (RichParagraph& paragraph : document.Paragraphs) {
    TextRuns ordered;
    for (const TextRun& run : paragraph.Runs) {
      if (!run.Text.empty()) {
        AppendRuns(ordered, {run});
      }
    }
    paragraph.Runs = std::move(ordered);
  }
}

/// Whether the offset lies within a line end or a surrogate pair.
bool DividesPair(const TextRuns& runs, std::size_t offset) {
  const std::size_t length = RunsLength(runs);
  if (offset > length) {
    return true;  // within the line end
  }
  if (offset == 0 || offset == length) {
    return false;
  }
  const std::u16string around = RunsText(CopyRuns(runs, offset - 1, offset + 1));
  return BelongTogether(around[0], around[1]);
}

}  // namespace

std::string MemoryRichTextBox::Text() const {
  return DocumentText(document_);
}

void MemoryRichTextBox::SetText(const std::string& text) {
  SetDocument(PlainDocument(Units(text), baseFormat_));
}

std::string MemoryRichTextBox::TextRTF() const {
  return WriteRtf(document_);
}

void MemoryRichTextBox::SetTextRTF(const std::string& rtf) {
  if (BeginsAsRtf(rtf)) {
    SetDocument(ReadRtf(rtf));
  } else {
    SetText(rtf);
  }
}

void MemoryRichTextBox::SetDocument(RichDocument document) {
  document_ = std::move(document);
  PutInOrder(document_);
  length_ = static_cast<Long>(DocumentLength(document_));
  near_ = {};
  SetSelStart(0);
  RaiseChange();
}

Long MemoryRichTextBox::Clamped(Long position) const {
  return std::clamp(position, Long{0}, length_);
}

MemoryRichTextBox::Place MemoryRichTextBox::Locate(Long position) const {
  const auto wanted = static_cast<std::size_t>(Clamped(position));
  while (wanted < near_.Start) {
    --near_.Paragraph;
    near_.Start -= RunsLength(RunsOf(near_.Paragraph)) + lineEndUnits.size();
  }
  while (near_.Paragraph + 1 < document_.Paragraphs.size()) {
    const std::size_t next =
        near_.Start + RunsLength(RunsOf(near_.Paragraph)) + lineEndUnits.size();
    if (wanted < next) {
      break;
    }
    ++near_.Paragraph;
    near_.Start = next;
  }
  return {near_.Paragraph, near_.Start, wanted - near_.Start};
}

void MemoryRichTextBox::SetSelStart(Long start) {
  const Place place = Locate(start);
  selStart_ = Clamped(start);
  if (DividesPair(RunsOf(place.Paragraph), place.Offset)) {
    --selStart_;
  }
  selEnd_ = selStart_;
  typingFormat_.reset();
}

void MemoryRichTextBox::SetSelLength(Long length) {
  const Long wanted = std::clamp(length, Long{0}, length_ - selStart_);
  selEnd_ = selStart_ + wanted;
  const Place place = Locate(selEnd_);
  if (DividesPair(RunsOf(place.Paragraph), place.Offset)) {
    ++selEnd_;
  }
  if (wanted > 0) {
    typingFormat_.reset();
  }
}

RichDocument MemoryRichTextBox::Selected() const {
  const Place first = Locate(selStart_);
  const Place last = Locate(selEnd_);
  RichDocument document;
  document.Paragraphs.clear();
  for (std::size_t paragraph = first.Paragraph; paragraph <= last.Paragraph; ++paragraph) {
    const RichParagraph& source = document_.Paragraphs[paragraph];
    const std::size_t from = paragraph == first.Paragraph ? first.Offset : 0;
    const std::size_t to = paragraph == last.Paragraph ? last.Offset : RunsLength(source.Runs);
    document.Paragraphs.push_back(
        {CopyRuns(source.Runs, from, to), source.Alignment, source.TabStops});
  }
  return document;
}

std::string MemoryRichTextBox::SelText() const {
  return DocumentText(Selected());
}

std::string MemoryRichTextBox::SelRTF() const {
  return SelLength() == 0 ? std::string() : WriteRtf(Selected());
}

void MemoryRichTextBox::SetSelText(const std::string& text) {
  ReplaceSelection(PlainDocument(Units(text), SelFormat()));
}

void MemoryRichTextBox::SetSelRTF(const std::string& rtf) {
  if (!BeginsAsRtf(rtf)) {
    SetSelText(rtf);
    return;
  }
  RichDocument piece = ReadRtf(rtf);
  PutInOrder(piece);
  ReplaceSelection(piece);
}

void MemoryRichTextBox::ReplaceSelection(const RichDocument& piece) {
  const auto added = static_cast<Long>(DocumentLength(piece));
  const Long removed = SelLength();
  if (added == 0 && removed == 0) {
    return;
  }
  const Place last = Locate(selEnd_);
  const Place first = Locate(selStart_);
  Remove(first, last);
  Insert(first, piece);
  length_ += added - removed;
  SetSelStart(selStart_ + added);
  RaiseChange();
}

void MemoryRichTextBox::Remove(const Place& first, const Place& last) {
  TextRuns& runs = document_.Paragraphs[first.Paragraph].Runs;
  if (first.Paragraph == last.Paragraph) {
    EraseRuns(runs, first.Offset, last.Offset);
    return;
  }
  const TextRuns rest = CutRuns(document_.Paragraphs[last.Paragraph].Runs, last.Offset);
  CutRuns(runs, first.Offset);
  AppendRuns(runs, rest);
  const auto begin = document_.Paragraphs.begin();
  document_.Paragraphs.erase(begin + static_cast<std::ptrdiff_t>(first.Paragraph) + 1,
                             begin + static_cast<std::ptrdiff_t>(last.Paragraph) + 1);
}

void MemoryRichTextBox::Insert(const Place& place, const RichDocument& piece) {
  TextRuns& runs = document_.Paragraphs[place.Paragraph].Runs;
  const std::vector<RichParagraph>& paragraphs = piece.Paragraphs;
  if (paragraphs.size() == 1) {
    InsertRuns(runs, place.Offset, paragraphs.front().Runs);
    return;
  }
  const TextRuns rest = CutRuns(runs, place.Offset);
  AppendRuns(runs, paragraphs.front().Runs);
  document_.Paragraphs.insert(
      document_.Paragraphs.begin() + static_cast<std::ptrdiff_t>(place.Paragraph) + 1,
      paragraphs.begin() + 1, paragraphs.end());
  AppendRuns(document_.Paragraphs[place.Paragraph + paragraphs.size() - 1].Runs, rest);
}

std::u16string MemoryRichTextBox::TextToSearch(std::size_t paragraph,
                                               std::ptrdiff_t lineEnds) const {
  std::u16string text = RunsText(RunsOf(paragraph));
  for (; lineEnds != 0 && ++paragraph < document_.Paragraphs.size(); --lineEnds) {
    text += lineEndUnits;
    text += RunsText(RunsOf(paragraph));
  }
  return text;
}

Long MemoryRichTextBox::Find(const std::string& text, Long start, Long options) const {
  std::u16string wanted = Units(text);
  if (wanted.empty()) {
    return notFound;
  }
  const bool wholeWord = (options & findWholeWord) != 0;
  const bool anyCase = (options & findMatchCase) == 0;
  const auto lower = [](std::u16string& units) {
    std::transform(units.begin(), units.end(), units.begin(), LowerCase);
  };
  if (anyCase) {
    lower(wanted);
  }
  // Only a text with a line end in it can reach beyond its paragraph.
  const auto lineEnds = std::count(wanted.begin(), wanted.end(), lineEndUnits.back());
  for (Place place = Locate(start); place.Paragraph < document_.Paragraphs.size();
       ++place.Paragraph) {
    std::u16string searched = TextToSearch(place.Paragraph, lineEnds);
    if (anyCase) {
      lower(searched);
    }
    for (std::size_t hit = searched.find(wanted, place.Offset); hit != std::u16string::npos;
         hit = searched.find(wanted, hit + 1)) {
      const std::size_t end = hit + wanted.size();
      const bool stands = (hit == 0 || !IsWordUnit(searched[hit - 1])) &&
                          (end == searched.size() || !IsWordUnit(searched[end]));
      if (!wholeWord || stands) {
        return static_cast<Long>(place.Start + hit);
      }
    }
    place.Start += RunsLength(RunsOf(place.Paragraph)) + lineEndUnits.size();
    place.Offset = 0;
  }
  return notFound;
}

Long MemoryRichTextBox::LineOf(Long position) const {
  return static_cast<Long>(Locate(position).Paragraph);
}

TextSpan MemoryRichTextBox::LineSpan(Long position) const {
  const Place place = Locate(position);
  return {static_cast<Long>(place.Start), static_cast<Long>(RunsLength(RunsOf(place.Paragraph)))};
}

CharFormat MemoryRichTextBox::SelFormat() const {
  if (typingFormat_) {
    return *typingFormat_;
  }
  const Place place = Locate(selStart_);
  const TextRuns& runs = RunsOf(place.Paragraph);
  const TextRun* run = selEnd_ > selStart_ ? RunAfter(runs, place.Offset) : nullptr;
  if (run == nullptr) {
    run = RunBefore(runs, place.Offset);
  }
  if (run == nullptr && place.Paragraph > 0 && !RunsOf(place.Paragraph - 1).empty()) {
    run = &RunsOf(place.Paragraph - 1).back();
  }
  return run != nullptr ? run->Format : baseFormat_;
}

void MemoryRichTextBox::SetSelFormat(const CharFormat& format) {
  if (length_ == 0) {
    baseFormat_ = format;
    return;
  }
  if (SelLength() == 0) {
    typingFormat_ = format;
    return;
  }
  const Place first = Locate(selStart_);
  const Place last = Locate(selEnd_);
  for (std::size_t paragraph = first.Paragraph; paragraph <= last.Paragraph; ++paragraph) {
    TextRuns& runs = document_.Paragraphs[paragraph].Runs;
    const std::size_t from = paragraph == first.Paragraph ? first.Offset : 0;
    const std::size_t to = paragraph == last.Paragraph ? last.Offset : RunsLength(runs);
    FormatRuns(runs, from, to, format);
  }
  RaiseChange();
}

}  // namespace trelonit
