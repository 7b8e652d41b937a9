#pragma once

#include <string>

namespace trelonit {

/// A shared library that is loaded while the program runs, for what few runs need. It stays as long
/// as the program: what was found in it may be called at any time.
class LoadedLibrary {
 public:
  /// By the name that the library gives itself, "libm.so.6". Raises 53 where it cannot be loaded.
  explicit LoadedLibrary(const std::string& name);

  /// Raises 53 where the library has no routine of this name.
  template <class Routine>
  void Find(Routine*& routine, const char* name) const {
    routine = reinterpret_cast<Routine*>(Address(name));
  }

 private:
  void* Address(const char* name) const;

  void* handle_;
};

}  // namespace trelonit
