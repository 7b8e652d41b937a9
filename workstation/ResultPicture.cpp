#include "workstation/ResultPicture.h"

#include "platform/Guard.h"
#include "platform/RuntimeError.h"
#include "workstation/modHelper.h"

namespace trelonit {

namespace {

struct Point {
  double X = 0;
  double Y = 0;
};

/// Joints of the chords, left to right, and the bars between them.
class BarDrawer {
 public:
  BarDrawer(const TreloData& data, const TreloResult& result)
      : scheme_(data.TreloType), n_(data.PanelNum), result_(result) {
    for (Long column = 0; column <= n_; ++column) {
      upper_.push_back({ColumnX(data, column), data.Hight});
    }
    for (Long column = 0; column <= n_; ++column) {
      if (scheme_ == 3 && column < n_) {
        lower_.push_back({(UpperX(column) + UpperX(column + 1)) / 2, 0});
      } else if (HasLower(column)) {
        lower_.push_back({UpperX(column), 0});
      }
    }
  }

  std::vector<PictureBar> Draw() {
    AddChord(optionUpPoyas, upper_, result_.UpPoyasForce);
    AddChord(optionDwnPoyas, lower_, result_.DwnPoyasForce);
    AddDiagonals();
    AddVerticals();
    return std::move(bars_);
  }

 private:
  static double ColumnX(const TreloData& data, Long column) {
    if (data.TreloType == 3) {
      return data.LengthF / data.PanelNum * column;
    }
    if (column == 0) {
      return 0;
    }
    if (column == data.PanelNum) {
      return data.LengthF;
    }
    return data.LenOporn + (column - 1) * (data.LengthF - 2 * data.LenOporn) / (data.PanelNum - 2);
  }

  double UpperX(Long column) const { return upper_[static_cast<std::size_t>(column)].X; }

  /// Whether a lower joint stands under this upper one.
  bool HasLower(Long column) const {
    switch (scheme_) {
      case 1:
        return true;
      case 2:
        return column != 0 && column != n_;
      case 4:
        return column % 2 == 1;
      default:
        return false;
    }
  }

  Point Upper(Long column) const { return upper_[static_cast<std::size_t>(column)]; }
  Point Under(Long column) const { return {UpperX(column), 0}; }

  void Add(GroupOption group, Long number, Point a, Point b, double force) {
    bars_.push_back({group, number, a.X, a.Y, b.X, b.Y, force});
  }

  void AddChord(GroupOption group, const std::vector<Point>& joints,
                const BoundedArray<double>& forces) {
    for (Long bar = forces.LowerBound(); bar <= forces.UpperBound(); ++bar) {
      const auto left = static_cast<std::size_t>(bar - 1);
      if (left + 1 >= joints.size()) {
        RaiseSubscriptOutOfRange();
      }
      Add(group, bar, joints[left], joints[left + 1], forces[bar]);
    }
  }

  /// The first and the last diagonal are the support diagonals.
  void AddDiagonal(Long bar, Point a, Point b) {
    const BoundedArray<double>& forces = result_.RaskosForce;
    const bool first = bar == forces.LowerBound();
    const bool last = bar == forces.UpperBound();
    if (first || last) {
      Add(optionOpornRaskos, first ? 1 : 2, a, b, forces[bar]);
    } else {
      Add(optionRaskos, bar - 1, a, b, forces[bar]);
    }
  }

  void AddDiagonals() {
    for (Long column = 0; column < n_; ++column) {
      if (scheme_ == 3) {
        const Point below = lower_[static_cast<std::size_t>(column)];
        AddDiagonal(2 * column + 1, Upper(column), below);
        AddDiagonal(2 * column + 2, below, Upper(column + 1));
      } else if (scheme_ == 4 ? column % 2 == 0 : column < n_ / 2) {
        AddDiagonal(column + 1, Upper(column), Under(column + 1));
      } else {
        AddDiagonal(column + 1, Under(column), Upper(column + 1));
      }
    }
  }

  void AddVerticals() {
    Long number = 0;
    for (Long column = 0; column <= n_; ++column) {
      if (HasLower(column)) {
        ++number;
        Add(optionStoyka, number, Under(column), Upper(column), result_.StoykaForce[number]);
      }
    }
  }

  Long scheme_;
  Long n_;
  const TreloResult& result_;
  std::vector<Point> upper_;
  std::vector<Point> lower_;
  std::vector<PictureBar> bars_;
};

}  // namespace

std::vector<PictureBar> BuildBars(const TreloData& data, const TreloResult& result) {
  // Each of these schemes has an upper chord bar a panel; with another count the forces are those
  // of another truss.
  const bool solved = data.TreloType >= 1 && data.TreloType <= 4 &&
                      result.UpPoyasForce.IsAllocated() &&
                      result.UpPoyasForce.UpperBound() == data.PanelNum;
  std::vector<PictureBar> bars;
  if (solved) {
    // Forces of another scheme with as many panels do not fit the joints.
    PassOver([&] { bars = BarDrawer(data, result).Draw(); });
  }
  return bars;
}

std::vector<GroupUse> BuildUse(Long treloType, const CheckResult& check) {
  std::vector<GroupUse> use{{optionUpPoyas, LargestUse(check.UpPoyas)},
                            {optionDwnPoyas, LargestUse(check.DwnPoyas)},
                            {optionRaskos, LargestUse(check.Raskos)},
                            {optionOpornRaskos, LargestUse(check.OpornRaskos)}};
  if (treloType != 3) {
    use.push_back({optionStoyka, LargestUse(check.Stoyka)});
  }
  return use;
}

std::string GroupName(GroupOption group) {
  switch (group) {
    case optionUpPoyas:
      return "Верхний пояс";
    case optionDwnPoyas:
      return "Нижний пояс";
    case optionRaskos:
      return "Раскосы";
    case optionStoyka:
      return "Стойки";
    case optionOpornRaskos:
      return "Опорные раскосы";
  }
  return {};
}

}  // namespace trelonit
