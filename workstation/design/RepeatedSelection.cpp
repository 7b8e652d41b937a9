#include "workstation/design/RepeatedSelection.h"

#include <algorithm>
#include <vector>

#include "checks/ElementGroups.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

double GreatestUse(const Calculation& calculation) {
  double greatest = 0;
  for (const ElementGroupRow& row : elementGroups) {
    greatest = std::max(greatest, LargestUse(calculation.CheckData.*row.Block));
  }
  return greatest;
}

/// A round: the design that it began with, calculated, and what the search before it found
/// impossible.
struct Round {
  Calculation Of;
  std::set<GroupOption> Impossible;
};

using Rounds = std::vector<Round>;

/// The proposal of a circle of rounds; one alone is the end that was looked for.
SelectionProposal BestOf(Rounds::const_iterator first, Rounds::const_iterator last,
                         std::size_t count) {
  const auto best = std::min_element(first, last, [](const Round& one, const Round& other) {
    return GreatestUse(one.Of) < GreatestUse(other.Of);
  });
  return {.Sections = best->Of.ElementSection,
          .Check = best->Of.CheckData,
          .Impossible = best->Impossible,
          .Rounds = static_cast<int>(count),
          .Settled = best->Of,
          .Circles = last - first > 1};
}

}  // namespace

SelectionProposal SelectUntilSettled(const Design& design, const ProfileTypeArray& catalogue,
                                     const CheckNumbers& numbers, bool ownWeight) {
  const auto calculate = [&](const Design& of) {
    return ownWeight ? CalculateWithOwnWeight(of, numbers) : Calculate(of, numbers).Value;
  };
  std::vector<Round> rounds{{.Of = calculate(design)}};
  Messages untold;
  // There are only so many sizes, so that one of the rounds has to come again.
  for (;;) {
    SelectionProposal found = SelectSections(rounds.back().Of, catalogue, untold);
    Design next = static_cast<const Design&>(rounds.back().Of);
    next.ElementSection = std::move(found.Sections);
    const auto again = std::find_if(rounds.begin(), rounds.end(), [&](const Round& round) {
      return round.Of.ElementSection == next.ElementSection;
    });
    if (again != rounds.end()) {
      again->Impossible = std::move(found.Impossible);
      return BestOf(again, rounds.end(), rounds.size());
    }
    rounds.push_back({calculate(next), std::move(found.Impossible)});
  }
}

}  // namespace trelonit
