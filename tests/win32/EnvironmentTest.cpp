#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "platform/win32/Environment.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

namespace {

constexpr const wchar_t* variable = L"TRELONIT_TEST_VARIABLE";

class Environment : public testing::Test {
 protected:
  ~Environment() override { SetEnvironmentVariableW(variable, nullptr); }

  static std::optional<std::wstring> Told(const std::wstring& value) {
    EXPECT_TRUE(SetEnvironmentVariableW(variable, value.c_str()));
    return EnvironmentVariable(variable);
  }
};

TEST_F(Environment, TellsAVariableWhole) {
  EXPECT_EQ(Told(L"C:\\Фермы № 1"), L"C:\\Фермы № 1");
  const std::wstring longValue(30000, L'x');
  EXPECT_EQ(Told(longValue), longValue);
}

TEST_F(Environment, TellsAnEmptyVariableFromAMissingOne) {
  EXPECT_EQ(Told(L""), L"");
  SetEnvironmentVariableW(variable, nullptr);
  EXPECT_EQ(EnvironmentVariable(variable), std::nullopt);
}

}  // namespace

}  // namespace trelonit::test
