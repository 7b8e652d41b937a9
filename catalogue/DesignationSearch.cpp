#include "catalogue/DesignationSearch.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr int notFound = -1;
constexpr int rankCount = 3;

/// One letter for all that look like it.
char32_t Folded(char32_t letter) {
  // Cyrillic letters with Latin twins, large and small.
  constexpr std::array<std::pair<char32_t, char32_t>, 14> twins{{{U'а', U'a'},
                                                                 {U'в', U'b'},
                                                                 {U'с', U'c'},
                                                                 {U'е', U'e'},
                                                                 {U'н', U'h'},
                                                                 {U'к', U'k'},
                                                                 {U'м', U'm'},
                                                                 {U'о', U'o'},
                                                                 {U'р', U'p'},
                                                                 {U'т', U't'},
                                                                 {U'х', U'x'},
                                                                 {U'у', U'y'},
                                                                 {U'×', U'x'},
                                                                 {U'*', U'x'}}};
  if (letter >= U'A' && letter <= U'Z') {
    letter += U'a' - U'A';
  } else if (letter >= U'А' && letter <= U'Я') {
    letter += U'а' - U'А';
  } else if (letter == U',') {
    letter = U'.';
  }
  const auto* twin = std::find_if(twins.begin(), twins.end(),
                                  [&](const auto& pair) { return pair.first == letter; });
  return twin == twins.end() ? letter : twin->second;
}

std::u32string Folded(std::string_view text) {
  std::u32string folded = Characters(text);
  std::transform(folded.begin(), folded.end(), folded.begin(),
                 [](char32_t letter) { return Folded(letter); });
  return folded;
}

bool IsFigure(char32_t letter) {
  return letter >= U'0' && letter <= U'9';
}

}  // namespace

DesignationSearch::DesignationSearch(std::string_view query) {
  std::u32string piece;
  for (const char32_t letter : Folded(query) + U" ") {
    if (letter != U' ' && letter != U'\t') {
      piece += letter;
    } else if (!piece.empty()) {
      pieces_.push_back(std::exchange(piece, {}));
    }
  }
}

bool DesignationSearch::Finds(std::string_view designation) const {
  return Rank(designation) != notFound;
}

int DesignationSearch::Rank(std::string_view designation) const {
  if (pieces_.empty()) {
    return notFound;
  }
  const std::u32string name = Folded(Trim(designation));
  std::size_t place = 0;
  for (const std::u32string& piece : pieces_) {
    const std::size_t found = name.find(piece, place);
    if (found == std::u32string::npos) {
      return notFound;
    }
    place = found + piece.size();
  }
  const auto figure = std::find_if(name.begin(), name.end(), IsFigure);
  const std::u32string sizes(figure, name.end());
  const std::u32string& first = pieces_.front();
  if (!name.starts_with(first) && !sizes.starts_with(first)) {
    return 2;
  }
  return pieces_.size() == 1 && (name == first || sizes == first) ? 0 : 1;
}

std::vector<std::size_t> FindDesignations(const std::vector<std::string>& designations,
                                          std::string_view query) {
  const DesignationSearch search(query);
  std::array<std::vector<std::size_t>, rankCount> byRank;
  for (std::size_t place = 0; place < designations.size(); ++place) {
    if (const int rank = search.Rank(designations[place]); rank != notFound) {
      byRank[static_cast<std::size_t>(rank)].push_back(place);
    }
  }
  std::vector<std::size_t> found;
  for (const std::vector<std::size_t>& places : byRank) {
    found.insert(found.end(), places.begin(), places.end());
  }
  return found;
}

}  // namespace trelonit
