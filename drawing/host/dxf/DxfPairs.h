#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "drawing/host/Drawing.h"

namespace trelonit {

/// Handles are numbers in the file that name its objects.
using DxfHandle = std::uint64_t;

/// "1F" and so on.
std::string HandleText(DxfHandle handle);

/// A text as the format holds it: carets, double per cent signs and the signs of escaped characters
/// are escaped, control characters are written as carets with a letter, and what goes over 255
/// bytes is cut between two characters. Malformed bytes become U+FFFD.
std::string DxfContent(std::string_view text);
/// The same for the name of a layer or style, where a per cent sign is nothing special.
std::string DxfName(std::string_view name);

/// At most 16 digits with a point, in every locale. Raises 6 for a value that is not finite.
std::string DxfNumber(double value);

/// Collects the pairs of group code and value that a drawing file is made of.
class DxfPairs {
 public:
  void Text(int code, std::string_view value);
  void Whole(int code, std::int64_t value);
  /// Raises 6 for a value that is not finite.
  void Number(int code, double value);
  void Handle(int code, DxfHandle handle);
  /// X under the code, Y and Z under the codes 10 and 20 above it.
  void Point(int code, const PlacePoint& point);
  void PlanePoint(int code, const PlacePoint& point);
  /// Radians into the degrees of the format, from 0 up to below 360.
  void Angle(int code, double radians);

  void Append(const DxfPairs& more) { text_ += more.text_; }
  const std::string& Written() const { return text_; }

 private:
  std::string text_;
};

}  // namespace trelonit
