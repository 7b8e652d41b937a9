#pragma once

#include <cerrno>
#include <string_view>
#include <unistd.h>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// What the file service raises for the system's last error.
RuntimeError FromErrno();

/// Owns a descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (IsOpen()) {
      ::close(number_);
    }
  }
  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

/// All bytes, from this place of the file on. Raises as the file service does.
void WriteAt(const Descriptor& file, std::size_t place, std::string_view bytes);

/// Sees what was written on the disk. Raises as the file service does.
void Flush(const Descriptor& file);

}  // namespace trelonit
