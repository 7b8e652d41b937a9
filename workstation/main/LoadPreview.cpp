#include "workstation/main/LoadPreview.h"

namespace trelonit {

namespace {

constexpr Long lineCount = 5;
enum class Head { None, Positive, Negative };

void HideAll(ChordMarks& chord) {
  for (ChordMarks::Marks& line : chord.linP) {
    for (PreviewMark& mark : line) {
      mark.Visible = false;
    }
  }
  for (PreviewMark& mark : chord.linQ) {
    mark.Visible = false;
  }
  for (PreviewLabel& label : chord.lblP) {
    label.Visible = false;
  }
  for (PreviewLabel& label : chord.lblQ) {
    label.Visible = false;
  }
}

void ResetLabels(ChordMarks& chord) {
  for (PreviewLabel& label : chord.lblP) {
    label.Caption = "0";
  }
  for (PreviewLabel& label : chord.lblQ) {
    label.Caption = "0";
  }
}

Long PieceWidth(Long pieces) {
  return pieces > 0 ? LoadPreview::totalWidth / pieces : LoadPreview::totalWidth;
}

void Place(ChordMarks& chord, Long panels) {
  const Long width = PieceWidth(panels);
  chord = ChordMarks();
  for (Long line = 1; line <= lineCount; ++line) {
    chord.linP[line] = ChordMarks::Marks(0, panels);
    for (Long joint = 0; joint <= panels; ++joint) {
      chord.linP[line][joint] = {.X1 = joint * width, .X2 = joint * width};
    }
  }
  chord.lblP = ChordMarks::Labels(0, panels);
  for (Long joint = 0; joint <= panels; ++joint) {
    chord.lblP[joint].X = joint * width;
  }
  chord.linQ = ChordMarks::Marks(0, panels - 1);
  chord.lblQ = ChordMarks::Labels(0, panels - 1);
  for (Long panel = 0; panel < panels; ++panel) {
    chord.linQ[panel] = {.X1 = panel * width, .X2 = (panel + 1) * width};
    chord.lblQ[panel].X = panel * width + width / 2;
  }
}

void ShowArrow(ChordMarks& chord, Long joint, Head head, std::string caption) {
  const bool shown = head != Head::None;
  chord.linP[1][joint].Visible = shown;
  chord.linP[2][joint].Visible = head == Head::Positive;
  chord.linP[3][joint].Visible = head == Head::Positive;
  chord.linP[4][joint].Visible = head == Head::Negative;
  chord.linP[5][joint].Visible = head == Head::Negative;
  chord.lblP[joint].Visible = shown;
  chord.lblP[joint].Caption = std::move(caption);
}

Head HeadOf(double total) {
  if (total > 0) {
    return Head::Positive;
  }
  return total < 0 ? Head::Negative : Head::None;
}

}  // namespace

LoadPreview::LoadPreview() {
  BuildChord(1);
  PlaceUpMarks(1);
  PlaceDwnMarks(1);
}

void LoadPreview::BuildChord(Long pieces) {
  const Long width = PieceWidth(pieces);
  linPoyas = ChordMarks::Marks(0, pieces - 1);
  linStart = ChordMarks::Marks(0, pieces);
  for (Long panel = 0; panel < pieces; ++panel) {
    linPoyas[panel] = {.Visible = true, .X1 = panel * width, .X2 = (panel + 1) * width};
  }
  for (Long joint = 0; joint <= pieces; ++joint) {
    linStart[joint] = {.Visible = true, .X1 = joint * width, .X2 = joint * width};
  }
}

void LoadPreview::Recolour() {
  for (PreviewMark& piece : linPoyas) {
    piece.BorderColor = colorWindowText;
  }
  for (PreviewMark& tick : linStart) {
    tick.BorderColor = colorWindowText;
  }
}

void LoadPreview::MarkTick(Long joint) {
  Recolour();
  linStart[joint].BorderColor = colorRed;
}

void LoadPreview::MarkPiece(Long panel) {
  Recolour();
  linPoyas[panel].BorderColor = colorRed;
}

void LoadPreview::MarkAllPieces() {
  Recolour();
  for (PreviewMark& piece : linPoyas) {
    piece.BorderColor = colorRed;
  }
}

void LoadPreview::ClearLoadMarks() {
  for (ChordMarks* chord : {&Up, &Dwn}) {
    HideAll(*chord);
    ResetLabels(*chord);
  }
}

void LoadPreview::PlaceUpMarks(Long panels) {
  Place(Up, panels);
}

void LoadPreview::PlaceDwnMarks(Long panels) {
  Place(Dwn, panels);
}

void LoadPreview::ShowUpMarks(bool show, const LoadArrays& loads, const NumberLocale& locale) {
  HideAll(Up);
  if (!show) {
    return;
  }
  for (Long joint = 0; joint <= loads.UpPForce.UpperBound(); ++joint) {
    ShowJoint(true, joint, loads.UpPForce[joint], locale);
  }
  for (Long panel = 0; panel <= loads.UpDistForce.UpperBound(); ++panel) {
    ShowPanel(true, panel, loads.UpDistForce[panel], locale);
  }
}

void LoadPreview::ShowDwnMarks(bool show, const LoadArrays& loads, const NumberLocale& locale) {
  HideAll(Dwn);
  if (!show) {
    return;
  }
  for (Long joint = 0; joint <= loads.DwnPForce.UpperBound(); ++joint) {
    const double own = loads.DwnPForce[joint];
    const Head head =
        own > 0 ? Head::Positive : (loads.UpPForce[joint] < 0 ? Head::Negative : Head::None);
    ShowArrow(Dwn, joint, head, NumberToText(own, locale));
  }
  for (Long panel = 0; panel <= loads.DwnDistForce.UpperBound(); ++panel) {
    ShowPanel(false, panel, loads.DwnDistForce[panel], locale);
  }
}

void LoadPreview::ShowJoint(bool upper, Long joint, double total, const NumberLocale& locale) {
  ShowArrow(Chord(upper), joint, HeadOf(total), NumberToText(total, locale));
}

void LoadPreview::ShowPanel(bool upper, Long panel, double total, const NumberLocale& locale) {
  ChordMarks& chord = Chord(upper);
  chord.linQ[panel].Visible = total != 0;
  chord.lblQ[panel].Visible = total != 0;
  chord.lblQ[panel].Caption = NumberToText(total, locale);
}

}  // namespace trelonit
