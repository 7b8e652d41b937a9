#pragma once

#include <string>

#include "platform/win32/ComApartment.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/Win32Registry.h"
#include "tests/win32/DispatchHost.h"

namespace trelonit::test {

/// The test's host as a program of this machine: registered under a name, made by this
/// process, and told to be running where asked. All of it ends with this. Only for a machine of the
/// test.
class HostClass {
 public:
  explicit HostClass(const std::string& programIdentifier) : key_(programIdentifier) {
    Win32Registry().SetValue(RegistryRoot::ClassesRoot, key_ + "\\CLSID", "",
                             std::string("{6B1D0B6E-5C0E-4E0B-9E4B-6F0C5A7E2D11}"));
    const ComPointer<IClassFactory> factory(new HostFactory(Log));
    made_ = CoRegisterClassObject(identifier_, factory.Get(), CLSCTX_INPROC_SERVER,
                                  REGCLS_MULTIPLEUSE, &factory_);
  }
  ~HostClass() {
    if (running_ != 0) {
      RevokeActiveObject(running_, nullptr);
    }
    CoRevokeClassObject(factory_);
    Win32Registry().DeleteKey(RegistryRoot::ClassesRoot, key_);
  }
  HostClass(const HostClass&) = delete;
  HostClass& operator=(const HostClass&) = delete;

  bool IsMade() const { return SUCCEEDED(made_); }
  /// False where the machine keeps no list of what runs.
  bool Run(int number) {
    const ComPointer<IUnknown> host(new DispatchHost(Log, number));
    return SUCCEEDED(RegisterActiveObject(host.Get(), identifier_, ACTIVEOBJECT_STRONG, &running_));
  }

  HostLogHandle Log = std::make_shared<HostLog>();

 private:
  static constexpr CLSID identifier_{
      0x6B1D0B6E, 0x5C0E, 0x4E0B, {0x9E, 0x4B, 0x6F, 0x0C, 0x5A, 0x7E, 0x2D, 0x11}};

  ComApartment apartment_;
  std::string key_;
  HRESULT made_ = E_FAIL;
  DWORD factory_ = 0;
  DWORD running_ = 0;
};

}  // namespace trelonit::test
