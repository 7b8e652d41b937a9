#pragma once

#include <memory>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// The machine's registry for a user without an administrator's rights: what may not be written
/// for everybody is written for this user alone. Classes of files are read as the system itself
/// reads them, the user's own before everybody's, value by value, and a class that the user has
/// already is the one that is written.
class UsersRegistry : public RegistryService {
 public:
  /// The registry outlives it.
  explicit UsersRegistry(RegistryService& machine) : machine_(machine) {}

  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) override;
  void SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                const RegistryValue& value) override;
  /// Both the user's and everybody's.
  void DeleteKey(RegistryRoot root, const std::string& key) override;

  /// Whether something was written for this user alone since the last asking.
  bool TakeRefused();

 private:
  RegistryService& machine_;
  bool refused_ = false;
};

}  // namespace trelonit
