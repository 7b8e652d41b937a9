#include "catalogue/modProfileData.h"
#include "checks/CheckFormulas.h"
#include "platform/errors/Guard.h"
#include "platform/system/ProgramNames.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

namespace {

void ShowUnknownLayout(MessageService& messages) {
  messages.Show({.Title = warningTitle,
                 .Text = "Произошел неожиданный сбой в приложении.\n"
                         "Тип сечения не соответствует ожидаемому !",
                 .Style = MessageStyle::Critical});
}

}  // namespace

SectionRec& frmMain::SelectedSection() {
  return Model.Inputs.ElementSection[PlaceOfOption(SelectedGroup())];
}

void frmMain::ColourGroup(Long option) {
  const auto color = [option](GroupOption group) {
    return option == group ? colorRed : colorBlack;
  };
  linUpPoyas.SetBorderColor(color(optionUpPoyas));
  linDownPoyas.SetBorderColor(color(optionDwnPoyas));
  for (Line& line : linRaskos) {
    line.SetBorderColor(color(optionRaskos));
  }
  for (Line& line : linStoyka) {
    line.SetBorderColor(color(optionStoyka));
  }
  linOpornRaskos.SetBorderColor(color(optionOpornRaskos));
}

void frmMain::MarkLayout(Long layout) {
  for (Long number = 1; number <= sectionLayoutCount; ++number) {
    imgProfileSecSelect[number].SetMarked(number == layout);
  }
}

void frmMain::ShowLayout(const SectionLayout& layout) {
  imgProfView.Show(layout.View);
  cmbGdist.SetEnabled(layout.Paired);
}

void frmMain::FillSizes(Long typeIdx) {
  cmbSectType.Clear();
  for (const ProfileRec& record : Model.ProfileTypes[typeIdx].Rec) {
    cmbSectType.AddItem(record.Name.Trimmed());
  }
}

void frmMain::FillProfileLists(Long layout) {
  const SectionLayout* known = FindSectionLayout(layout);
  if (known == nullptr) {
    ShowUnknownLayout(services_.Messages);
    return;
  }
  cmbTypeProfile.Clear();
  cmbSectType.Clear();
  for (const Long standard : known->Standards) {
    cmbTypeProfile.AddItem(Model.ProfileTypes[standard].Name.Trimmed());
  }
  // The click that this raises fills the sizes and shows the first.
  cmbTypeProfile.SetText(Model.ProfileTypes[known->DefaultStandard].Name.Trimmed());
}

Long frmMain::FindSizeIndex(Long typeIdx, const std::string& name) {
  return trelonit::FindSizeIndex(services_.Messages, Model.ProfileTypes[typeIdx], name);
}

void frmMain::optElementSection_Click(Long option) {
  Guard(services_.Messages, "optElementSection_Click", [&] {
    ColourGroup(option);
    // A copy: showing the values below raises the clicks of the lists, which write to the record.
    const SectionRec section = Model.Inputs.ElementSection[PlaceOfOption(option)];
    MarkLayout(section.Layout);
    if (section.Paired) {
      // Intended: every visit adds one more entry, also one that the list has already.
      const std::string gap = NumberToText(section.Gdist, services_.Locale);
      cmbGdist.AddItem(gap);
      cmbGdist.SetText(gap);
    }
    // The kept pairing decides here, not the layout, which may be a single one by now.
    cmbGdist.SetEnabled(section.Paired);
    const SectionLayout* layout = FindSectionLayout(section.Layout);
    if (layout == nullptr) {
      ShowUnknownLayout(services_.Messages);
      return;
    }
    imgProfView.Show(layout->View);
    FillProfileLists(section.Layout);
    FillSizes(section.TypeIdx);
    cmbTypeProfile.SetText(Model.ProfileTypes[section.TypeIdx].Name.Trimmed());
    cmbSectType.SetText(Model.ProfileTypes[section.TypeIdx].Rec[section.SizeIdx].Name.Trimmed());
    RefreshSectionSource(section);
    ShowSectionOf(option);
  });
}

void frmMain::imgProfileSecSelect_Click(Long layout) {
  Guard(services_.Messages, "imgProfileSecSelect_Click", [&] {
    MarkLayout(layout);
    const Long option = SelectedGroup();
    const SectionLayout* known = FindSectionLayout(layout);
    if (known == nullptr) {
      ShowUnknownLayout(services_.Messages);
      return;
    }
    SectionRec& section = SelectedSection();
    imgProfileSec[option].Show(imgProfileSecSelect[layout].Shown());
    section.Layout = layout;
    if (known->Paired) {
      section.Paired = true;
      // The upper chord is tolerant of a gap that is no number, the other groups are not.
      section.Gdist = option == optionUpPoyas ? ParseNumber(cmbGdist.Text(), services_.Locale)
                                              : TextToNumber(cmbGdist.Text(), services_.Locale);
    } else if (option == optionUpPoyas) {
      // Intended: the upper chord alone forgets its pairing. The composition goes by the layout,
      // the report prints a group's gap by the pairing that is kept here.
      section.Paired = false;
      section.Gdist = 0;
    }
    ShowLayout(*known);
    FillProfileLists(layout);
    WithdrawOwnWeightOfOldSection();
  });
}

void frmMain::cmbTypeProfile_Click() {
  Guard(services_.Messages, "cmbTypeProfile_Click", [&] {
    const FixedText<50> name(cmbTypeProfile.Text());
    Long typeIdx = 0;
    for (Long standard = 1; standard <= Model.ProfileTypes.UpperBound(); ++standard) {
      if (Model.ProfileTypes[standard].Name == name) {
        typeIdx = standard;
      }
    }
    FillSizes(typeIdx);
    const ProfileRec& first = Model.ProfileTypes[typeIdx].Rec[1];
    SectionRec& section = SelectedSection();
    lblProfilName[SelectedGroup()].SetCaption(cmbSectType.Text());
    section.TypeIdx = typeIdx;
    section.SizeIdx = 1;
    section.Profile = first;
    cmbSectType.SetText(first.Name.Trimmed());
    RefreshSectionSource(section);
    WithdrawOwnWeightOfOldSection();
  });
}

void frmMain::cmbSectType_Click() {
  Guard(services_.Messages, "cmbSectType_Click", [&] {
    SectionRec& section = SelectedSection();
    lblProfilName[SelectedGroup()].SetCaption(cmbSectType.Text());
    section.SizeIdx = FindSizeIndex(section.TypeIdx, cmbSectType.Text());
    section.Profile = Model.ProfileTypes[section.TypeIdx].Rec[section.SizeIdx];
    RefreshSectionSource(section);
    WithdrawOwnWeightOfOldSection();
  });
}

void frmMain::cmbGdist_Click() {
  Guard(services_.Messages, "cmbGdist_Click",
        [&] { SelectedSection().Gdist = TextToNumber(cmbGdist.Text(), services_.Locale); });
  ShowSectionOf(SelectedGroup());
}

void frmMain::WithdrawOwnWeightOfOldSection() {
  // The weight in the loads belongs to the sections before the change.
  if (Model.OwnWeight.Added) {
    TakeOwnWeightOut();
  }
}

}  // namespace trelonit
