#pragma once

#include <memory>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// The registry of Windows. A text with variables of the environment in it is given as it stands;
/// values of other kinds than text and double word count as absent.
class Win32Registry : public RegistryService {
 public:
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& key) override;
  /// A text is stored with one character 0 at its end, whether or not it brings one.
  void SetValue(RegistryRoot root, const std::string& key, const std::string& name,
                const RegistryValue& value) override;
  /// Does nothing where there is no such key. Raises 5 for an empty name, which would stand for the
  /// whole root.
  void DeleteKey(RegistryRoot root, const std::string& key) override;
};

}  // namespace trelonit
