#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "analysis/Scheme.h"
#include "platform/text/NumberText.h"
#include "workstation/design/Design.h"

namespace trelonit {

/// A place that can carry a load: a joint of a chord, or a panel of it.
struct LoadSpot {
  Chord Of = Chord::Upper;
  bool Panel = false;
  Long Number = 0;

  friend bool operator==(const LoadSpot&, const LoadSpot&) = default;
};

/// A row of the table: a place with the user's load there, tonnes on a joint, tonnes per metre on a
/// panel; or the own weight on every panel, which is not the user's to edit.
struct LoadRow {
  bool OwnWeight = false;
  LoadSpot Spot;
  double Value = 0;

  friend bool operator==(const LoadRow&, const LoadRow&) = default;
};

/// The loads with what a calculation has put into them.
struct LoadState {
  LoadArrays Loads;
  OwnWeightState OwnWeight;
};

/// All places of both chords: joints and panels of the upper one, then of the lower one, each from
/// the left. Own weight that is inside the loads comes first, in a row of its own, and is not in
/// the values of the others.
std::vector<LoadRow> LoadRows(const LoadState& state);

/// The columns of a row as texts: chord, kind, number, value; no value where there is no load.
std::vector<std::string> LoadColumns(const LoadRow& row, const NumberLocale& locale);

/// How an edit ended: with other loads, or with one line on what keeps it from that.
struct LoadEdit {
  std::optional<LoadArrays> Loads;
  std::string Error;
};

/// A text typed into the value of a row; an empty one takes the load away.
LoadEdit TypeLoad(const LoadState& state, std::size_t row, const std::string& text);

/// A table of another program: chord, joint or panel, number and value in each line, separated by
/// tabs or semicolons, with or without a line of heads; or values alone, which go into the rows
/// from this one on. Numbers may have either decimal separator. All of it is taken or nothing.
LoadEdit PasteLoads(const LoadState& state, std::size_t row, const std::string& text);

/// Takes the loads of these rows away.
LoadEdit DeleteLoads(const LoadState& state, const std::vector<std::size_t>& rows);

/// Gives the value of the first of these rows to the others.
LoadEdit FillLoadsDown(const LoadState& state, const std::vector<std::size_t>& rows);

/// These rows for another program, as they can be pasted again.
std::string CopyLoads(const LoadState& state, const std::vector<std::size_t>& rows,
                      const NumberLocale& locale);

}  // namespace trelonit
