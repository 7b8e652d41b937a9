#include "windows/help/HtmlHelp.h"

namespace trelonit {

bool ShowHtmlHelp(const std::string& /*path*/) {
  return false;
}

}  // namespace trelonit
