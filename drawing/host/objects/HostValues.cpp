#include "drawing/host/objects/HostValues.h"

#include <algorithm>
#include <cmath>

#include "drawing/host/objects/HostErrors.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

void Require(bool right) {
  if (!right) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
}

}  // namespace

double NumberIn(const AutomationValue& value) {
  if (const auto* whole = std::get_if<Long>(&value)) {
    return *whole;
  }
  const auto* number = std::get_if<double>(&value);
  if (number == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  Require(std::isfinite(*number));
  return *number;
}

double SizeIn(const AutomationValue& value) {
  const double size = NumberIn(value);
  Require(size > 0);
  return size;
}

double DistanceIn(const AutomationValue& value) {
  const double distance = NumberIn(value);
  Require(distance >= 0);
  return distance;
}

PlacePoint PointIn(const AutomationValue& value) {
  const auto* coordinates = std::get_if<std::vector<double>>(&value);
  if (coordinates == nullptr) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  constexpr std::size_t axes = 3;
  Require(coordinates->size() == axes);
  Require(std::all_of(coordinates->begin(), coordinates->end(),
                      [](double coordinate) { return std::isfinite(coordinate); }));
  return {coordinates->at(0), coordinates->at(1), coordinates->at(2)};
}

std::string NameIn(const AutomationValue& value) {
  constexpr std::size_t longest = 255;
  std::string name = TextIn(value);
  const bool readable = std::none_of(name.begin(), name.end(), [](char letter) {
    return static_cast<unsigned char>(letter) < ' ' ||
           std::string_view("<>/\\\":;?*|,=`").find(letter) != std::string_view::npos;
  });
  if (name.empty() || name.size() > longest || !readable) {
    throw InvalidName();
  }
  return name;
}

AutomationValue ValueOf(bool flag) {
  return flag;
}

AutomationValue ValueOf(Long number) {
  return number;
}

AutomationValue ValueOf(double number) {
  return number;
}

AutomationValue ValueOf(const std::string& text) {
  return text;
}

AutomationValue ValueOf(const PlacePoint& point) {
  return std::vector<double>{point.X, point.Y, point.Z};
}

AutomationValue ValueOf(TextAlignment alignment) {
  return static_cast<Long>(alignment);
}

AutomationValue CountIn(std::size_t items) {
  return static_cast<Long>(items);
}

}  // namespace trelonit
