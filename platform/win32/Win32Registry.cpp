#include "platform/win32/Win32Registry.h"

#include <cstring>
#include <utility>
#include <variant>
#include <vector>

#include "platform/win32/SystemError.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

HKEY HandleOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::CurrentUser:
      return HKEY_CURRENT_USER;
    case RegistryRoot::LocalMachine:
      break;
  }
  return HKEY_LOCAL_MACHINE;
}

/// The status of a call of the registry, which is an error of the system or 0.
void Require(LSTATUS status) {
  if (status != ERROR_SUCCESS) {
    throw FromSystemError(static_cast<std::uint32_t>(status));
  }
}

/// Owns an open key.
class KeyHandle {
 public:
  KeyHandle() = default;
  KeyHandle(KeyHandle&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
  KeyHandle& operator=(KeyHandle&&) = delete;
  ~KeyHandle() {
    if (key_ != nullptr) {
      RegCloseKey(key_);
    }
  }
  HKEY Key() const { return key_; }
  /// For the call that opens it.
  HKEY* Place() { return &key_; }

 private:
  HKEY key_ = nullptr;
};

struct RawValue {
  DWORD Type = REG_NONE;
  std::vector<BYTE> Bytes;
};

std::optional<RawValue> ReadRaw(HKEY key, const std::wstring& name) {
  RawValue raw;
  DWORD size = 0;
  LSTATUS status = RegQueryValueExW(key, name.c_str(), nullptr, &raw.Type, nullptr, &size);
  if (status == ERROR_SUCCESS) {
    // Another program may make it longer in between.
    do {
      raw.Bytes.resize(size);
      status = RegQueryValueExW(key, name.c_str(), nullptr, &raw.Type, raw.Bytes.data(), &size);
    } while (status == ERROR_MORE_DATA);
    raw.Bytes.resize(size);
  }
  return status == ERROR_SUCCESS ? std::optional(std::move(raw)) : std::nullopt;
}

class OpenKey : public RegistryKey {
 public:
  explicit OpenKey(KeyHandle key) : key_(std::move(key)) {}

  std::optional<RegistryValue> Query(const std::string& name) override {
    const std::optional<RawValue> raw = ReadRaw(key_.Key(), ToWide(name));
    if (!raw) {
      return std::nullopt;
    }
    if (raw->Type == REG_SZ || raw->Type == REG_EXPAND_SZ) {
      std::wstring text(raw->Bytes.size() / sizeof(wchar_t), L'\0');
      std::memcpy(text.data(), raw->Bytes.data(), text.size() * sizeof(wchar_t));
      return FromWide(text);
    }
    std::uint32_t number = 0;
    if (raw->Type == REG_DWORD && raw->Bytes.size() == sizeof number) {
      std::memcpy(&number, raw->Bytes.data(), sizeof number);
      return number;
    }
    return std::nullopt;
  }

 private:
  KeyHandle key_;
};

void Write(HKEY key, const std::string& name, DWORD type, const void* bytes, std::size_t size) {
  Require(RegSetValueExW(key, ToWide(name).c_str(), 0, type, static_cast<const BYTE*>(bytes),
                         static_cast<DWORD>(size)));
}

}  // namespace

std::unique_ptr<RegistryKey> Win32Registry::Open(RegistryRoot root, const std::string& key) {
  KeyHandle open;
  if (RegOpenKeyExW(HandleOf(root), ToWide(key).c_str(), 0, KEY_QUERY_VALUE, open.Place()) !=
      ERROR_SUCCESS) {
    return nullptr;
  }
  return std::make_unique<OpenKey>(std::move(open));
}

void Win32Registry::SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                             const RegistryValue& value) {
  KeyHandle open;
  Require(RegCreateKeyExW(HandleOf(root), ToWide(key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_SET_VALUE, nullptr, open.Place(), nullptr));
  if (const auto* number = std::get_if<std::uint32_t>(&value)) {
    Write(open.Key(), name, REG_DWORD, number, sizeof *number);
    return;
  }
  std::wstring text = ToWide(std::get<std::string>(value));
  if (text.empty() || text.back() != L'\0') {
    text.push_back(L'\0');
  }
  Write(open.Key(), name, REG_SZ, text.data(), text.size() * sizeof(wchar_t));
}

void Win32Registry::DeleteKey(RegistryRoot root, const std::string& key) {
  if (key.empty()) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  const LSTATUS status = RegDeleteTreeW(HandleOf(root), ToWide(key).c_str());
  if (status != ERROR_FILE_NOT_FOUND) {
    Require(status);
  }
}

}  // namespace trelonit
