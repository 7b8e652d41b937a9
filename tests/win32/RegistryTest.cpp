#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "platform/win32/Utf16.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/WindowsHeader.h"
#include "tests/win32/ErrorOf.h"
#include "workstation/dialogs/frmAbout.h"

namespace trelonit::test {

namespace {

/// Below one key of the user, which goes with the test.
class Registry : public testing::Test {
 protected:
  ~Registry() override { RegDeleteTreeW(HKEY_CURRENT_USER, ToWide(own).c_str()); }

  static constexpr RegistryRoot user = RegistryRoot::CurrentUser;
  const std::string own = "Software\\Trelonit test";

  std::optional<RegistryValue> Read(const std::string& key, const std::string& name) {
    const std::unique_ptr<RegistryKey> open = registry.Open(user, key);
    return open ? open->Query(name) : std::nullopt;
  }
  /// As another program would write it.
  void WriteRaw(const wchar_t* name, DWORD type, const void* bytes, DWORD size) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, ToWide(own).c_str(), name, type, bytes, size),
              ERROR_SUCCESS);
  }

  Win32Registry registry;
};

std::string WithZero(std::string text) {
  text.push_back('\0');
  return text;
}

TEST_F(Registry, KeepsATextWithTheZeroAtItsEnd) {
  registry.SetValue(user, own, "Text", std::string("C:\\Program Files"));
  EXPECT_EQ(Read(own, "Text"), RegistryValue(WithZero("C:\\Program Files")));
}

TEST_F(Registry, KeepsCyrillicNamesAndTexts) {
  registry.SetValue(user, own + "\\Ферма", "Пояс", std::string("Уголок № 5 — “ё”"));
  EXPECT_EQ(Read(own + "\\Ферма", "Пояс"), RegistryValue(WithZero("Уголок № 5 — “ё”")));
}

TEST_F(Registry, WritesBackWhatItReadWithoutASecondZero) {
  registry.SetValue(user, own, "Text", WithZero("abc"));
  EXPECT_EQ(Read(own, "Text"), RegistryValue(WithZero("abc")));
}

TEST_F(Registry, KeepsAnEmptyText) {
  registry.SetValue(user, own, "Text", std::string());
  EXPECT_EQ(Read(own, "Text"), RegistryValue(WithZero("")));
}

TEST_F(Registry, KeepsADoubleWord) {
  registry.SetValue(user, own, "Number", std::uint32_t{0xFEDCBA98});
  EXPECT_EQ(Read(own, "Number"), RegistryValue(std::uint32_t{0xFEDCBA98}));
}

TEST_F(Registry, TakesAnEmptyNameForTheDefaultValue) {
  registry.SetValue(user, own, "", std::string("default"));
  EXPECT_EQ(Read(own, ""), RegistryValue(WithZero("default")));
  std::wstring text(16, L'\0');
  auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, ToWide(own).c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                         text.data(), &size),
            ERROR_SUCCESS);
  EXPECT_STREQ(text.c_str(), L"default");
}

TEST_F(Registry, ReplacesAValueByOneOfAnotherKind) {
  registry.SetValue(user, own, "Value", std::string("text"));
  registry.SetValue(user, own, "Value", std::uint32_t{7});
  EXPECT_EQ(Read(own, "Value"), RegistryValue(std::uint32_t{7}));
}

TEST_F(Registry, OpensNoKeyThatIsMissing) {
  EXPECT_EQ(registry.Open(user, own + "\\None"), nullptr);
}

TEST_F(Registry, HasNothingUnderAMissingName) {
  registry.SetValue(user, own, "Text", std::string("text"));
  EXPECT_EQ(Read(own, "Other"), std::nullopt);
  EXPECT_EQ(Read(own, ""), std::nullopt);
}

TEST_F(Registry, GivesATextAsItStandsWhoeverWroteIt) {
  WriteRaw(L"Expanding", REG_EXPAND_SZ, L"%windir%\\a", 11 * sizeof(wchar_t));
  // What follows the text is no 0, or the system would take it along.
  WriteRaw(L"Open", REG_SZ, L"abcd", 3 * sizeof(wchar_t));
  EXPECT_EQ(Read(own, "Expanding"), RegistryValue(WithZero("%windir%\\a")));
  EXPECT_EQ(Read(own, "Open"), RegistryValue(std::string("abc")));
}

TEST_F(Registry, TakesOtherKindsForNoValue) {
  const BYTE bytes[] = {1, 2, 3, 4};
  WriteRaw(L"Binary", REG_BINARY, bytes, sizeof bytes);
  WriteRaw(L"Short", REG_DWORD, bytes, 2);
  EXPECT_EQ(Read(own, "Binary"), std::nullopt);
  EXPECT_EQ(Read(own, "Short"), std::nullopt);
}

TEST_F(Registry, DeletesAKeyWithAllBelowItAndNothingBesideIt) {
  registry.SetValue(user, own + "\\Gone\\Below\\Deep", "Text", std::string("text"));
  registry.SetValue(user, own + "\\Gone", "Text", std::string("text"));
  registry.SetValue(user, own + "\\Gone too", "Text", std::string("text"));
  registry.DeleteKey(user, own + "\\Gone");
  EXPECT_EQ(registry.Open(user, own + "\\Gone"), nullptr);
  EXPECT_EQ(registry.Open(user, own + "\\Gone\\Below\\Deep"), nullptr);
  EXPECT_NE(registry.Open(user, own + "\\Gone too"), nullptr);
}

TEST_F(Registry, DeletesNoKeyThatIsMissing) {
  EXPECT_EQ(ErrorOf([&] { registry.DeleteKey(user, own + "\\None"); }), 0);
}

TEST_F(Registry, NeverDeletesAWholeRoot) {
  EXPECT_EQ(ErrorOf([&] { registry.DeleteKey(user, ""); }), 5);
  EXPECT_NE(registry.Open(user, "Software"), nullptr);
}

TEST_F(Registry, SeesTheRootsApart) {
  registry.SetValue(user, own, "Text", std::string("text"));
  EXPECT_EQ(registry.Open(RegistryRoot::LocalMachine, own), nullptr);
  EXPECT_EQ(registry.Open(RegistryRoot::ClassesRoot, own), nullptr);
  EXPECT_NE(registry.Open(RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft"), nullptr);
  EXPECT_NE(registry.Open(RegistryRoot::ClassesRoot, "CLSID"), nullptr);
}

TEST_F(Registry, RaisesWhereAKeyOfANameCannotBe) {
  // No single part of a name is as long as this.
  const std::string tooLong = own + "\\" + std::string(300, 'x');
  EXPECT_EQ(ErrorOf([&] { registry.SetValue(user, tooLong, "", std::string()); }), 57);
}

/// Takes all rights to the key away from everybody.
void LockKey(const std::string& key) {
  HKEY open = nullptr;
  ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, ToWide(key).c_str(), 0, WRITE_DAC, &open),
            ERROR_SUCCESS);
  SECURITY_DESCRIPTOR descriptor{};
  ACL nobody{};
  InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
  InitializeAcl(&nobody, sizeof nobody, ACL_REVISION);
  SetSecurityDescriptorDacl(&descriptor, TRUE, &nobody, FALSE);
  const LSTATUS status = RegSetKeySecurity(open, DACL_SECURITY_INFORMATION, &descriptor);
  RegCloseKey(open);
  ASSERT_EQ(status, ERROR_SUCCESS);
}

TEST_F(Registry, RaisesWhereTheUserMayNotWrite) {
  const std::string locked = own + "\\Locked";
  registry.SetValue(user, locked, "", std::string("before"));
  ASSERT_NO_FATAL_FAILURE(LockKey(locked));
  HKEY open = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, ToWide(locked).c_str(), 0, KEY_SET_VALUE, &open) ==
      ERROR_SUCCESS) {
    RegCloseKey(open);
    GTEST_SKIP() << "this machine keeps no rights to keys";
  }
  EXPECT_EQ(ErrorOf([&] { registry.SetValue(user, locked, "", std::string("after")); }), 70);
  EXPECT_EQ(ErrorOf([&] { registry.DeleteKey(user, locked); }), 70);
  EXPECT_EQ(registry.Open(user, locked), nullptr);
}

TEST_F(Registry, GivesTheAboutWindowTextsWithoutTheirZero) {
  registry.SetValue(user, own, "PATH", std::string("C:\\Tool.exe"));
  registry.SetValue(user, own, "Number", std::uint32_t{0x2A});
  EXPECT_EQ(ReadRegistryText(registry, user, own, "PATH"), "C:\\Tool.exe");
  EXPECT_EQ(ReadRegistryText(registry, user, own, "Number"), "&h2A");
  EXPECT_EQ(ReadRegistryText(registry, user, own, "None"), std::nullopt);
}

}  // namespace

}  // namespace trelonit::test
