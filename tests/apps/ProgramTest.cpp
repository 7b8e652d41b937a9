#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "apps/Program.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {
namespace {

constexpr Integer calculateTab = 2;

/// The whole program over an outside world in memory, with a drawing host or without.
class WholeProgram : public ::testing::Test {
 protected:
  explicit WholeProgram(bool withHost = true)
      : program(
            {world.Messages, world.Dialogs, world.Clipboard, world.Settings, world.Registry,
             withHost ? static_cast<AutomationService&>(automation) : world.Automation, world.Shell,
             world.Clock, resources, world.Files, world.Locale, world.ProgramFolder},
            {.ShowOtchet = [this](frmOtchetMain& form) { Show(form); },
             .ShowDrawings = [this] { ++drawingsShown; }}) {
    program.Main().Form_Load();
    program.Main().tabMain.SetTab(calculateTab);
    world.Messages.Shown.clear();
  }

  /// What the user does in the document window while it is open.
  void Show(frmOtchetMain& form) {
    form.Form_Activate();
    if (inWindow) {
      inWindow(form);
    }
  }
  /// A program whose machine has these associations, or none.
  std::unique_ptr<Program> With(FileAssociations* associations) {
    return std::make_unique<Program>(
        world.Bundle(), Program::Windows{.ShowOtchet = [this](frmOtchetMain& form) { Show(form); },
                                         .ShowAssoc =
                                             [this](frmAssoc& form) {
                                               ownerShown = form.Option1.Value();
                                               ++assocsShown;
                                             },
                                         .Associations = associations});
  }
  std::string Drawn() const { return WriteDxf(*host.ActiveDocument()); }

  EmbeddedResources resources;
  World world{resources};
  BuiltInHost host;
  BuiltInHostAutomation automation{host};
  Program program;
  std::function<void(frmOtchetMain&)> inWindow;
  int drawingsShown = 0;
  int assocsShown = 0;
  bool ownerShown = false;
};

class WithoutHost : public WholeProgram {
 protected:
  WithoutHost() : WholeProgram(false) {}
};

TEST_F(WholeProgram, FillsTheDocumentWindowWithTheReport) {
  RichDocument shown;
  inWindow = [&](frmOtchetMain& form) { shown = form.RTF.Document(); };
  program.Main().cmdShowResults_Click();
  std::vector<LookPiece> pieces;
  program.Main().MakeReport([&](const ReportPiece& piece) { pieces.push_back(LookOf(piece)); });
  ASSERT_GT(shown.Paragraphs.size(), 100U);
  EXPECT_EQ(shown, ReportDocument(pieces));
}

TEST_F(WholeProgram, DrawsWhatTheReportTellsWhateverTheInputsHaveBecome) {
  std::string first;
  std::string second;
  inWindow = [&](frmOtchetMain& form) {
    form.mnuFileAutoCAD_Click();
    first = Drawn();
    program.Main().txtLengthF.SetText("33");
    program.Main().txtHight.SetText("3");
    form.mnuFileAutoCAD_Click();
    second = Drawn();
    EXPECT_EQ(form.SBPanels[frmOtchetMain::messagePanel].Caption(), "AutoCAD connected");
  };
  program.Main().cmdShowResults_Click();
  EXPECT_EQ(host.Documents().size(), 2U);
  EXPECT_EQ(drawingsShown, 2);
  EXPECT_EQ(first, second);
  EXPECT_TRUE(world.Messages.Shown.empty());
}

TEST_F(WholeProgram, OffersADrawingOnlyAfterAReport) {
  world.Files.Content["/a.txt"] = "text";
  bool before = true;
  inWindow = [&](frmOtchetMain& form) { before = form.mnuFileAutoCAD.Enabled(); };
  program.Open("/a.txt");
  EXPECT_FALSE(before);
  program.Main().cmdShowResults_Click();
  EXPECT_TRUE(before);
}

TEST_F(WholeProgram, RestoresTheProjectOfTheCommandLineInTheMainForm) {
  world.Dialogs.Names = {"/roofs/a b.tsav"};
  program.Main().txtLengthF.SetText("33");
  ASSERT_TRUE(program.Main().SaveParam_Click());
  world.Files.Content["/roofs/A.TSAV"] = world.Files.Content.at("/roofs/a b.tsav");
  int windows = 0;
  inWindow = [&](frmOtchetMain&) { ++windows; };
  for (const char* commandLine : {"\"/roofs/a b.tsav\"", "/roofs/A.TSAV"}) {
    program.Main().txtLengthF.SetText("12");
    program.Open(commandLine);
    EXPECT_EQ(program.Main().txtLengthF.Text(), "33") << commandLine;
  }
  EXPECT_EQ(windows, 0);
  EXPECT_TRUE(world.Messages.Shown.empty());
}

TEST_F(WholeProgram, OpensTheDocumentOfTheCommandLineThisOnce) {
  world.Files.Content["/a b.txt"] = "text";
  std::vector<std::string> names;
  std::string text;
  inWindow = [&](frmOtchetMain& form) {
    names.push_back(form.FileName());
    text = form.RTF.Text();
  };
  program.Open("\"/a b.txt\"");
  EXPECT_EQ(text, "text");
  program.Main().cmdShowResults_Click();
  EXPECT_TRUE(text.starts_with("\r\nРасчет фермы\r\n"));
  EXPECT_EQ(names, (std::vector<std::string>{"/a b.txt", ""}));
}

/// A machine on which the pad owns the text files.
class OwnedByPad : public FileAssociations {
 public:
  AssociationChoice Present() override { return {.Owner = TextOwner::Pad}; }
  void Apply(const AssociationChoice&) override {}
  std::string OwnedFiles() const override { return ".txt"; }
};

TEST_F(WholeProgram, OpensTheAssociationsOnTheStateOfTheMachine) {
  OwnedByPad associations;
  inWindow = [&](frmOtchetMain& form) {
    EXPECT_TRUE(form.mnuFileAssoc.Enabled());
    form.mnuFileAssoc_Click();
  };
  With(&associations)->Open("");
  EXPECT_EQ(assocsShown, 1);
  EXPECT_TRUE(ownerShown);
}

TEST_F(WholeProgram, HandsTheReportedDesignToThePagesWithDrawings) {
  class NamesPages : public NoCommonDialogs {
   public:
    std::string ShowSavePdf(const std::string&) override { return "/pages.pdf"; }
  };
  NamesPages dialogs;
  double drawn = 0;
  Program::Windows windows{
      .ShowOtchet = [this](frmOtchetMain& form) { Show(form); },
      .PdfWithDrawings =
          [&](const RichTextBox& document, const std::string& title, const DrawnDesign& design) {
            drawn = design.Data.LengthF;
            return title + std::to_string(document.TextLength() > 100);
          },
      .Dialogs = &dialogs};
  Program whole(world.Bundle(), windows);
  whole.Main().Form_Load();
  inWindow = [&](frmOtchetMain& form) {
    // Without a report there is nothing to draw.
    EXPECT_FALSE(form.mnuFilePdfDrawings.Enabled());
  };
  whole.Open("");
  whole.Main().txtLengthF.SetText("24");
  whole.Main().tabMain.SetTab(calculateTab);
  inWindow = [&](frmOtchetMain& form) {
    EXPECT_TRUE(form.mnuFilePdfDrawings.Enabled());
    whole.Main().txtLengthF.SetText("33");
    form.mnuFilePdfDrawings_Click();
  };
  whole.Main().cmdShowResults_Click();
  EXPECT_EQ(world.Files.Content["/pages.pdf"], "pages.pdf1");
  EXPECT_EQ(drawn, 24);
}

TEST_F(WholeProgram, OffersNoAssociationsWhereTheMachineDoesNotKnowIt) {
  class Unknown : public OwnedByPad {
   public:
    std::string WhyNot() override { return "не установлена"; }
  };
  Unknown associations;
  std::string reason;
  inWindow = [&](frmOtchetMain& form) {
    EXPECT_FALSE(form.mnuFileAssoc.Enabled());
    reason = form.WhyNoAssoc();
  };
  With(&associations)->Open("");
  EXPECT_EQ(reason, "не установлена");
}

TEST_F(WholeProgram, OffersNoAssociationsWhereTheMachineHasNone) {
  bool offered = true;
  inWindow = [&](frmOtchetMain& form) {
    offered = form.mnuFileAssoc.Enabled();
    form.mnuFileAssoc_Click();
  };
  With(nullptr)->Open("");
  EXPECT_FALSE(offered);
  EXPECT_EQ(assocsShown, 0);
}

TEST_F(WithoutHost, TellsThatNothingCanBeDrawn) {
  inWindow = [&](frmOtchetMain& form) {
    form.mnuFileAutoCAD_Click();
    EXPECT_EQ(form.SBPanels[frmOtchetMain::messagePanel].Caption(), "No AutoCAD connect");
  };
  program.Main().cmdShowResults_Click();
  EXPECT_EQ(
      world.Messages.Shown,
      (std::vector<Message>{{.Text = "No AutoCAD connect", .Style = MessageStyle::Critical}}));
  EXPECT_TRUE(host.Documents().empty());
}

TEST_F(WholeProgram, KeepsTheAppendixOfReportsUntilTheNextStart) {
  EXPECT_FALSE(program.Main().ReportAppendix);
  const auto start = [&](const std::function<void(frmKoeffOfUse&)>& inResults) {
    Program next(world.Bundle(), {.ShowKoeffOfUse = inResults});
    next.Main().Form_Load();
    next.Main().tabMain.SetTab(calculateTab);
    const bool atStart = next.Main().ReportAppendix;
    next.Main().cmdCalculate_Click();
    return std::pair(atStart, next.Main().ReportAppendix);
  };
  EXPECT_EQ(start([](frmKoeffOfUse& form) { form.mnuAppendix_Click(); }), std::pair(false, true));
  EXPECT_EQ(start([](frmKoeffOfUse& form) {
              EXPECT_TRUE(form.mnuAppendix.Checked());
              form.mnuAppendix_Click();
            }),
            std::pair(true, false));
  EXPECT_EQ(start([](frmKoeffOfUse&) {}), std::pair(false, false));
}

}  // namespace
}  // namespace trelonit::test
