#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/values/Integers.h"

namespace trelonit {

[[noreturn]] void RaiseSubscriptOutOfRange();

/// Element count of the bounds. Raises 9 for an upper bound below lower - 1.
std::size_t BoundedCount(Long lower, Long upper);

/// An array with a lower and an upper bound, and an unallocated state. New elements are
/// value-initialised (numbers are 0). A wrong subscript and any look at the bounds or elements of
/// an unallocated array raise SubscriptOutOfRange (9).
template <class T>
class BoundedArray {
 public:
  BoundedArray() = default;
  BoundedArray(Long lower, Long upper)
      : lower_(lower), allocated_(true), elements_(BoundedCount(lower, upper)) {}

  bool IsAllocated() const { return allocated_; }

  Long LowerBound() const {
    RequireAllocated();
    return lower_;
  }
  Long UpperBound() const {
    RequireAllocated();
    // In the wider type: lower + size may lie one above the highest Long.
    return static_cast<Long>(lower_ + static_cast<std::ptrdiff_t>(elements_.size()) - 1);
  }

  T& operator[](Long subscript) { return elements_[Place(subscript)]; }
  const T& operator[](Long subscript) const { return elements_[Place(subscript)]; }

  /// Moves the upper bound, keeping the elements that still fit.
  void ResizeUpper(Long upper) {
    RequireAllocated();
    elements_.resize(BoundedCount(lower_, upper));
  }

  /// Adds one element above the upper bound.
  void Append(T element) {
    RequireAllocated();
    elements_.push_back(std::move(element));
  }

  /// The elements in order; nothing for an unallocated array.
  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

  friend bool operator==(const BoundedArray&, const BoundedArray&) = default;

 private:
  void RequireAllocated() const {
    if (!allocated_) {
      RaiseSubscriptOutOfRange();
    }
  }
  std::size_t Place(Long subscript) const {
    // One unsigned compare covers both ends; an unallocated array has no elements at all.
    const auto place = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(subscript) - lower_);
    if (place >= elements_.size()) {
      RaiseSubscriptOutOfRange();
    }
    return place;
  }

  Long lower_ = 0;
  bool allocated_ = false;
  std::vector<T> elements_;
};

/// A square table with subscripts from 1 in both dimensions, and an unallocated state.
template <class T>
class SquareTable {
 public:
  SquareTable() = default;
  explicit SquareTable(Long size)
      : size_(size), cells_(BoundedCount(1, size) * BoundedCount(1, size)) {}

  bool IsAllocated() const { return size_ != 0; }
  Long Size() const { return size_; }

  T& operator()(Long row, Long column) { return cells_[Place(row, column)]; }
  const T& operator()(Long row, Long column) const { return cells_[Place(row, column)]; }

  friend bool operator==(const SquareTable&, const SquareTable&) = default;

 private:
  std::size_t Place(Long row, Long column) const {
    if (row < 1 || row > size_ || column < 1 || column > size_) {
      RaiseSubscriptOutOfRange();
    }
    return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(size_) +
           static_cast<std::size_t>(column - 1);
  }

  Long size_ = 0;
  std::vector<T> cells_;
};

}  // namespace trelonit
