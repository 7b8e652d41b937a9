#include <gtest/gtest.h>
#include <map>
#include <vector>

#include "opinion/BarLengths.h"
#include "opinion/Opinion.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

/// A truss and the lengths between held points, metres, for the bracing options 1 to 4.
struct HeldCase {
  Long Scheme = 0;
  Long PanelNum = 0;
  double Span = 0;
  double EndPanel = 0;
  std::vector<double> Upper;
  std::vector<double> Lower;
};

// By the sketches of the schemes. The upper chord has the whole span; the lower one runs from the
// first to the last lower joint, which scheme 2 has under the columns 1 to n - 1, scheme 3 in the
// middle of the panels, scheme 4 under every odd column.
const std::vector<HeldCase>& HeldCases() {
  static const std::vector<HeldCase> cases{
      // Panels 2, 3, 3, 3, 3, 3, 3, 2.
      {1, 8, 22, 2, {22, 11, 6, 3}, {22, 11, 6, 3}},
      // Lower panels 3 x 6.
      {2, 8, 22, 2, {22, 11, 6, 3}, {18, 9, 6, 3}},
      // All panels 3; lower ones 3 x 7.
      {3, 8, 24, 3, {24, 12, 6, 3}, {21, 10.5, 6, 3}},
      // Lower panels 6 x 3.
      {4, 8, 22, 2, {22, 11, 6, 3}, {18, 9, 12, 6}},
      // Panels 5, 2, 2, 5: the longest pair has an end panel in it.
      {1, 4, 14, 5, {14, 7, 7, 5}, {14, 7, 7, 5}},
      {2, 4, 14, 5, {14, 7, 7, 5}, {4, 2, 4, 2}},
      // Lower chords of one bar: "every other" and "all" joints are its ends.
      {4, 4, 14, 5, {14, 7, 7, 5}, {4, 2, 4, 4}},
      {3, 2, 6, 3, {6, 3, 6, 3}, {3, 1.5, 3, 3}},
      // Panels 4, 1, 1, 1, 1, 4.
      {4, 6, 12, 4, {12, 6, 5, 4}, {4, 2, 4, 2}},
      // A model for the table: no length reaches a metre.
      {1, 4, 0.8, 0.2, {0.8, 0.4, 0.4, 0.2}, {0.8, 0.4, 0.4, 0.2}},
  };
  return cases;
}

TEST(HeldLengths, AreWhatTheCaptionsOfTheBracingSay) {
  for (const HeldCase& held : HeldCases()) {
    const Truss truss = TrussOf(Design(held.Scheme, held.PanelNum, held.Span, 2, held.EndPanel));
    for (Long bracing = 1; bracing <= 4; ++bracing) {
      SCOPED_TRACE(testing::Message()
                   << "scheme " << held.Scheme << ", n " << held.PanelNum << ", " << bracing);
      const auto place = static_cast<std::size_t>(bracing - 1);
      EXPECT_NEAR(LengthBetweenHeldPoints(truss, Chord::Upper, bracing), held.Upper[place], 1e-12);
      EXPECT_NEAR(LengthBetweenHeldPoints(truss, Chord::Lower, bracing), held.Lower[place], 1e-12);
    }
  }
}

TEST(HeldLengths, ReachTheChordsOfAnOpinionByTheirOwnOptions) {
  for (const HeldCase& held : HeldCases()) {
    for (Integer bracing = 1; bracing <= 4; ++bracing) {
      TreloData data = Design(held.Scheme, held.PanelNum, held.Span, 2, held.EndPanel);
      data.UpPoyasBrace = bracing;
      data.DownPoyasBrace = static_cast<Integer>(5 - bracing);
      const Opinion opinion = OpinionCase(data).Form();
      ASSERT_EQ(opinion.Refusal, "");
      EXPECT_NEAR(opinion.UpperHeld, held.Upper[static_cast<std::size_t>(bracing - 1)], 1e-12);
      EXPECT_NEAR(opinion.LowerHeld, held.Lower[static_cast<std::size_t>(4 - bracing)], 1e-12);
      for (std::size_t bar = 0; bar < opinion.Bars.size(); ++bar) {
        const double out = opinion.Bars[bar].Y.Length;
        if (opinion.Model.Bars[bar].Group == ElementGroup::UpPoyas) {
          EXPECT_EQ(out, opinion.UpperHeld);
        }
        if (opinion.Model.Bars[bar].Group == ElementGroup::DwnPoyas) {
          EXPECT_EQ(out, opinion.LowerHeld);
        }
      }
    }
  }
}

TEST(HeldLengths, OfAnotherOptionAreRefused) {
  const Truss truss = TrussOf(SnowyTruss(1));
  for (const Long bracing : {-1, 0, 5}) {
    EXPECT_THROW(LengthBetweenHeldPoints(truss, Chord::Upper, bracing), RuntimeError);
  }
}

/// The share of its own length with which a web bar counts in the plane.
struct WebCase {
  Long Scheme = 0;
  ElementGroup Group = ElementGroup::Raskos;
  std::vector<double> Shares;
};

// Table 11: support diagonals and support posts with their own length, all others 0.8 of it. A
// support post stands on a support, which only scheme 1 has below.
const std::vector<WebCase>& WebCases() {
  static const std::vector<WebCase> cases{
      {1, ElementGroup::Stoyka, {1, 0.8, 0.8, 0.8, 0.8, 0.8, 1}},
      {2, ElementGroup::Stoyka, {0.8, 0.8, 0.8, 0.8, 0.8}},
      {4, ElementGroup::Stoyka, {0.8, 0.8, 0.8}},
      {1, ElementGroup::Raskos, {0.8, 0.8, 0.8, 0.8}},
      {2, ElementGroup::Raskos, {0.8, 0.8, 0.8, 0.8}},
      {3, ElementGroup::Raskos, std::vector<double>(10, 0.8)},
      {4, ElementGroup::Raskos, {0.8, 0.8, 0.8, 0.8}},
      {1, ElementGroup::OpornRaskos, {1, 1}},
      {2, ElementGroup::OpornRaskos, {1, 1}},
      {3, ElementGroup::OpornRaskos, {1, 1}},
      {4, ElementGroup::OpornRaskos, {1, 1}},
  };
  return cases;
}

TEST(WebLengths, AreReducedInThePlaneAwayFromTheSupports) {
  // Six panels of 3 m; H 4 m, so that a diagonal over a panel has 5 m.
  for (const WebCase& web : WebCases()) {
    SCOPED_TRACE(testing::Message() << web.Scheme << ", " << static_cast<int>(web.Group));
    const Truss truss = TrussOf(Design(web.Scheme, 6, 18, 4, 3));
    // A diagonal of scheme 3 spans half a panel: sqrt(1.5^2 + 4^2).
    const double diagonal = web.Scheme == 3 ? 4.272001872658765 : 5;
    const double own = web.Group == ElementGroup::Stoyka ? 4 : diagonal;
    std::size_t found = 0;
    for (const TrussBar& bar : truss.Bars) {
      if (bar.Group == web.Group) {
        ASSERT_LT(found, web.Shares.size());
        const BarLengths lengths = EffectiveLengthsOf(truss, bar, 100, 200);
        EXPECT_NEAR(lengths.X, web.Shares[found] * own, 1e-12) << found;
        EXPECT_NEAR(lengths.Y, own, 1e-12) << found;
        EXPECT_EQ(IsSupportBar(truss, bar), web.Shares[found] == 1) << found;
        ++found;
      }
    }
    EXPECT_EQ(found, web.Shares.size());
  }
}

TEST(ChordLengths, AreThePanelInThePlaneAndTheHeldLengthOutOfIt) {
  // Upper panels 2, 3, 3, 2; lower ones by scheme.
  const std::map<Long, std::vector<double>> lowerPanels{{1, {2, 3, 3, 2}}, {2, {3, 3}}, {4, {6}}};
  for (const auto& [scheme, lower] : lowerPanels) {
    const Truss truss = TrussOf(Design(scheme, 4, 10, 2, 2));
    const std::vector<double> upper{2, 3, 3, 2};
    for (const TrussBar& bar : truss.Bars) {
      const BarLengths lengths = EffectiveLengthsOf(truss, bar, 100, 200);
      const auto place = static_cast<std::size_t>(bar.Number - 1);
      if (bar.Group == ElementGroup::UpPoyas) {
        EXPECT_NEAR(lengths.X, upper[place], 1e-12);
        EXPECT_EQ(lengths.Y, 100);
      }
      if (bar.Group == ElementGroup::DwnPoyas) {
        EXPECT_NEAR(lengths.X, lower[place], 1e-12);
        EXPECT_EQ(lengths.Y, 200);
      }
      EXPECT_FALSE(bar.Group == ElementGroup::UpPoyas && IsSupportBar(truss, bar));
    }
  }
}

}  // namespace

}  // namespace trelonit::test
