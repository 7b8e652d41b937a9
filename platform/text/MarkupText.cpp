#include "platform/text/MarkupText.h"

namespace trelonit {

void AppendMarkup(std::string& page, std::string_view text) {
  for (const char character : text) {
    switch (character) {
      case '&':
        page += "&amp;";
        break;
      case '<':
        page += "&lt;";
        break;
      case '>':
        page += "&gt;";
        break;
      case '\t':
        page += character;
        break;
      default:
        if (static_cast<unsigned char>(character) >= ' ') {
          page += character;
        }
        break;
    }
  }
}

}  // namespace trelonit
