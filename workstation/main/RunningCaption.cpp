#include "workstation/main/RunningCaption.h"

#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr std::size_t windowWidth = 60;

}  // namespace

std::string RunningCaption::Next(const std::string& title, const std::string& text) {
  const std::u32string characters = Characters(text);
  const auto length = static_cast<Long>(characters.size());
  ++runCounter_;
  std::u32string window;
  if (runCounter_ > length) {
    runCounter_ = 1;
    window = characters.substr(0, windowWidth + 1);
  } else {
    window = characters.substr(static_cast<std::size_t>(runCounter_ - 1), windowWidth);
    if (runCounter_ + static_cast<Long>(windowWidth) > length) {
      window += characters.substr(0, windowWidth - window.size());
    }
  }
  return title + " *** " + Utf8(window) + " *** ";
}

std::string RunningCaption::Text(const std::string& about, const std::string& user,
                                 const std::string& computer) {
  return "  " + about + "  Имя текущего пользователя - " + user + " / CPU name - " + computer +
         "           ";
}

}  // namespace trelonit
