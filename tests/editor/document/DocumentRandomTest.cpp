// Commands of the document window in any order, with answers and failures as they come.

#include <rapidcheck/gtest.h>

#include "editor/document/FileHandler.h"
#include "tests/editor/document/OtchetDesk.h"

namespace trelonit::test {
namespace {

std::string AnyName() {
  return *rc::gen::element<std::string>("", "/home/a.txt", "/home/b.rtf", "/home/c", "/home/d.doc",
                                        "e.txt", "/home/none");
}

/// Queues what the next command may ask for, and what may fail in it.
void PrepareAnswers(OtchetDesk& desk) {
  desk.world.Messages.Answers.clear();
  for (int count = 0; count < 4; ++count) {
    desk.Answer(*rc::gen::element(MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel));
  }
  desk.dialogs.ToOpen = {{AnyName(), *rc::gen::inRange(1, 5)}};
  desk.dialogs.ToSave = {{AnyName(), *rc::gen::inRange(1, 5)},
                         {AnyName(), *rc::gen::inRange(1, 5)}};
  desk.word.Steps.clear();
  desk.word.FailingStep = *rc::gen::inRange<std::size_t>(0, 16);
  desk.files.Refused.clear();
  if (*rc::gen::inRange(0, 4) == 0) {
    desk.files.Refused[AnyName()] = ErrorNumber::PermissionDenied;
  }
}

void RunAnyCommand(OtchetDesk& desk) {
  frmOtchetMain& form = desk.form;
  switch (*rc::gen::inRange(0, 14)) {
    case 0:
      form.mnuFileNew_Click();
      break;
    case 1:
    case 2:
      form.mnuFileOpen_Click();
      break;
    case 3:
    case 4:
      form.mnuFileSave_Click();
      break;
    case 5:
      form.mnuFileSaveAs_Click();
      break;
    case 6:
      form.RTF_FileDropped(AnyName());
      break;
    case 7:
      form.Form_QueryUnload();
      break;
    case 8:
      form.BeginReport();
      form.AppendReport({.Spans = {{"\r\nРасчет\r\n"}}, .Role = ReportRole::Heading});
      form.EndReport();
      break;
    case 9:
      desk.box.Select(*rc::gen::inRange(0, 20), *rc::gen::inRange(0, 8));
      form.RTF_SelChange();
      break;
    case 10:
      form.mnuEdit_Click(*rc::gen::inRange<Integer>(0, 11));
      break;
    default:
      desk.Enter(*rc::gen::element<std::string>("a", "яю", "\r\n", "≤", "{\\rtf1 x}", ""));
      break;
  }
}

/// The file's text, as the window reads it by either kind.
bool HoldsTextOf(const OtchetDesk& desk, const std::string& bytes) {
  MemoryFiles files;
  files.Content["file"] = bytes;
  MemoryRichTextBox plain;
  plain.SetText(ReadPlainText(files, "file"));
  MemoryRichTextBox rich;
  rich.SetTextRTF(bytes);
  return desk.box.Text() == plain.Text() || desk.box.Text() == rich.Text() ||
         desk.box.Text() == desk.word.Plain;
}

RC_GTEST_PROP(DocumentCommands, KeepFileFlagAndPanelsInStep, ()) {
  OtchetDesk desk;
  desk.word.Plain = "from Word";
  desk.files.Content = {{"/home/a.txt", "text \xFF\xFE"},
                        {"/home/b.rtf", "{\\rtf1 {\\b rich}\\par text}"},
                        {"/home/d.doc", "bytes"},
                        {"e.txt", "e"}};
  desk.form.Form_Load();
  for (int steps = *rc::gen::inRange(1, 30); steps > 0; --steps) {
    PrepareAnswers(desk);
    RunAnyCommand(desk);
    const frmOtchetMain& form = desk.form;
    RC_ASSERT(desk.Panel(1) == (form.FileName().empty() ? "File not saved" : form.FileName()));
    RC_ASSERT((desk.Panel(3) == "Изменен") == form.Changed());
    RC_ASSERT(form.mnuEdit[0].Enabled() == form.Undo.canUndo());
    RC_ASSERT(form.mnuEdit[1].Enabled() == form.Undo.canRedo());
    RC_ASSERT(desk.box.Enabled());
    RC_ASSERT(desk.word.Held == 0);
    if (!form.Changed()) {
      const bool agrees = form.FileName().empty()
                              ? desk.box.TextLength() == 0
                              : HoldsTextOf(desk, desk.files.Content.at(form.FileName()));
      RC_ASSERT(agrees);
    }
  }
}

}  // namespace
}  // namespace trelonit::test
