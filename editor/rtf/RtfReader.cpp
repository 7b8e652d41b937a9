#include "editor/rtf/RtfReader.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "editor/rtf/RtfAssembly.h"
#include "editor/rtf/RtfCodePages.h"
#include "editor/rtf/RtfHealth.h"
#include "editor/rtf/RtfKeywords.h"
#include "editor/rtf/RtfLimits.h"
#include "editor/rtf/RtfLooks.h"
#include "editor/rtf/RtfTokens.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

/// Where the characters of a group go.
enum class Destination { Text, FontTable, PlainFontName, ColourTable, Nowhere };

/// What a group sets and its end restores.
struct GroupState {
  Destination To = Destination::Text;
  std::int32_t FallbackLength = 1;
  RtfCharState Characters;
  RtfParagraphFormat Paragraph;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : tokens_(bytes) {}
  RichDocument Read();

 private:
  bool IsFallback(const RtfToken& token);
  void Take(const RtfToken& token);
  void OpenGroup();
  void CloseGroup();

  void TakeSymbol(unsigned char symbol);
  void TakeWord(const RtfToken& token);
  void TakeTextWord(const RtfKeyword& keyword, std::optional<std::int32_t> parameter);
  void TakeFontWord(RtfAction action, std::int32_t value);
  void TakeUnicode(std::int32_t number);
  void TakeCharacter(char16_t unit);
  void AddTabStop(std::int32_t place);
  void Enter(Destination destination);

  GroupState& State() { return groups_.back(); }
  bool InFontTable() {
    return State().To == Destination::FontTable || State().To == Destination::PlainFontName;
  }
  char16_t Decoded(unsigned char byte);
  void EndLine();

  RtfTokens tokens_;
  RtfAssembly assembly_;
  std::vector<GroupState> groups_;
  std::size_t passedGroups_ = 0;   ///< open groups whose content is passed over
  std::int32_t fallbackLeft_ = 0;  ///< tokens still to pass over after a Unicode escape
  bool starred_ = false;           ///< the next word's group matters only if the word is known
  bool newFormat_ = true;          ///< the next character may look unlike the last one
  RtfTables tables_;
};

RichDocument Reader::Read() {
  for (RtfToken token = tokens_.Next(); token.Is != RtfToken::Kind::End; token = tokens_.Next()) {
    if (token.Is == RtfToken::Kind::GroupStart) {
      OpenGroup();
    } else if (token.Is == RtfToken::Kind::GroupEnd) {
      // What follows the end of the outermost group belongs to no document.
      if (groups_.size() == 1 && passedGroups_ == 0) {
        break;
      }
      CloseGroup();
    } else if (passedGroups_ == 0 && State().To != Destination::Nowhere && !IsFallback(token)) {
      Take(token);
    }
  }
  return assembly_.Finish(groups_.back().Paragraph);
}

/// A writer that gives no fallback at all writes the next escape at once: that one is read.
bool Reader::IsFallback(const RtfToken& token) {
  if (fallbackLeft_ == 0 || (token.Is == RtfToken::Kind::Word && token.Word == "u")) {
    fallbackLeft_ = 0;
    return false;
  }
  --fallbackLeft_;
  return true;
}

void Reader::OpenGroup() {
  fallbackLeft_ = 0;
  starred_ = false;
  if (passedGroups_ != 0 || groups_.size() == rtfDeepestGroup ||
      (!groups_.empty() && State().To == Destination::Nowhere)) {
    ++passedGroups_;
  } else if (groups_.empty()) {
    groups_.emplace_back();
  } else {
    groups_.push_back(GroupState(groups_.back()));
  }
}

void Reader::CloseGroup() {
  fallbackLeft_ = 0;
  starred_ = false;
  if (passedGroups_ != 0) {
    --passedGroups_;
    return;
  }
  if (State().To == Destination::FontTable) {
    tables_.Fonts.Complete();
  }
  groups_.pop_back();
  newFormat_ = true;
}

void Reader::Take(const RtfToken& token) {
  switch (token.Is) {
    case RtfToken::Kind::Word:
      TakeWord(token);
      return;
    case RtfToken::Kind::Symbol:
      TakeSymbol(token.Byte);
      return;
    case RtfToken::Kind::Literal:
      if (token.Byte == ';' && InFontTable()) {
        if (State().To == Destination::FontTable) {
          tables_.Fonts.Complete();
        }
      } else if (token.Byte == ';' && State().To == Destination::ColourTable) {
        tables_.CompleteColour();
      } else {
        TakeCharacter(Decoded(token.Byte));
      }
      return;
    default:
      TakeCharacter(Decoded(token.Byte));
  }
}

void Reader::TakeSymbol(unsigned char symbol) {
  starred_ = false;
  switch (symbol) {
    case '*':
      starred_ = true;
      return;
    case '\\':
    case '{':
    case '}':
      TakeCharacter(symbol);
      return;
    case '~':
      TakeCharacter(u'\u00A0');
      return;
    case '_':
      TakeCharacter(u'\u2011');
      return;
    case '-':
      TakeCharacter(u'\u00AD');
      return;
    case '\t':
      TakeCharacter(u'\t');
      return;
    case '\r':
    case '\n':
      EndLine();
      return;
    default:
      return;
  }
}

void Reader::TakeWord(const RtfToken& token) {
  const bool starred = std::exchange(starred_, false);
  const RtfKeyword keyword = FindRtfKeyword(token.Word);
  switch (keyword.Action) {
    case RtfAction::FontTable:
      Enter(Destination::FontTable);
      return;
    case RtfAction::ColourTable:
      Enter(Destination::ColourTable);
      return;
    case RtfAction::PlainFontName:
      Enter(InFontTable() ? Destination::PlainFontName : Destination::Nowhere);
      return;
    case RtfAction::SkipGroup:
      Enter(Destination::Nowhere);
      return;
    default:
      break;
  }
  if (starred) {
    Enter(Destination::Nowhere);
    return;
  }
  const std::int32_t number = token.Parameter.value_or(0);
  switch (keyword.Action) {
    case RtfAction::Unicode:
      TakeUnicode(number);
      return;
    case RtfAction::Character:
      TakeCharacter(static_cast<char16_t>(keyword.Value));
      return;
    case RtfAction::FallbackLength:
      State().FallbackLength = std::max(token.Parameter.value_or(1), 0);
      return;
    case RtfAction::CodePage:
      tables_.CodePage = token.Parameter.value_or(keyword.Value);
      return;
    case RtfAction::DefaultFont:
      tables_.DefaultFont = number;
      newFormat_ = true;
      return;
    default:
      break;
  }
  if (InFontTable()) {
    TakeFontWord(keyword.Action, number);
  } else if (State().To == Destination::ColourTable) {
    tables_.TakeColourPart(keyword.Action, number);
  } else {
    TakeTextWord(keyword, token.Parameter);
  }
}

/// The outermost group is never lost to a word: a damaged text would lose all that follows it.
void Reader::Enter(Destination destination) {
  if (groups_.size() > 1) {
    State().To = destination;
  }
}

void Reader::TakeFontWord(RtfAction action, std::int32_t value) {
  switch (action) {
    case RtfAction::Font:
      tables_.Fonts.Begin(value);
      return;
    case RtfAction::FontCharset:
      tables_.Fonts.SetCodePage(CodePageOfCharset(value));
      return;
    case RtfAction::FontCodePage:
      tables_.Fonts.SetCodePage(value);
      return;
    default:
      return;
  }
}

void Reader::TakeTextWord(const RtfKeyword& keyword, std::optional<std::int32_t> parameter) {
  RtfParagraphFormat& paragraph = State().Paragraph;
  switch (keyword.Action) {
    case RtfAction::LineEnd:
      return EndLine();
    case RtfAction::PageEnd:
      if (assembly_.ParagraphHasText()) {
        EndLine();
      }
      return;
    case RtfAction::ParagraphPlain:
      paragraph = {};
      return;
    case RtfAction::Alignment:
      paragraph.Alignment = static_cast<ParagraphAlignment>(keyword.Value);
      return;
    case RtfAction::TabStop:
      if (parameter) {
        AddTabStop(*parameter);
      }
      return;
    default:
      ApplyLook(State().Characters, keyword, parameter);
      newFormat_ = true;
  }
}

void Reader::AddTabStop(std::int32_t place) {
  std::vector<std::int32_t>& stops = State().Paragraph.TabStops;
  const auto next = std::lower_bound(stops.begin(), stops.end(), place);
  if (stops.size() < rtfMostTabStops && (next == stops.end() || *next != place)) {
    stops.insert(next, place);
  }
}

void Reader::TakeUnicode(std::int32_t number) {
  fallbackLeft_ = State().FallbackLength;
  // Numbers above 32767 are written negative; some programs write them, and those above 65535,
  // as they are.
  if (number < 0) {
    number += 0x10000;
  }
  if (number < 0 || number > 0x10FFFF) {
    TakeCharacter(u'\uFFFD');
  } else if (number > 0xFFFF) {
    number -= 0x10000;
    TakeCharacter(static_cast<char16_t>(0xD800 + (number >> 10)));
    TakeCharacter(static_cast<char16_t>(0xDC00 + (number & 0x3FF)));
  } else {
    TakeCharacter(static_cast<char16_t>(number));
  }
}

void Reader::TakeCharacter(char16_t unit) {
  starred_ = false;
  const GroupState& state = State();
  if (InFontTable()) {
    tables_.Fonts.AppendToName(unit, state.To == Destination::PlainFontName);
  } else if (state.To == Destination::Text && !state.Characters.Hidden) {
    if (unit == u'\r' || unit == u'\n') {
      assembly_.AppendLineEnd(unit, state.Paragraph);
      return;
    }
    if (std::exchange(newFormat_, false) || !assembly_.ParagraphHasText()) {
      assembly_.BeginRun(tables_.FormatOf(state.Characters));
    }
    assembly_.Append(unit);
  }
}

/// The document has one kind of line end, so a break of the line within a paragraph is read as one.
void Reader::EndLine() {
  if (State().To == Destination::Text) {
    assembly_.EndParagraph(State().Paragraph);
  }
}

char16_t Reader::Decoded(unsigned char byte) {
  return InFontTable() ? tables_.DecodeInFontTable(byte) : tables_.Decode(byte, State().Characters);
}

}  // namespace

RichDocument ReadRtf(std::string_view bytes) {
  if (!BeginsAsRtf(bytes)) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return Reader(bytes).Read();
}

}  // namespace trelonit
