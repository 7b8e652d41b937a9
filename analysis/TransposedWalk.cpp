#include "analysis/TransposedWalk.h"

#include <cstddef>
#include <utility>

#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

using Index = std::size_t;

/// Each routine undoes the statements of its solver (modTrelo1.cpp to modTrelo4.cpp) in reverse: of
/// x = a y + b z + ... every source gets its factor times what x has gathered. In the end a load
/// has what a unit of it brings to the weighted sum, and so has the left reaction.
class Transposition {
 public:
  Transposition(const TreloData& data, BarWeights weights)
      : u_(std::move(weights.U)),
        d_(std::move(weights.D)),
        r_(std::move(weights.R)),
        v_(std::move(weights.V)),
        n_(static_cast<Index>(data.PanelNum)),
        span_(data.LengthF),
        end_(data.LenOporn),
        panel_((data.LengthF - 2 * data.LenOporn) / static_cast<double>(data.PanelNum - 2)),
        sa_(SineOf(data.Hight, end_)),
        ca_(CosineOf(data.Hight, end_)),
        sb_(SineOf(data.Hight, panel_)),
        cb_(CosineOf(data.Hight, panel_)),
        upper_(n_ + 1) {}

  std::vector<double> Run(Long scheme, Chord chord, double height) {
    switch (scheme) {
      case 1:
        lower_.resize(n_ + 1);
        Undo1();
        AddReactionOfColumns(upper_);
        AddReactionOfColumns(lower_);
        break;
      case 2:
        lower_.resize(n_ - 1);
        Undo2();
        AddReactionOfColumns(upper_);
        AddReaction(lower_, end_, panel_);
        // The walk leaves this joint without load.
        lower_[1] = 0;
        break;
      case 3:
        lower_.resize(n_);
        panel_ = span_ / static_cast<double>(n_);
        Undo3(SineOf(2 * height, panel_), CosineOf(2 * height, panel_));
        AddReaction(upper_, 0, panel_);
        AddReaction(lower_, panel_ / 2, panel_);
        break;
      default:
        lower_.resize(n_ / 2);
        Undo4();
        AddReactionOfColumns(upper_);
        AddReaction(lower_, end_, 2 * panel_);
        break;
    }
    return std::move(chord == Chord::Upper ? upper_ : lower_);
  }

 private:
  static double SineOf(double rise, double run) { return rise / portable::Hypotenuse(rise, run); }
  static double CosineOf(double rise, double run) { return run / portable::Hypotenuse(rise, run); }

  void AddReactionOfColumns(std::vector<double>& loads) const {
    loads[0] += reaction_;
    for (Index i = 1; i < n_; ++i) {
      loads[i] += reaction_ * (panel_ * static_cast<double>(n_ - 1 - i) + end_) / span_;
    }
  }

  void AddReaction(std::vector<double>& loads, double distance, double spacing) const {
    const Index last = loads.size() - 1;
    for (Index i = 0; i <= last; ++i) {
      loads[i] += reaction_ * (spacing * static_cast<double>(last - i) + distance) / span_;
    }
  }

  /// R[to] = (Pd[load] - V[vertical] - s R[to - 1]) / slope
  void UndoRising(Index to, Index load, Index vertical, double s, double slope) {
    const double force = r_[to] / slope;
    lower_[load] += force;
    v_[vertical] -= force;
    r_[to - 1] -= s * force;
  }
  /// U[to] = U[to - 1] + before R[to - 1] - at R[to]
  void UndoUpper(Index to, double before, double at) {
    u_[to - 1] += u_[to];
    r_[to - 1] += before * u_[to];
    r_[to] -= at * u_[to];
  }
  /// D[to] = D[to - 1] + before R[left] - at R[left + 1]
  void UndoLower(Index to, Index left, double before, double at) {
    d_[to - 1] += d_[to];
    r_[left] += before * d_[to];
    r_[left + 1] -= at * d_[to];
  }

  void Undo1() {
    const Index n = n_;
    const Index m = n / 2;
    upper_[n] -= v_[n];
    r_[n - 1] -= sa_ * v_[n];
    for (Index c = n - 1; c > m; --c) {
      const bool end = c == n - 1;
      UndoLower(c, c - 1, 0, end ? ca_ : cb_);
      const double force = r_[c] / (end ? sa_ : sb_);
      lower_[c] += force;
      v_[c] -= force;
      UndoUpper(c, cb_, 0);
      upper_[c] -= v_[c];
      r_[c - 1] -= sb_ * v_[c];
    }
    UndoLower(m, m - 1, cb_, cb_);
    UndoRising(m, m, m, sb_, sb_);
    upper_[m] -= v_[m];
    UndoUpper(m, 0, 0);
    for (Index c = m - 1; c > 0; --c) {
      UndoUpper(c, 0, cb_);
      const double force = r_[c] / sb_;
      v_[c] -= force;
      upper_[c] -= force;
      UndoLower(c, c - 1, c == 1 ? ca_ : cb_, 0);
      lower_[c] += v_[c];
      r_[c - 1] -= (c == 1 ? sa_ : sb_) * v_[c];
    }
    r_[0] -= ca_ * u_[0];
    const double force = r_[0] / sa_;
    v_[0] -= force;
    upper_[0] -= force;
    lower_[0] += v_[0];
    reaction_ -= v_[0];
  }

  /// The first diagonal of a truss that hangs from its upper chord: R[0] = (reaction - Pu[0]) / s,
  /// U[0] = -c R[0].
  void UndoFirst(double s, double c) {
    r_[0] -= c * u_[0];
    const double force = r_[0] / s;
    reaction_ += force;
    upper_[0] -= force;
  }

  /// The verticals begin with that of column 1, in the place 0.
  void Undo2() {
    const Index n = n_;
    const Index m = n / 2;
    const auto vertical = [](Index column) { return column - 1; };
    d_[n - 3] += r_[n - 1] / ca_;
    for (Index c = n - 1; c > m; --c) {
      if (c < n - 1) {
        UndoLower(c - 1, c - 1, 0, cb_);
        const double force = r_[c] / sb_;
        lower_[c] += force;
        v_[vertical(c)] -= force;
      }
      UndoUpper(c, cb_, 0);
      upper_[c] -= v_[vertical(c)];
      r_[c - 1] -= sb_ * v_[vertical(c)];
    }
    UndoLower(m - 1, m - 1, cb_, cb_);
    UndoRising(m, m, vertical(m), sb_, sb_);
    upper_[m] -= v_[vertical(m)];
    UndoUpper(m, 0, 0);
    for (Index c = m - 1; c > 0; --c) {
      if (c < m - 1) {
        r_[c] += cb_ * d_[c] - sb_ * v_[vertical(c + 1)];
        d_[c - 1] += d_[c];
        lower_[c] += v_[vertical(c + 1)];
      }
      UndoUpper(c, 0, cb_);
      const double force = r_[c] / sb_;
      v_[vertical(c)] -= force;
      upper_[c] -= force;
    }
    r_[0] += ca_ * d_[0] - sa_ * v_[vertical(1)];
    lower_[0] += v_[vertical(1)];
    UndoFirst(sa_, ca_);
  }

  /// The diagonals begin with R[1] of the walk, in the place 0.
  void Undo3(double s, double c) {
    for (Index k = 2 * n_ - 1; k > 1; --k) {
      const Index joint = k / 2;
      // The last diagonal closes the chords instead of giving them a force.
      const bool last = k == 2 * n_ - 1;
      if (k % 2 == 1) {
        if (!last) {
          UndoLower(joint, k - 1, c, c);
        }
        lower_[joint] += r_[k] / s;
      } else {
        u_[joint - 1] += u_[joint];
        r_[k - 1] += c * u_[joint];
        r_[k] -= c * u_[joint];
        upper_[joint] -= r_[k] / s;
      }
      r_[k - 1] -= r_[k];
    }
    r_[0] += c * d_[0];
    r_[1] -= c * d_[0];
    lower_[0] += r_[1] / s;
    r_[0] -= r_[1];
    UndoFirst(s, c);
  }

  void Undo4() {
    const Index n = n_;
    const Index last = n / 2 - 1;
    const double closing = r_[n - 1] / ca_;
    r_[n - 2] += cb_ * closing;
    d_[last - 1] += closing;
    u_[n - 2] += u_[n - 1];
    upper_[n - 1] -= v_[last];
    for (Index i = last; i > 0; --i) {
      const Index c = 2 * i;
      if (i < last) {
        UndoLower(i, c, cb_, cb_);
        UndoRising(c + 1, i, i, sb_, sb_);
        u_[c] += u_[c + 1];
        upper_[c + 1] -= v_[i];
      }
      UndoUpper(c, cb_, cb_);
      upper_[c] -= r_[c] / sb_;
      r_[c - 1] -= r_[c];
    }
    r_[0] += ca_ * d_[0];
    r_[1] -= cb_ * d_[0];
    UndoRising(1, 0, 0, sa_, sb_);
    upper_[1] -= v_[0];
    u_[0] += u_[1];
    UndoFirst(sa_, ca_);
  }

  // What each of them has gathered; the forces begin with their weights.
  std::vector<double> u_, d_, r_, v_;
  Index n_;
  double span_, end_, panel_;
  double sa_, ca_, sb_, cb_;  ///< of the support diagonals and of the regular ones
  std::vector<double> upper_, lower_;
  double reaction_ = 0;
};

}  // namespace

std::vector<double> WeightedUnitForces(const TreloData& data, Chord chord, BarWeights weights) {
  return Transposition(data, std::move(weights)).Run(data.TreloType, chord, data.Hight);
}

}  // namespace trelonit
