#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit {

/// Finds designations as people type them: letters that look alike in both alphabets are one, "х",
/// "×" and "*" are the "x" between dimensions, case does not count, blanks part pieces that have to
/// follow one another.
class DesignationSearch {
 public:
  explicit DesignationSearch(std::string_view query);

  bool IsEmpty() const { return pieces_.empty(); }
  bool Finds(std::string_view designation) const;
  /// How well: 0 for what was asked for (with or without the letters before its first figure), 1
  /// for what begins so, 2 for the rest; -1 for what is not found.
  int Rank(std::string_view designation) const;

 private:
  std::vector<std::u32string> pieces_;
};

/// Places of the designations that a query finds, the best first, otherwise in their order; none
/// for an empty query.
std::vector<std::size_t> FindDesignations(const std::vector<std::string>& designations,
                                          std::string_view query);

}  // namespace trelonit
