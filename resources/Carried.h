#pragma once

#include <cstddef>

namespace trelonit {

/// Values that the program carries.
template <class T>
class Carried {
 public:
  constexpr Carried() = default;
  template <std::size_t count>
  constexpr explicit Carried(const T (&values)[count]) : first_(values), count_(count) {}
  constexpr const T* begin() const { return first_; }
  constexpr const T* end() const { return first_ + count_; }
  constexpr std::size_t size() const { return count_; }
  constexpr const T& operator[](std::size_t place) const { return first_[place]; }

 private:
  const T* first_ = nullptr;
  std::size_t count_ = 0;
};

}  // namespace trelonit
