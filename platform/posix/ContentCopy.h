#pragma once

#include <string>
#include <string_view>

#include "platform/posix/Descriptor.h"

namespace trelonit {

/// All bytes of an open file. Raises as the file service does.
std::string ReadAll(const Descriptor& file);

/// A copy of the old content of a file that is written where it stands, for this user's eyes only;
/// it goes with this object unless it is kept. Raises as the file service does.
class ContentCopy {
 public:
  explicit ContentCopy(std::string_view content);
  ContentCopy(const ContentCopy&) = delete;
  ContentCopy& operator=(const ContentCopy&) = delete;
  ~ContentCopy();
  /// The name of the copy, which now stays.
  std::string Keep();

 private:
  std::string name_;
  Descriptor file_;
  bool kept_ = false;
};

}  // namespace trelonit
