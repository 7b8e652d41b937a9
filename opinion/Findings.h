#pragma once

#include <optional>
#include <string>
#include <vector>

#include "opinion/Opinion.h"
#include "platform/text/NumberText.h"

namespace trelonit {

// What an engineer must be told of a calculated design before signing it.

/// danger: the program's own calculation passes what the norm refuses.
enum class Severity { Danger, Warning, Note };

enum class FindingCode {
  CheckDiffers,
  BracingLength,
  NotBalanced,
  LoadDiffers,
  OwnWeightTwice,
  ChordBending,
  SectionData,
  PhiGap,
  SelectionOpen,
};

struct Finding {
  FindingCode Code = FindingCode::CheckDiffers;
  Severity Grade = Severity::Note;
  std::string Text;  ///< one or two sentences for the user
  std::optional<ElementGroup> Group;
  std::optional<MemberCheck> Check;
  std::optional<Long> Bar;  ///< TrussBar::Number of its group
  std::optional<double> Told;
  std::optional<double> Opinion;
};

/// The names for other programs: "check-differs", ... and "danger", "warning", "note".
const char* KeyOf(FindingCode code);
const char* KeyOf(Severity severity);

/// What the design does not show by itself.
struct Circumstances {
  /// Own weight that a restored project has in its loads already, tonnes per metre.
  std::optional<double> DoubledOwnWeight;
  /// A group that fails after a selection was taken over, with its greatest coefficient.
  struct FailingGroup {
    ElementGroup Group = ElementGroup::UpPoyas;
    double Use = 0;
  };
  std::vector<FailingGroup> AfterSelection;
};

/// All findings, the gravest first, those of one grade in the order of the codes and groups. Empty
/// for a refused opinion.
std::vector<Finding> FindAll(const JudgedDesign& design, const Opinion& opinion,
                             const Circumstances& circumstances, const NumberLocale& locale);

/// section-data alone: it holds for sections as they are chosen, before any calculation.
std::vector<Finding> FindInSections(const SectionArray& sections, const Scheme& scheme);

/// Why the figures of this record are not those of a published table; empty where they are.
std::string ProvenanceText(const ProfileRec& record);

/// own-weight-twice in words, with the amount inside the loads, tonnes per metre.
std::string DoubledOwnWeightText(double perMetre, const NumberLocale& locale);

/// The name of a joint for the user: its chord's letter and its number there, as on the load tab.
std::string JointName(const TrussJoint& joint);

}  // namespace trelonit
