#include "variants/VariantList.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "platform/text/Text.h"
#include "variants/VariantTable.h"

namespace trelonit {

namespace {

/// Latin and Russian letters as small ones.
std::u32string Small(const std::string& text) {
  std::u32string letters = Characters(text);
  for (char32_t& letter : letters) {
    if ((letter >= U'A' && letter <= U'Z') || (letter >= U'А' && letter <= U'Я')) {
      letter += U'a' - U'A';
    } else if (letter == U'Ё') {
      letter = U'ё';
    }
  }
  return letters;
}

/// Rows one of whose texts has a part. Many rows share their texts: each is looked at once.
class TextFilter {
 public:
  explicit TextFilter(std::u32string part) : part_(std::move(part)) {}

  bool Takes(const VariantRow& row) {
    return part_.empty() || Has(row.Steel) || Has(row.Reason) || HasVerdict(row.Verdict) ||
           (row.IsPossible() &&
            std::any_of(row.Groups.begin(), row.Groups.end(),
                        [this](const VariantRow::Group& group) { return Has(group.Profile); }));
  }

 private:
  bool Has(const SharedText& text) {
    const auto [place, added] = known_.try_emplace(text.get(), false);
    if (added) {
      place->second = Small(*text).find(part_) != std::u32string::npos;
    }
    return place->second;
  }
  bool HasVerdict(VariantVerdict verdict) const {
    return Small(std::string(VerdictName(verdict))).find(part_) != std::u32string::npos;
  }

  std::u32string part_;
  std::unordered_map<const std::string*, bool> known_;
};

/// A row with what it is sorted by.
struct Keyed {
  TableCell Key;
  const VariantRow* Row;
};

bool Before(const Keyed& a, const Keyed& b, bool descending) {
  const bool noneA = std::holds_alternative<std::monostate>(a.Key);
  const bool noneB = std::holds_alternative<std::monostate>(b.Key);
  if (noneA != noneB) {
    return noneB;
  }
  if (a.Key != b.Key) {
    return descending ? b.Key < a.Key : a.Key < b.Key;
  }
  return a.Row->Number < b.Row->Number;
}

}  // namespace

void VariantList::Clear() {
  *this = [this] {
    VariantList empty;
    empty.filter_ = filter_;
    empty.text_ = text_;
    empty.order_ = order_;
    return empty;
  }();
}

void VariantList::Take(StudyNews news) {
  std::move(news.Rows.begin(), news.Rows.end(), std::back_inserter(held_));
  best_ = std::move(news.Best);
  byHeight_ = std::move(news.FrontByHeight);
  byProgib_ = std::move(news.FrontByProgib);
  Refresh();
}

const std::vector<VariantRow>& VariantList::Kept(VariantFilter filter) const {
  return filter == VariantFilter::FrontByHeight   ? byHeight_
         : filter == VariantFilter::FrontByProgib ? byProgib_
                                                  : best_;
}

void VariantList::SetFilter(VariantFilter filter) {
  filter_ = filter;
  Refresh();
}

void VariantList::SetText(const std::string& text) {
  text_ = Small(std::string(Trim(text)));
  Refresh();
}

void VariantList::SetOrder(VariantOrder order) {
  order_ = order;
  Refresh();
}

std::optional<std::size_t> VariantList::PlaceOf(std::uint64_t number) const {
  const auto found = std::find_if(shown_.begin(), shown_.end(), [number](const VariantRow* row) {
    return row->Number == number;
  });
  return found == shown_.end() ? std::nullopt
                               : std::optional(static_cast<std::size_t>(found - shown_.begin()));
}

const VariantRow* VariantList::Find(std::uint64_t number) const {
  // They are held from the first one on, without a gap.
  if (number < held_.size()) {
    return &held_[number];
  }
  for (const std::vector<VariantRow>* kept : {&best_, &byHeight_, &byProgib_}) {
    for (const VariantRow& row : *kept) {
      if (row.Number == number) {
        return &row;
      }
    }
  }
  return nullptr;
}

bool VariantList::Varies(std::size_t column) const {
  // Of many a part tells as much.
  constexpr std::size_t looked = 1000;
  const std::size_t step = shown_.size() / looked + 1;
  for (std::size_t place = 0; place < shown_.size(); place += step) {
    if (VariantCell(*shown_[place], column) != VariantCell(*shown_.front(), column)) {
      return true;
    }
  }
  return false;
}

void VariantList::Refresh() {
  std::vector<Keyed> keyed;
  TextFilter filter(text_);
  const auto take = [&](const VariantRow& row) {
    if ((filter_ != VariantFilter::Passing || row.Passes()) && filter.Takes(row)) {
      keyed.push_back({VariantCell(row, order_.Column), &row});
    }
  };
  if (filter_ == VariantFilter::All || filter_ == VariantFilter::Passing) {
    std::for_each(held_.begin(), held_.end(), take);
  } else {
    const std::vector<VariantRow>& kept = Kept(filter_);
    std::for_each(kept.begin(), kept.end(), take);
  }
  std::sort(keyed.begin(), keyed.end(),
            [this](const Keyed& a, const Keyed& b) { return Before(a, b, order_.Descending); });
  shown_.clear();
  for (const Keyed& entry : keyed) {
    shown_.push_back(entry.Row);
  }
}

}  // namespace trelonit
