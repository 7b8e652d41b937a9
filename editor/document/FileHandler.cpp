#include "editor/document/FileHandler.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>

#include "editor/dialogs/ModCmnDlg.h"
#include "editor/document/TextUnits.h"
#include "platform/errors/Guard.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "platform/system/AutomationMembers.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr std::string_view folderSeparators = "/\\";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Where the extension's point stands, or npos.
std::size_t PointOf(const std::string& name) {
  const std::size_t folder = name.find_last_of(folderSeparators);
  const std::size_t point = name.rfind('.');
  const std::size_t first = folder == std::string::npos ? 0 : folder + 1;
  // A name that begins with its only point is hidden, not empty.
  return point == std::string::npos || point <= first ? std::string::npos : point;
}

std::string_view ExtensionFor(DocumentFormat format) {
  switch (format) {
    case DocumentFormat::RichText:
      return ".rtf";
    case DocumentFormat::Word:
      return ".doc";
    case DocumentFormat::PlainText:
      break;
  }
  return ".txt";
}

/// Whether what stands behind a name's last point tells a kind of file. Otherwise it is a part of
/// the name, like a size in "Ферма 1.5 м".
bool TellsKind(const std::string& extension) {
  constexpr std::size_t longest = 5;
  const auto digit = [](char letter) { return letter >= '0' && letter <= '9'; };
  return extension.size() <= longest &&
         std::any_of(extension.begin(), extension.end(), IsLatinLetter) &&
         std::all_of(extension.begin(), extension.end(),
                     [&](char letter) { return IsLatinLetter(letter) || digit(letter); });
}

std::string FromUtf16(std::string_view bytes, std::size_t high) {
  std::u16string units(bytes.size() / 2, u'\0');
  for (std::size_t unit = 0; unit < units.size(); ++unit) {
    const std::string_view pair = bytes.substr(2 * unit);
    units[unit] = static_cast<char16_t>(static_cast<unsigned char>(pair[high]) << 8 |
                                        static_cast<unsigned char>(pair[1 - high]));
  }
  return Utf8(units);
}

std::string Decoded(std::string_view bytes) {
  if (bytes.starts_with(littleEndianMark)) {
    return FromUtf16(bytes.substr(littleEndianMark.size()), 1);
  }
  if (bytes.starts_with(bigEndianMark)) {
    return FromUtf16(bytes.substr(bigEndianMark.size()), 0);
  }
  if (bytes.starts_with(utf8Mark)) {
    bytes.remove_prefix(utf8Mark.size());
  }
  // Russian text in code page 1251 is hardly ever well-formed UTF-8.
  return IsUtf8(bytes) ? std::string(bytes) : DecodeCodePage1251(bytes);
}

constexpr std::uint64_t sizeStep = 1024;

/// Groups of three, no decimals.
std::string CountText(Long count, const NumberLocale& locale) {
  return FormatShown(count, 0, locale);
}

Long CountWords(const std::string& text) {
  Long words = 0;
  std::string_view rest = text;
  for (;;) {
    const std::size_t blank = rest.find(' ');
    const std::string_view piece = rest.substr(0, blank);
    if (!piece.empty() && piece != lineEnd && piece != "\r") {
      ++words;
    }
    if (blank == std::string_view::npos) {
      return words;
    }
    rest.remove_prefix(blank + 1);
  }
}

/// The word processor for one conversion. It ends whatever happened.
class Word {
 public:
  explicit Word(AutomationService& automation)
      : application_(automation.Create("Word.Application")) {}
  ~Word() {
    if (!ended_) {
      PassOver([this] {
        // A document that is half made would be asked about in a window that nobody sees, and the
        // program would wait there for ever.
        constexpr Long withoutSaving = 0;  // wdDoNotSaveChanges
        application_->Call("Quit", {withoutSaving});
      });
    }
  }
  Word(const Word&) = delete;
  Word& operator=(const Word&) = delete;

  AutomationHandle Documents() { return ObjectMember(application_, "Documents"); }
  AutomationHandle ActiveDocument() { return ObjectMember(application_, "ActiveDocument"); }
  /// The last step of a conversion, which fails where this does.
  void Quit() {
    application_->Call("Quit", {});
    ended_ = true;
  }

 private:
  AutomationHandle application_;
  bool ended_ = false;
};

}  // namespace

std::string ExtensionOf(const std::string& name) {
  const std::size_t point = PointOf(name);
  return point == std::string::npos ? std::string() : LowerLatin(name.substr(point + 1));
}

std::string BareName(const std::string& name) {
  const std::size_t folder = name.find_last_of(folderSeparators);
  return folder == std::string::npos ? name : name.substr(folder + 1);
}

bool HasPath(const std::string& name) {
  return name.find(":\\") != std::string::npos || name.starts_with('/');
}

std::string LongPathName(const std::string& name) {
  std::string_view bare = Trim(name);
  while (bare.size() >= 2 && bare.front() == '"' && bare.back() == '"') {
    bare = Trim(bare.substr(1, bare.size() - 2));
  }
  if (bare.empty()) {
    return {};
  }
  const std::optional<std::filesystem::path> whole = AbsolutePath(bare);
  return whole ? Utf8OfPath(LongName(whole->lexically_normal())) : std::string(bare);
}

DocumentFormat FormatOf(const std::string& name) {
  const std::string extension = ExtensionOf(name);
  if (extension == "rtf") {
    return DocumentFormat::RichText;
  }
  return extension == "doc" ? DocumentFormat::Word : DocumentFormat::PlainText;
}

DocumentFormat FormatOf(Long filterIndex, const std::string& name) {
  switch (filterIndex) {
    case plainTextKind:
      return DocumentFormat::PlainText;
    case richTextKind:
      return DocumentFormat::RichText;
    case wordKind:
      return DocumentFormat::Word;
    default:
      return FormatOf(name);
  }
}

std::string ReplaceExtension(const std::string& name, DocumentFormat format) {
  return name.substr(0, PointOf(name)) + std::string(ExtensionFor(format));
}

std::string NameToSave(const std::string& name, Long filterIndex) {
  const std::string extension = ExtensionOf(name);
  const DocumentFormat format = FormatOf(filterIndex, name);
  if (!extension.empty() && !TellsKind(extension)) {
    return name + std::string(ExtensionFor(format));
  }
  // With all files shown, the extension has told the format already.
  const bool fits = !extension.empty() &&
                    (filterIndex == allFilesKind || '.' + extension == ExtensionFor(format));
  return fits ? name : ReplaceExtension(name, format);
}

std::string ReadPlainText(FileService& files, const std::string& name) {
  return Decoded(ReadBytes(files, name));
}

void WritePlainText(FileService& files, const std::string& name, const std::string& text) {
  std::string bytes = EncodeCodePage1251(text);
  // Only what will read back as the same text goes in the code page.
  if (Decoded(bytes) != text) {
    // A text that begins with the mark's own character would lose it without one more.
    bytes = (text.starts_with(utf8Mark) ? std::string(utf8Mark) : std::string()) + text;
  }
  files.ReplaceFile(name, bytes);
}

std::string SizeText(std::uint64_t bytes, const NumberLocale& locale) {
  if (bytes < sizeStep) {
    return std::to_string(bytes) + " bytes";
  }
  const auto in = [&](std::uint64_t size, const char* name) {
    constexpr int decimals = 2;
    return FormatPlain(static_cast<double>(bytes) / static_cast<double>(size), decimals, locale) +
           name;
  };
  if (bytes < sizeStep * sizeStep) {
    return in(sizeStep, " KB");
  }
  return bytes <= sizeStep * sizeStep * sizeStep ? in(sizeStep * sizeStep, " MB")
                                                 : in(sizeStep * sizeStep * sizeStep, " GB");
}

std::string StatisticsText(const RichTextBox& rtf, const std::string& fileName,
                           const NumberLocale& locale) {
  return (fileName.empty() ? std::string("File not yet saved.") : fileName) +
         "\nWords : " + CountText(CountWords(rtf.Text()), locale) +
         "\nCharacters : " + CountText(rtf.TextLength(), locale) +
         "\nLines : " + CountText(rtf.LineCount(), locale);
}

void ReadWordDocument(const Services& services, const std::string& name, RichTextBox& rtf) {
  {
    Word word(services.Automation);
    CallMember(word.Documents(), "Open", {name});
    CallMember(ObjectMember(word.ActiveDocument(), "Content"), "Copy");
    word.Quit();
  }
  const std::string rich = services.Clipboard.RichText();
  if (rich.empty()) {
    rtf.SetText(services.Clipboard.Text());
  } else {
    rtf.SetTextRTF(rich);
  }
}

void WriteWordDocument(const Services& services, const std::string& name, const RichTextBox& rtf) {
  Word word(services.Automation);
  CallMember(word.Documents(), "Add");
  services.Clipboard.SetRichText(rtf.TextRTF(), rtf.Text());
  const AutomationHandle document = word.ActiveDocument();
  CallMember(ObjectMember(document, "Content"), "Paste");
  CallMember(document, "SaveAs", {name});
  word.Quit();
}

}  // namespace trelonit
