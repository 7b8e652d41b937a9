#pragma once

#include <string>

#include "analysis/modDatatypes.h"
#include "platform/forms/Controls.h"
#include "platform/text/NumberText.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// A mark of the load schematic: a line or a bar from X1 to X2 in display units.
struct PreviewMark {
  bool Visible = false;
  Color BorderColor = colorWindowText;
  Long X1 = 0;
  Long X2 = 0;

  friend bool operator==(const PreviewMark&, const PreviewMark&) = default;
};

/// The value at a mark.
struct PreviewLabel {
  bool Visible = false;
  std::string Caption = "0";
  Long X = 0;

  friend bool operator==(const PreviewLabel&, const PreviewLabel&) = default;
};

/// The marks of one chord's loads, one element per joint or panel, zero-based.
struct ChordMarks {
  using Marks = BoundedArray<PreviewMark>;
  using Labels = BoundedArray<PreviewLabel>;
  /// Lines of a nodal arrow, 1 to 5: the shaft, the two lines of the head of a positive force (2
  /// and 3), those of a negative one (4 and 5).
  BoundedArray<Marks> linP{1, 5};
  Labels lblP;
  /// Bars of distributed loads.
  Marks linQ;
  Labels lblQ;

  friend bool operator==(const ChordMarks&, const ChordMarks&) = default;
};

/// The schematic of the chord on display with its loads, as data: what is shown, hidden and red.
/// Vertical sizes are the drawing's own.
class LoadPreview {
 public:
  /// Width of the whole chord in display units.
  static constexpr Long totalWidth = 9030;

  LoadPreview();

  /// Chord pieces and ticks for this many panels.
  void BuildChord(Long pieces);

  /// Everything in the colour of window text, then one tick, one piece or all pieces red. Raises 9
  /// for a number without a mark.
  void Recolour();
  void MarkTick(Long joint);
  void MarkPiece(Long panel);
  void MarkAllPieces();

  /// Hides all marks and resets their labels.
  void ClearLoadMarks();
  /// Marks for the joints and panels of a chord, hidden, with labels "0".
  void PlaceUpMarks(Long panels);
  void PlaceDwnMarks(Long panels);
  /// Shows the marks of loads that are not zero, or hides all marks of the chord.
  void ShowUpMarks(bool show, const LoadArrays& loads, const NumberLocale& locale);
  /// Intended: a lower joint shows its negative arrow when the upper joint of the same number is
  /// negative, whatever its own load.
  void ShowDwnMarks(bool show, const LoadArrays& loads, const NumberLocale& locale);

  /// Shows one joint's arrow or one panel's bar with its new total; a total of 0 hides it.
  void ShowJoint(bool upper, Long joint, double total, const NumberLocale& locale);
  void ShowPanel(bool upper, Long panel, double total, const NumberLocale& locale);

  ChordMarks::Marks linPoyas;  ///< a piece of chord per panel
  ChordMarks::Marks linStart;  ///< a tick at each joint
  ChordMarks Up;
  ChordMarks Dwn;

 private:
  ChordMarks& Chord(bool upper) { return upper ? Up : Dwn; }
};

}  // namespace trelonit
