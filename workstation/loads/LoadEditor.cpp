#include "workstation/loads/LoadEditor.h"

#include "platform/errors/Guard.h"

namespace trelonit {

LoadEditor::LoadEditor(frmMain& form) : form_(form) {
  lblLoadError.SetVisible(false);
}

LoadState LoadEditor::State() const {
  return {.Loads = form_.Model.Inputs.Loads, .OwnWeight = form_.Model.OwnWeight};
}

std::vector<LoadRow> LoadEditor::Rows() const {
  return LoadRows(State());
}

std::vector<std::string> LoadEditor::Columns(const LoadRow& row) const {
  return LoadColumns(row, form_.Locale());
}

bool LoadEditor::Take(const LoadEdit& edit) {
  lblLoadError.SetCaption(edit.Error);
  lblLoadError.SetVisible(!edit.Error.empty());
  if (edit.Loads) {
    form_.ReplaceLoads(*edit.Loads);
  }
  return edit.Loads.has_value();
}

bool LoadEditor::Type(std::size_t row, const std::string& text) {
  return Take(TypeLoad(State(), row, text));
}

bool LoadEditor::Paste(std::size_t row, const std::string& text) {
  return Take(PasteLoads(State(), row, text));
}

bool LoadEditor::Delete(const std::vector<std::size_t>& rows) {
  return Take(DeleteLoads(State(), rows));
}

bool LoadEditor::FillDown(const std::vector<std::size_t>& rows) {
  return Take(FillLoadsDown(State(), rows));
}

std::string LoadEditor::Copy(const std::vector<std::size_t>& rows) const {
  return CopyLoads(State(), rows, form_.Locale());
}

void LoadEditor::Pick(const LoadSpot& spot) {
  (spot.Of == Chord::Upper ? form_.tglUpPoyas : form_.tglDwnPoyas).SetValue(true);
  if (spot.Panel && !form_.imgDistForce.Marked()) {
    form_.imgDistForce_Click();
  } else if (!spot.Panel && !form_.imgPForce.Marked()) {
    form_.imgPForce_Click();
  }
  if (spot.Number < static_cast<Long>(form_.cmbKnotNum.List().size())) {
    form_.cmbKnotNum.Select(spot.Number);
  }
}

std::optional<LoadSpot> LoadEditor::Picked() const {
  const Long number = form_.cmbKnotNum.ListIndex();
  if (number == ComboBox::noSelection) {
    return std::nullopt;
  }
  return LoadSpot{.Of = form_.tglUpPoyas.Value() ? Chord::Upper : Chord::Lower,
                  .Panel = form_.imgDistForce.Marked(),
                  .Number = number};
}

LoadPicture LoadEditor::Draw(const LoadPictureSize& size) const {
  LoadPicture picture;
  PassOver([&] {
    picture =
        DrawLoads(form_.ShownGeometry(), form_.Model.OwnWeight, Picked(), size, form_.Locale());
  });
  return picture;
}

}  // namespace trelonit
