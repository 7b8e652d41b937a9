#include "tests/analysis/TrussModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace trelonit::test {

namespace {

std::size_t Place(Long subscript) {
  return static_cast<std::size_t>(subscript);
}

/// Builds the joints and bars of one scheme.
class Builder {
 public:
  explicit Builder(const TreloData& data)
      : scheme_(data.TreloType), n_(data.PanelNum), height_(data.Hight) {
    if (scheme_ < 1 || scheme_ > 4) {
      throw std::logic_error("no model of this scheme");
    }
    PutColumns(data);
  }

  TrussModel Build() {
    PutJoints();
    PutChord(model_.Upper, BarKind::UpPoyas);
    PutChord(model_.Lower, BarKind::DwnPoyas);
    PutDiagonals();
    PutVerticals();
    PutNumbers();
    const std::vector<std::size_t>& carrying = scheme_ == 1 ? model_.Lower : model_.Upper;
    model_.LeftSupport = carrying.front();
    model_.RightSupport = carrying.back();
    return model_;
  }

 private:
  void PutColumns(const TreloData& data) {
    const double L = data.LengthF;
    for (Long c = 0; c <= n_; ++c) {
      if (scheme_ == 3) {
        columns_.push_back(L / n_ * c);
      } else {
        const double d = (L - 2 * data.LenOporn) / (n_ - 2);
        columns_.push_back(c == 0 ? 0 : c == n_ ? L : data.LenOporn + (c - 1) * d);
      }
    }
  }

  std::size_t AddJoint(double x, double y) {
    model_.Joints.push_back({.X = x, .Y = y});
    return model_.Joints.size() - 1;
  }

  void PutJoints() {
    for (const double x : columns_) {
      model_.Upper.push_back(AddJoint(x, height_));
    }
    if (scheme_ == 3) {
      for (Long c = 0; c < n_; ++c) {
        model_.Lower.push_back(AddJoint((columns_[Place(c)] + columns_[Place(c + 1)]) / 2, 0));
      }
      return;
    }
    lowerAtColumn_.resize(columns_.size());
    for (Long c = 0; c <= n_; ++c) {
      if (HasLower(c)) {
        lowerAtColumn_[Place(c)] = AddJoint(columns_[Place(c)], 0);
        model_.Lower.push_back(lowerAtColumn_[Place(c)]);
      }
    }
  }

  bool HasLower(Long column) const {
    switch (scheme_) {
      case 1:
        return true;
      case 2:
        return column != 0 && column != n_;
      default:
        return column % 2 == 1;
    }
  }

  void AddBar(BarKind kind, Long subscript, std::size_t a, std::size_t b) {
    model_.Bars.push_back({.Kind = kind, .Subscript = subscript, .A = a, .B = b});
  }

  void PutChord(const std::vector<std::size_t>& joints, BarKind kind) {
    for (std::size_t i = 0; i + 1 < joints.size(); ++i) {
      AddBar(kind, static_cast<Long>(i) + 1, joints[i], joints[i + 1]);
    }
  }

  void PutDiagonals() {
    for (Long c = 0; c < n_; ++c) {
      const std::size_t left = model_.Upper[Place(c)];
      const std::size_t right = model_.Upper[Place(c + 1)];
      if (scheme_ == 3) {
        const std::size_t below = model_.Lower[Place(c)];
        AddBar(BarKind::Raskos, 2 * c + 1, left, below);
        AddBar(BarKind::Raskos, 2 * c + 2, below, right);
      } else if (scheme_ == 4 ? c % 2 == 0 : c < n_ / 2) {
        AddBar(BarKind::Raskos, c + 1, left, lowerAtColumn_[Place(c + 1)]);
      } else {
        AddBar(BarKind::Raskos, c + 1, lowerAtColumn_[Place(c)], right);
      }
    }
  }

  void PutVerticals() {
    if (scheme_ == 3) {
      return;
    }
    Long subscript = 0;
    for (Long c = 0; c <= n_; ++c) {
      if (HasLower(c)) {
        AddBar(BarKind::Stoyka, ++subscript, lowerAtColumn_[Place(c)], model_.Upper[Place(c)]);
      }
    }
  }

  /// Column by column from the left. In schemes 1 and 2 the lower joint of a column comes first up
  /// to the middle, from there on the upper one; in scheme 4 always the upper one.
  void PutNumbers() {
    const double middle = columns_[Place(n_ / 2)];
    const auto lowerFirst = [&](double x) { return scheme_ <= 2 && x < middle; };
    std::vector<std::size_t> order(model_.Joints.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
      const ModelJoint& first = model_.Joints[a];
      const ModelJoint& second = model_.Joints[b];
      if (first.X != second.X) {
        return first.X < second.X;
      }
      return lowerFirst(first.X) ? first.Y < second.Y : first.Y > second.Y;
    });
    Long number = 0;
    for (const std::size_t joint : order) {
      model_.Joints[joint].Number = ++number;
    }
  }

  Long scheme_;
  Long n_;
  double height_;
  std::vector<double> columns_;
  std::vector<std::size_t> lowerAtColumn_;
  TrussModel model_;
};

using Matrix = std::vector<std::vector<long double>>;

/// Solves a x = b in place by elimination with row exchange.
std::vector<long double> Eliminate(Matrix a, std::vector<long double> b) {
  const std::size_t size = b.size();
  for (std::size_t column = 0; column < size; ++column) {
    std::size_t pivot = column;
    for (std::size_t row = column + 1; row < size; ++row) {
      if (std::abs(a[row][column]) > std::abs(a[pivot][column])) {
        pivot = row;
      }
    }
    if (a[pivot][column] == 0) {
      throw std::logic_error("the model is a mechanism");
    }
    std::swap(a[pivot], a[column]);
    std::swap(b[pivot], b[column]);
    for (std::size_t row = column + 1; row < size; ++row) {
      const long double factor = a[row][column] / a[column][column];
      if (factor != 0) {
        for (std::size_t k = column; k < size; ++k) {
          a[row][k] -= factor * a[column][k];
        }
        b[row] -= factor * b[column];
      }
    }
  }
  for (std::size_t row = size; row-- > 0;) {
    for (std::size_t k = row + 1; k < size; ++k) {
      b[row] -= a[row][k] * b[k];
    }
    b[row] /= a[row][row];
  }
  return b;
}

struct Direction {
  long double Cosine = 0;
  long double Sine = 0;
  long double Length = 0;
};

Direction DirectionOf(const TrussModel& model, const ModelBar& bar) {
  const long double x = static_cast<long double>(model.Joints[bar.B].X) - model.Joints[bar.A].X;
  const long double y = static_cast<long double>(model.Joints[bar.B].Y) - model.Joints[bar.A].Y;
  const long double length = std::sqrt(x * x + y * y);
  return {.Cosine = x / length, .Sine = y / length, .Length = length};
}

}  // namespace

double TrussModel::Length(const ModelBar& bar) const {
  return std::hypot(Joints[bar.B].X - Joints[bar.A].X, Joints[bar.B].Y - Joints[bar.A].Y);
}

TrussModel ModelOf(const TreloData& data) {
  return Builder(data).Build();
}

std::vector<double> JointLoads(const TrussModel& model, const TreloResult& result) {
  std::vector<double> loads(model.Joints.size());
  for (std::size_t i = 0; i < model.Upper.size(); ++i) {
    loads[model.Upper[i]] = result.UpKnotLoad[static_cast<Long>(i)];
  }
  for (std::size_t i = 0; i < model.Lower.size(); ++i) {
    loads[model.Lower[i]] = result.DwnKnotLoad[static_cast<Long>(i)];
  }
  return loads;
}

double ForceOf(const TreloResult& result, const ModelBar& bar) {
  switch (bar.Kind) {
    case BarKind::UpPoyas:
      return result.UpPoyasForce[bar.Subscript];
    case BarKind::DwnPoyas:
      return result.DwnPoyasForce[bar.Subscript];
    case BarKind::Raskos:
      return result.RaskosForce[bar.Subscript];
    case BarKind::Stoyka:
      return result.StoykaForce[bar.Subscript];
  }
  throw std::logic_error("no such kind of bar");
}

double TableForce(const TrussModel& model, const TreloResult& result, const ModelBar& bar) {
  return result.BarForce(model.Joints[bar.A].Number, model.Joints[bar.B].Number);
}

std::vector<Residual> JointResiduals(const TrussModel& model, const TreloResult& result,
                                     const std::vector<double>& loads) {
  std::vector<Residual> residuals(model.Joints.size());
  for (std::size_t joint = 0; joint < loads.size(); ++joint) {
    residuals[joint].Up = -loads[joint];
  }
  residuals[model.LeftSupport].Up += result.ReactLeft;
  residuals[model.RightSupport].Up += result.ReactRight;
  for (const ModelBar& bar : model.Bars) {
    const double force = TableForce(model, result, bar);
    const Direction direction = DirectionOf(model, bar);
    const auto right = static_cast<double>(force * direction.Cosine);
    const auto up = static_cast<double>(force * direction.Sine);
    residuals[bar.A].Right += right;
    residuals[bar.A].Up += up;
    residuals[bar.B].Right -= right;
    residuals[bar.B].Up -= up;
  }
  return residuals;
}

ElasticSolution SolveElastic(const TrussModel& model, const std::vector<double>& loads,
                             const std::vector<double>& axialStiffness) {
  // Degrees of freedom: 2 j to the right and 2 j + 1 upward for joint j.
  const std::size_t size = 2 * model.Joints.size();
  Matrix stiffness(size, std::vector<long double>(size));
  std::vector<long double> forces(size);
  for (std::size_t joint = 0; joint < loads.size(); ++joint) {
    forces[2 * joint + 1] = -loads[joint];
  }
  for (std::size_t k = 0; k < model.Bars.size(); ++k) {
    const ModelBar& bar = model.Bars[k];
    const auto [cosine, sine, length] = DirectionOf(model, bar);
    const long double spring = axialStiffness[k] / length;
    const std::size_t places[4] = {2 * bar.A, 2 * bar.A + 1, 2 * bar.B, 2 * bar.B + 1};
    const long double stretch[4] = {-cosine, -sine, cosine, sine};
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        stiffness[places[row]][places[column]] += spring * stretch[row] * stretch[column];
      }
    }
  }
  for (const std::size_t held :
       {2 * model.LeftSupport, 2 * model.LeftSupport + 1, 2 * model.RightSupport + 1}) {
    for (std::size_t k = 0; k < size; ++k) {
      stiffness[held][k] = 0;
      stiffness[k][held] = 0;
    }
    stiffness[held][held] = 1;
    forces[held] = 0;
  }
  const std::vector<long double> moved = Eliminate(std::move(stiffness), std::move(forces));

  ElasticSolution solution;
  for (std::size_t joint = 0; joint < model.Joints.size(); ++joint) {
    solution.Drop.push_back(static_cast<double>(-moved[2 * joint + 1]));
  }
  long double pullAtLeft = 0;
  long double pullAtRight = 0;
  for (std::size_t k = 0; k < model.Bars.size(); ++k) {
    const ModelBar& bar = model.Bars[k];
    const auto [cosine, sine, length] = DirectionOf(model, bar);
    const long double stretch = (moved[2 * bar.B] - moved[2 * bar.A]) * cosine +
                                (moved[2 * bar.B + 1] - moved[2 * bar.A + 1]) * sine;
    const long double force = axialStiffness[k] / length * stretch;
    solution.BarForces.push_back(static_cast<double>(force));
    const long double upAtA = force * sine;
    const auto upAt = [&](std::size_t joint) {
      return bar.A == joint ? upAtA : bar.B == joint ? -upAtA : 0;
    };
    pullAtLeft += upAt(model.LeftSupport);
    pullAtRight += upAt(model.RightSupport);
  }
  solution.ReactLeft = static_cast<double>(loads[model.LeftSupport] - pullAtLeft);
  solution.ReactRight = static_cast<double>(loads[model.RightSupport] - pullAtRight);
  return solution;
}

}  // namespace trelonit::test
