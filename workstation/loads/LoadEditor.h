#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workstation/loads/LoadPicture.h"
#include "workstation/loads/LoadTable.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

/// The loads of the main form as a table and as a picture of the whole truss, beside its load tool.
/// Commands leave the loads as they are where something is wrong, and say so in one line.
class LoadEditor {
 public:
  /// The form outlives it.
  explicit LoadEditor(frmMain& form);
  LoadEditor(const LoadEditor&) = delete;
  LoadEditor& operator=(const LoadEditor&) = delete;
  ~LoadEditor() = default;

  std::vector<LoadRow> Rows() const;
  std::vector<std::string> Columns(const LoadRow& row) const;
  bool Type(std::size_t row, const std::string& text);
  bool Paste(std::size_t row, const std::string& text);
  bool Delete(const std::vector<std::size_t>& rows);
  bool FillDown(const std::vector<std::size_t>& rows);
  std::string Copy(const std::vector<std::size_t>& rows) const;

  /// Chooses the place in the load tool: its chord, its kind, its number.
  void Pick(const LoadSpot& spot);
  /// What the load tool has chosen; nothing where it has no place to choose.
  std::optional<LoadSpot> Picked() const;

  LoadPicture Draw(const LoadPictureSize& size) const;

  /// What is wrong with the last command; hidden where nothing is.
  Label lblLoadError;

 private:
  LoadState State() const;
  bool Take(const LoadEdit& edit);

  frmMain& form_;
};

}  // namespace trelonit
