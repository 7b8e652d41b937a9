#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>

#include "tests/windows/DialogHands.h"
#include "windows/binding/PictureWidgets.h"
#include "windows/dialogs/SearchWindow.h"

namespace trelonit::test {

/// A proposal that names its sizes after the groups.
struct SearchScreen {
  explicit SearchScreen(Long scheme = 1, std::set<GroupOption> impossible = {}) {
    Fill(scheme, std::move(impossible));
    Open();
  }
  /// A proposal of the selection by both, too.
  explicit SearchScreen(std::function<std::optional<SelectionProposal>()> byOpinion)
      : ByOpinion(std::move(byOpinion)) {
    Fill(1, {});
    Open();
  }

  QLabel& Size(Long option) {
    return Find<QLabel>(*Window, "lblProfilName" + std::to_string(option));
  }
  QLabel& Worry(Long option) { return Find<QLabel>(*Window, "lblWorry" + std::to_string(option)); }
  QPushButton& Apply() { return Find<QPushButton>(*Window, "cmdApply"); }
  Texts Sizes() {
    Texts texts;
    for (Long option = 1; option <= groupCount; ++option) {
      texts.push_back(FromQt(Size(option).text()));
    }
    return texts;
  }
  /// The colour in which the size of a group is written.
  QColor Ink(Long option) { return Size(option).palette().color(QPalette::WindowText); }
  std::vector<PictureView*> Pictures() { return FindAll<PictureView>(); }
  bool IsOpen() const { return Window->isVisible(); }

  SelectionProposal Proposal;
  std::function<std::optional<SelectionProposal>()> ByOpinion;
  BoundedArray<Image> Layouts{1, groupCount};
  frmSearch Form;
  std::unique_ptr<SearchWindow> Window;

 private:
  void Fill(Long scheme, std::set<GroupOption> impossible) {
    Proposal.Sections = SectionArray(1, sectionCount);
    Proposal.Sections[sectionUpPoyas].Profile.Name = "up";
    Proposal.Sections[sectionDwnPoyas].Profile.Name = "down";
    Proposal.Sections[sectionRaskos].Profile.Name = "diagonal";
    Proposal.Sections[sectionOpornRaskos].Profile.Name = "support";
    Proposal.Sections[sectionStoyka].Profile.Name = "vertical";
    Proposal.Impossible = std::move(impossible);
    for (Long option = 1; option <= groupCount; ++option) {
      Layouts[option].Show({Picture::Source::SectionLayout, static_cast<Integer>(option + 1)});
    }
    Form.Fill({.Proposal = Proposal, .ByOpinion = ByOpinion}, Layouts, scheme);
  }
  void Open() {
    Window = std::make_unique<SearchWindow>(Form, nullptr);
    ShowActive(*Window);
  }
  template <class Widget>
  std::vector<Widget*> FindAll() {
    std::vector<Widget*> found;
    for (QWidget* widget : Window->findChildren<QWidget*>()) {
      if (auto* fitting = dynamic_cast<Widget*>(widget)) {
        found.push_back(fitting);
      }
    }
    return found;
  }
};

}  // namespace trelonit::test
