#pragma once

#include <cstdint>
#include <string>

#include "editor/document/RichTextBox.h"
#include "platform/system/Services.h"

namespace trelonit {

/// How a document is stored.
enum class DocumentFormat { PlainText, RichText, Word };

/// A longer file is no document for this editor: the box would need many times its size.
constexpr std::uint64_t longestDocument = std::uint64_t{64} * 1024 * 1024;  // bytes

/// The extension in lower case without its point; empty where the name has none.
std::string ExtensionOf(const std::string& name);
/// The name behind the last folder.
std::string BareName(const std::string& name);
/// Whether the name tells its folder from the root on.
bool HasPath(const std::string& name);
/// A name from a command line, without the quotes round it, with its whole path in long names.
std::string LongPathName(const std::string& name);

/// "txt", "rtf" and "doc", in any case; any other extension is plain text.
DocumentFormat FormatOf(const std::string& name);
/// The format of a kind in the dialogs (1 to 4); with 4 the name's extension decides.
DocumentFormat FormatOf(Long filterIndex, const std::string& name);
/// The name with the format's extension in the place of its own.
std::string ReplaceExtension(const std::string& name, DocumentFormat format);
/// A chosen name as it is stored: without a point it takes the kind's extension; where the kind
/// tells the format, another extension gives way to it.
std::string NameToSave(const std::string& name, Long filterIndex);

/// The bytes of a file as a text. Marks of UTF-16 in both byte orders are known; without one the
/// bytes are UTF-8 where they can be, else code page 1251.
std::string ReadPlainText(FileService& files, const std::string& name);
/// In code page 1251, without a mark; a text that would not read back from it as the same goes as
/// UTF-8, so that nothing is lost.
void WritePlainText(FileService& files, const std::string& name, const std::string& text);

/// "1023 bytes", "1.00 KB", "1.00 MB", "1.00 GB".
std::string SizeText(std::uint64_t bytes, const NumberLocale& locale);

/// Words, characters and lines under the file's name, as a message shows them.
std::string StatisticsText(const RichTextBox& rtf, const std::string& fileName,
                           const NumberLocale& locale);

// The word processor's documents. Both ways go through the clipboard, which loses what it held.
// They raise whatever the word processor or the clipboard raises.

/// Replaces what the box holds.
void ReadWordDocument(const Services& services, const std::string& name, RichTextBox& rtf);
void WriteWordDocument(const Services& services, const std::string& name, const RichTextBox& rtf);

}  // namespace trelonit
