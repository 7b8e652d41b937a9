#include "editor/rtf/RtfHealth.h"

#include "editor/rtf/RtfLimits.h"
#include "editor/rtf/RtfTokens.h"

namespace trelonit {

bool BeginsAsRtf(std::string_view bytes) {
  return bytes.starts_with("{\\rtf");
}

bool IsWholeRtf(std::string_view bytes) {
  if (!BeginsAsRtf(bytes)) {
    return false;
  }
  RtfTokens tokens(bytes);
  std::size_t depth = 0;
  for (;;) {
    switch (tokens.Next().Is) {
      case RtfToken::Kind::GroupStart:
        if (++depth > rtfDeepestGroup) {
          return false;
        }
        break;
      case RtfToken::Kind::GroupEnd:
        // What stands behind the outermost group is no part of the document.
        if (--depth == 0) {
          return true;
        }
        break;
      case RtfToken::Kind::End:
        return false;
      default:
        break;
    }
  }
}

}  // namespace trelonit
