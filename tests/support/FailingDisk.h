#pragma once

#include <istream>
#include <memory>
#include <stdexcept>
#include <streambuf>
#include <string>

#include "platform/files/Files.h"

namespace trelonit::test {

/// A disk whose files open and break off at their first byte.
class FailingDisk : public DiskFiles {
 public:
  std::unique_ptr<std::istream> OpenForReading(const std::string&) override {
    return std::make_unique<BrokenStream>();
  }

 private:
  class BrokenBuffer : public std::streambuf {
   protected:
    int_type underflow() override { throw std::runtime_error("the disk does not answer"); }
  };
  class BrokenStream : public std::istream {
   public:
    BrokenStream() : std::istream(nullptr) { rdbuf(&buffer_); }

   private:
    BrokenBuffer buffer_;
  };
};

}  // namespace trelonit::test
