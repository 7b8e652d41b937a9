#include "platform/posix/LoadedLibrary.h"

#include <dlfcn.h>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

LoadedLibrary::LoadedLibrary(const std::string& name)
    : handle_(::dlopen(name.c_str(), RTLD_LAZY | RTLD_LOCAL)) {
  if (handle_ == nullptr) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
}

void* LoadedLibrary::Address(const char* name) const {
  void* address = ::dlsym(handle_, name);
  if (address == nullptr) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
  return address;
}

}  // namespace trelonit
