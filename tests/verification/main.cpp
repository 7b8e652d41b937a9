// Makes the figures of docs/verification.md and prints them: verify_opinion FOLDER, for the files
// of CalculiX. Ends with 1 where a bound is not kept.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>

#include "checks/ElementGroups.h"
#include "opinion/Buckling.h"
#include "tests/opinion/HandWorkedDesigns.h"
#include "tests/opinion/PublishedPhi.h"
#include "tests/verification/Calculix.h"
#include "tests/verification/ToldAgainstOpinion.h"

namespace {

using namespace trelonit;
using verification::Chance;

constexpr std::uint64_t seed = 20261122;

bool allKept = true;

/// Says whether a figure is within its bound, and remembers.
const char* Kept(double figure, double bound) {
  const bool kept = figure <= bound;
  allKept = allKept && kept;
  return kept ? "kept" : "NOT KEPT";
}

template <class... Values>
std::string Text(const char* format, Values... values) {
  char text[256];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

double Greatest(const std::vector<double>& values) {
  double greatest = 0;
  for (const double value : values) {
    greatest = std::max(greatest, std::abs(value));
  }
  return greatest;
}

/// The greatest differences, as shares of the greatest force and movement of the truss.
struct Deviation {
  double Force = 0;
  double Movement = 0;
};

Deviation CompareWithCalculix(const std::string& folder, const TreloData& data,
                              const std::vector<double>& areaOfGroup) {
  const JudgedTruss truss = SolveTruss(data);
  std::vector<double> areas;
  for (const TrussBar& bar : truss.Model.Bars) {
    areas.push_back(areaOfGroup[static_cast<std::size_t>(bar.Group)]);
  }
  constexpr double E = 206000;
  const auto moved = Displacements(truss.Model, truss.Forces.Forces, areas, E);
  const verification::ElasticTruss elastic =
      verification::RunCalculix(folder, truss.Model, truss.Forces.Loads, areas, E);
  Deviation deviation;
  for (std::size_t bar = 0; bar < areas.size(); ++bar) {
    deviation.Force =
        std::max(deviation.Force, std::abs(truss.Forces.Forces[bar] - elastic.Forces[bar]));
  }
  double farthest = 0;
  for (std::size_t joint = 0; joint < moved.size(); ++joint) {
    farthest = std::max({farthest, std::abs(moved[joint].Right), std::abs(moved[joint].Down)});
    deviation.Movement =
        std::max({deviation.Movement, std::abs(moved[joint].Right - elastic.Moved[joint].Right),
                  std::abs(moved[joint].Down - elastic.Moved[joint].Down)});
  }
  deviation.Force /= Greatest(truss.Forces.Forces);
  deviation.Movement /= farthest;
  return deviation;
}

TreloData AnyLoadedTruss(Chance& chance, Long scheme, Long n) {
  const double span = chance.Between(9, 45);
  TreloData data = test::Design(scheme, n, span, span / chance.Between(6, 14),
                                span / static_cast<double>(n) * chance.Between(0.6, 1.5));
  for (auto* loads : {&data.UpPForce, &data.UpDistForce, &data.DwnPForce, &data.DwnDistForce}) {
    for (double& load : *loads) {
      load = chance.Between(-1, 4);
    }
  }
  return data;
}

void VerifyStatics(const std::string& folder, Chance chance) {
  constexpr double bound = 1e-3;
  constexpr int trussesOfACount = 3;
  std::cout << "## Forces and displacements against CalculiX\n\n"
            << "| Scheme | Panels | Trusses | Forces | Displacements | Bound |\n"
            << "|---|---|---|---|---|---|\n";
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    Deviation greatest;
    int trusses = 0;
    const std::vector<Long> counts = test::PanelCounts(scheme);
    for (const Long n : counts) {
      for (int i = 0; i < trussesOfACount; ++i, ++trusses) {
        std::vector<double> areas(elementGroupCount);
        for (double& area : areas) {
          area = chance.Between(5, 100);
        }
        const Deviation one = CompareWithCalculix(folder, AnyLoadedTruss(chance, scheme, n), areas);
        greatest.Force = std::max(greatest.Force, one.Force);
        greatest.Movement = std::max(greatest.Movement, one.Movement);
      }
    }
    std::cout << Text("| %d | %d to %d | %d | %.1e | %.1e | %.0e %s |\n", static_cast<int>(scheme),
                      static_cast<int>(counts.front()), static_cast<int>(counts.back()), trusses,
                      greatest.Force, greatest.Movement, bound,
                      Kept(std::max(greatest.Force, greatest.Movement), bound));
  }
}

void VerifyPhi() {
  std::cout << "\n## Buckling coefficient against table 72, thousandths\n\n"
            << "| Slenderness | Table | Opinion | Formula |\n|---|---|---|---|\n";
  double greatest = 0;
  for (const test::PublishedPhi& row : test::publishedPhi) {
    const Buckling found =
        BucklingCoefficient(row.Slenderness * std::sqrt(240.0 / 206000), 240, 206000);
    greatest = std::max(greatest, std::abs(found.Phi * 1000 - row.Thousandths));
    std::cout << Text("| %.0f | %.0f | %.2f | (%d) |\n", row.Slenderness, row.Thousandths,
                      found.Phi * 1000, found.Formula);
  }
  std::cout << Text("\nGreatest difference %.2f, bound 0.5 (rounding): %s\n", greatest,
                    Kept(greatest, 0.5));
}

std::string ShareOf(int part, int whole) {
  return Text("%d of %d (%.1f %%)", part, whole, whole == 0 ? 0.0 : 100.0 * part / whole);
}

void CompareWithTold(Chance chance) {
  constexpr int count = 10000;
  const verification::Tally tally = verification::CompareToldWithOpinion(chance, count);
  std::cout << "\n## The program's own checks against the opinion\n\n"
            << "| Random roofs after one automatic selection | |\n|---|---|\n"
            << "| drawn | " << tally.Drawn << " |\n"
            << "| passing every check of the calculation | " << ShareOf(tally.Passing, tally.Drawn)
            << " |\n"
            << "| of these refused by the opinion | " << ShareOf(tally.Refused, tally.Passing)
            << " |\n"
            << "| the same without the upper chord out of the plane | "
            << ShareOf(tally.RefusedInOther, tally.Passing) << " |\n"
            << "| the same without both chords out of the plane | "
            << ShareOf(tally.RefusedInPlane, tally.Passing) << " |\n";
  std::cout << "\n| Refused by | ";
  for (const MemberCheckRow& row : memberChecks) {
    std::cout << row.Key << " | ";
  }
  std::cout << "\n|---|---|---|---|---|---|\n";
  for (const ElementGroupRow& row : elementGroups) {
    std::cout << "| " << row.Key << " | ";
    const auto found = tally.ByCheck.find(row.Group);
    for (std::size_t check = 0; check < memberCheckCount; ++check) {
      std::cout << (found == tally.ByCheck.end() ? 0 : found->second[check]) << " | ";
    }
    std::cout << "\n";
  }
  std::cout
      << "\n| Bracing option | Refused, by that of the upper chord | Refused in other than the "
         "upper chord out of the plane, by that of the lower |\n|---|---|---|\n";
  for (std::size_t option = 0; option < 4; ++option) {
    std::cout << "| " << option + 1 << " | "
              << ShareOf(tally.RefusedByUpper[option], tally.PassingByUpper[option]) << " | "
              << ShareOf(tally.RefusedByLower[option], tally.PassingByLower[option]) << " |\n";
  }
}

void VerifyHandWork() {
  std::cout << "\n## Designs worked by hand\n";
  for (const test::HandWorkedDesign& worked : test::HandWorkedDesigns()) {
    const Opinion opinion = worked.Design.Form();
    std::cout << "\n"
              << worked.Name << "\n\n| Group | Check | Hand | Opinion |\n|---|---|---|---|\n";
    double greatest = 0;
    for (const test::HandWorkedGroup& group : worked.Groups) {
      for (const MemberCheckRow& row : memberChecks) {
        const double byHand = group.Figures[static_cast<std::size_t>(row.Check)];
        const double found = opinion.FindGroup(group.Group)->Figure(row.Check);
        greatest = std::max(greatest, std::abs(found - byHand));
        if (byHand != 0 || found != 0) {
          std::cout << Text("| %s | %s | %.5f | %.5f |\n", RowOf(group.Group).Key, row.Key, byHand,
                            found);
        }
      }
    }
    std::cout << Text("\nGreatest difference %.1e, bound 6e-06 (rounding): %s\n", greatest,
                      Kept(greatest, 6e-6));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "verify_opinion FOLDER\n";
    return 2;
  }
  try {
    std::cout << "Seed " << seed << "\n\n";
    VerifyStatics(argv[1], Chance(seed));
    VerifyPhi();
    CompareWithTold(Chance(seed));
    VerifyHandWork();
    std::cout << (allKept ? "\nAll bounds are kept.\n" : "\nA BOUND IS NOT KEPT.\n");
    return allKept ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
