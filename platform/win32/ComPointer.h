#pragma once

#include <utility>

#include "platform/win32/WindowsHeader.h"

namespace trelonit {

/// Holds one reference to an interface of COM.
template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  /// Adds a reference of its own.
  explicit ComPointer(Interface* held) : held_(held) {
    if (held_ != nullptr) {
      held_->AddRef();
    }
  }
  ComPointer(const ComPointer& other) : ComPointer(other.held_) {}
  ComPointer(ComPointer&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(held_, other.held_);
    return *this;
  }
  ~ComPointer() {
    if (held_ != nullptr) {
      held_->Release();
    }
  }

  Interface* Get() const { return held_; }
  Interface* operator->() const { return held_; }
  explicit operator bool() const { return held_ != nullptr; }
  /// For the call that hands a reference out. Only for an empty pointer.
  Interface** Place() { return &held_; }

 private:
  Interface* held_ = nullptr;
};

/// The same object by another interface; empty where it has none of that kind.
template <class Wanted>
ComPointer<Wanted> QueryFor(IUnknown* object) {
  ComPointer<Wanted> found;
  if (object != nullptr &&
      FAILED(object->QueryInterface(__uuidof(Wanted), reinterpret_cast<void**>(found.Place())))) {
    return {};
  }
  return found;
}

}  // namespace trelonit
