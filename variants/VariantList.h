#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "variants/StudyRun.h"

namespace trelonit {

/// Which of the variants are shown.
enum class VariantFilter { All, Passing, Best, FrontByHeight, FrontByProgib };

struct VariantOrder {
  std::size_t Column = 0;
  bool Descending = false;
};

/// The variants of a study as they are shown: chosen by a filter and by a text, sorted by a column.
class VariantList {
 public:
  void Clear();
  void Take(StudyNews news);

  /// All rows that are held, by their numbers.
  const std::deque<VariantRow>& Held() const { return held_; }
  /// The best ones and the fronts.
  const std::vector<VariantRow>& Kept(VariantFilter filter) const;

  void SetFilter(VariantFilter filter);
  /// Only rows one of whose texts has this part, in whatever case.
  void SetText(const std::string& text);
  /// Rows without a figure come last either way, and of equal ones the smaller number first.
  void SetOrder(VariantOrder order);

  /// They stay where they are until the list changes.
  const std::vector<const VariantRow*>& Shown() const { return shown_; }
  /// Nothing where it is not shown.
  std::optional<std::size_t> PlaceOf(std::uint64_t number) const;
  /// Held or kept; null for any other.
  const VariantRow* Find(std::uint64_t number) const;
  /// Whether the shown rows differ in this column.
  bool Varies(std::size_t column) const;

 private:
  void Refresh();

  std::deque<VariantRow> held_;
  std::vector<VariantRow> best_;
  std::vector<VariantRow> byHeight_;
  std::vector<VariantRow> byProgib_;
  VariantFilter filter_ = VariantFilter::All;
  std::u32string text_;
  VariantOrder order_;
  std::vector<const VariantRow*> shown_;
};

}  // namespace trelonit
