#include "editor/associations/frmAssoc.h"

#include <string>

#include "platform/errors/Guard.h"

namespace trelonit {

namespace {

void Offer(CheckBox& box, Label& caption, Label& reason, const std::string& whyNot) {
  box.SetEnabled(whyNot.empty());
  caption.SetEnabled(whyNot.empty());
  reason.SetCaption(whyNot);
  reason.SetVisible(!whyNot.empty());
}

}  // namespace

frmAssoc::frmAssoc(FileAssociations& associations, MessageService& messages)
    : associations_(associations), messages_(messages) {
  const std::string files = associations_.OwnedFiles();
  Form.SetCaption("Связь с файлами");
  lblOwner.SetCaption("Текстовые файлы (" + files + ") открывает");
  lblOption1.SetCaption("&Эта программа");
  lblOption2.SetCaption("Программа &системы");
  lblSendto.SetCaption("&Ярлык в меню «Отправить»");
  lblSC.SetCaption("Показывать &исходный текст страниц браузера");
  cmdApply.SetCaption("&Применить");
  cmdCancel.SetCaption("&Отмена");
  Offer(ChSendto, lblSendto, lblNoSendto, associations_.WhyNoSendTo());
  Offer(ChSC, lblSC, lblNoSC, associations_.WhyNoSourceViewer());
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  ChSendto.Click = [this] { ChSendto_Click(); };
  ChSC.Click = [this] { ChSC_Click(); };
  ShowWhetherToApply();
}

void frmAssoc::Form_Load() {
  present_ = {};
  Guard(messages_, "Form_Load", [this] { present_ = associations_.Present(); });
  Option1.SetValue(present_.Owner == TextOwner::Pad);
  Option2.SetValue(present_.Owner == TextOwner::System);
  ChSendto.SetChecked(present_.SendTo);
  ChSC.SetChecked(present_.SourceViewer);
  ShowWhetherToApply();
}

void frmAssoc::Option1_Click() {
  Option2.SetValue(false);
  ShowWhetherToApply();
}

void frmAssoc::Option2_Click() {
  Option1.SetValue(false);
  ShowWhetherToApply();
}

void frmAssoc::ChSendto_Click() {
  ShowWhetherToApply();
}

void frmAssoc::ChSC_Click() {
  ShowWhetherToApply();
}

void frmAssoc::cmdApply_Click() {
  Guard(messages_, "cmdApply_Click", [this] { associations_.Apply(Choice()); });
  // After a failure too: what was done before it stays, and the rest can be tried again.
  Guard(messages_, "cmdApply_Click", [this] { present_ = associations_.Present(); });
  ShowWhetherToApply();
}

void frmAssoc::cmdCancel_Click() {
  if (Unload) {
    Unload();
  }
}

AssociationChoice frmAssoc::Choice() const {
  AssociationChoice choice{.SendTo = ChSendto.Checked(), .SourceViewer = ChSC.Checked()};
  if (Option1.Value()) {
    choice.Owner = TextOwner::Pad;
  } else if (Option2.Value()) {
    choice.Owner = TextOwner::System;
  }
  return choice;
}

void frmAssoc::ShowWhetherToApply() {
  cmdApply.SetEnabled(Choice() != present_);
}

}  // namespace trelonit
