#include "editor/associations/UsersRegistry.h"

#include <optional>
#include <utility>

namespace trelonit {

namespace {

std::string UsersKey(RegistryRoot root, const std::string& key) {
  return root == RegistryRoot::ClassesRoot ? "Software\\Classes\\" + key : key;
}

/// The user's values before everybody's.
class BothKeys : public RegistryKey {
 public:
  BothKeys(std::unique_ptr<RegistryKey> users, std::unique_ptr<RegistryKey> everybodys)
      : users_(std::move(users)), everybodys_(std::move(everybodys)) {}

  std::optional<RegistryValue> Query(const std::string& name) override {
    std::optional<RegistryValue> value = users_->Query(name);
    return value || !everybodys_ ? value : everybodys_->Query(name);
  }

 private:
  std::unique_ptr<RegistryKey> users_;
  std::unique_ptr<RegistryKey> everybodys_;
};

}  // namespace

std::unique_ptr<RegistryKey> UsersRegistry::Open(RegistryRoot root, const std::string& key) {
  std::unique_ptr<RegistryKey> users =
      machine_.Open(RegistryRoot::CurrentUser, UsersKey(root, key));
  std::unique_ptr<RegistryKey> everybodys = machine_.Open(root, key);
  return users ? std::make_unique<BothKeys>(std::move(users), std::move(everybodys))
               : std::move(everybodys);
}

void UsersRegistry::SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                             const RegistryValue& value) {
  const std::string users = UsersKey(root, key);
  if (root == RegistryRoot::ClassesRoot && machine_.Open(RegistryRoot::CurrentUser, users)) {
    machine_.SetValue(RegistryRoot::CurrentUser, users, name, value);
    return;
  }
  try {
    machine_.SetValue(root, key, name, value);
  } catch (const RuntimeError& error) {
    if (error.Number() != static_cast<int>(ErrorNumber::PermissionDenied)) {
      throw;
    }
    machine_.SetValue(RegistryRoot::CurrentUser, users, name, value);
    refused_ = true;
  }
}

void UsersRegistry::DeleteKey(RegistryRoot root, const std::string& key) {
  const std::string users = UsersKey(root, key);
  if (machine_.Open(RegistryRoot::CurrentUser, users) != nullptr) {
    machine_.DeleteKey(RegistryRoot::CurrentUser, users);
  }
  if (machine_.Open(root, key) != nullptr) {
    machine_.DeleteKey(root, key);
  }
}

bool UsersRegistry::TakeRefused() {
  return std::exchange(refused_, false);
}

}  // namespace trelonit
