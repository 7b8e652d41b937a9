#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace trelonit {

/// A font as a document's table names it.
struct RtfFont {
  std::string Name;                      ///< UTF-8
  std::optional<std::int32_t> CodePage;  ///< nothing: the document's
};

/// The table of fonts while it is read and afterwards. A font begins with its number and is
/// complete at the semicolon, or where the next one begins.
class RtfFonts {
 public:
  void Begin(std::int32_t number);
  void SetCodePage(std::optional<std::int32_t> codePage) { reading_.CodePage = codePage; }
  /// A character of the name; plain: of the name without its script, which then stands for it
  /// ("Arial" for "Arial CYR").
  void AppendToName(char16_t unit, bool plain);
  /// Keeps the font that was begun; of two with one number the later.
  void Complete();

  /// Null for a number without a font.
  const RtfFont* Find(std::int32_t number) const;
  const std::optional<std::int32_t>& CodePageInReading() const { return reading_.CodePage; }

 private:
  struct Reading {
    std::optional<std::int32_t> Number;
    std::optional<std::int32_t> CodePage;
    std::u16string Name;
    std::u16string PlainName;
  };
  Reading reading_;
  // Ordered, because the numbers come from outside: no choice of them makes the search slow.
  std::map<std::int32_t, RtfFont> fonts_;
};

}  // namespace trelonit
