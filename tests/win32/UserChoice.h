#pragma once

#include <string>

#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

/// The user's choice in the system's settings, which is put back.
class UserChoice {
 public:
  UserChoice(LCTYPE what, const wchar_t* value) : what_(what), before_(longest, L'\0') {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, what, before_.data(), longest);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, what, value);
  }
  ~UserChoice() { SetLocaleInfoW(LOCALE_USER_DEFAULT, what_, before_.c_str()); }
  UserChoice(const UserChoice&) = delete;
  UserChoice& operator=(const UserChoice&) = delete;

 private:
  static constexpr int longest = 80;

  LCTYPE what_;
  std::wstring before_;
};

}  // namespace trelonit::test
