#pragma once

#include <string>
#include <string_view>

#include "platform/values/Integers.h"

namespace trelonit {

/// A picture by the number of its resource, or by the number of a picture that a form brings with
/// it (the section layouts). 0 is an empty picture.
struct Picture {
  enum class Source { None, Bitmap, Icon, SectionLayout };
  Source From = Source::None;
  Integer Number = 0;

  friend bool operator==(const Picture&, const Picture&) = default;
};

/// The resources inside the program. All members raise 326 for a number that is not there.
class ResourceService {
 public:
  virtual ~ResourceService() = default;
  /// The bytes of a block of type "CUSTOM": 101 steel table, 102 catalogue data, 103 index.
  virtual std::string_view CustomBlock(Integer identifier) = 0;
  virtual Picture Bitmap(Integer identifier) = 0;
  virtual Picture Icon(Integer identifier) = 0;
  virtual std::string String(Integer identifier) = 0;
};

}  // namespace trelonit
