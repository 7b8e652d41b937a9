#pragma once

#include <memory>

#include "platform/win32/ComPointer.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

/// COM for the thread that made this, with the calls of one thread in order. Who holds objects of
/// COM holds it too, so that it ends after the last of them; all of them stay in that thread. While
/// it lasts, a host that is busy (it starts, or its user is in a dialog) is asked again for ten
/// seconds before a call fails.
class ComApartment {
 public:
  ComApartment();
  ~ComApartment();
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  HRESULT entered_;
  HRESULT patient_ = E_FAIL;
  ComPointer<IMessageFilter> before_;
};

using ApartmentHandle = std::shared_ptr<const ComApartment>;

}  // namespace trelonit
