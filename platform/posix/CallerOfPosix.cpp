#include <cstdio>

#include "platform/system/Caller.h"

namespace trelonit {

void TellCaller(const std::string& text) {
  std::fputs(text.c_str(), stdout);
}

void ComplainToCaller(const std::string& text) {
  std::fputs(text.c_str(), stderr);
}

}  // namespace trelonit
