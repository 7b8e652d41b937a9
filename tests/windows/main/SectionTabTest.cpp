#include <gtest/gtest.h>

#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

/// The window on the section tab.
class SectionScreen : public Screen {
 public:
  SectionScreen() { GoTo(1); }

  void PressLayout(Long layout) { Press("imgProfileSecSelect" + std::to_string(layout)); }
  void PressGroup(Long option) { Press("optElementSection" + std::to_string(option)); }
  std::string SizeOf(Long option) {
    return FromQt(Find<QLabel>(Window, "lblProfilName" + std::to_string(option)).text());
  }
  std::vector<Long> PressedLayouts() {
    std::vector<Long> pressed;
    for (Long layout = 1; layout <= 11; ++layout) {
      if (Button("imgProfileSecSelect" + std::to_string(layout)).isChecked()) {
        pressed.push_back(layout);
      }
    }
    return pressed;
  }
  QLineEdit& Gap() { return *Combo("cmbGdist").lineEdit(); }
  void TypeGap(const std::string& gap) {
    Type(Gap(), gap);
    QTest::keyClick(&Gap(), Qt::Key_Return);
  }
};

class SectionInputs : public ::testing::Test, public SectionScreen {};

/// What the tab has to show for a layout.
struct ShownLayout {
  Long Number;
  bool Paired;
  std::vector<Long> Standards;
  std::string FirstSize;
};

void PrintTo(const ShownLayout& layout, std::ostream* stream) {
  *stream << "layout " << layout.Number;
}

class PressedLayout : public ::testing::TestWithParam<ShownLayout>, public SectionScreen {};

TEST_P(PressedLayout, OffersItsStandardsAndSizes) {
  const ShownLayout& layout = GetParam();
  PressLayout(layout.Number == 6 ? 5 : 6);
  PressLayout(layout.Number);
  EXPECT_EQ(PressedLayouts(), std::vector<Long>{layout.Number});
  EXPECT_EQ(Combo("cmbGdist").isEnabled(), layout.Paired);
  std::vector<std::string> standards;
  for (const Long standard : layout.Standards) {
    standards.push_back(StandardName(Main, standard));
  }
  EXPECT_EQ(Entries(Combo("cmbTypeProfile")), standards);
  EXPECT_EQ(FromQt(Combo("cmbTypeProfile").currentText()), standards.front());
  std::vector<std::string> sizes;
  for (const ProfileRec& record : Main.Model.ProfileTypes[layout.Standards.front()].Rec) {
    sizes.push_back(record.Name.Trimmed());
  }
  EXPECT_EQ(Entries(Combo("cmbSectType")), sizes);
  EXPECT_EQ(FromQt(Combo("cmbSectType").currentText()), layout.FirstSize);
  EXPECT_EQ(SizeOf(1), layout.FirstSize);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_P(PressedLayout, TakesTheLastSizeOfItsLastStandard) {
  const ShownLayout& layout = GetParam();
  PressLayout(layout.Number);
  const Long standard = layout.Standards.back();
  const Long last = Main.Model.ProfileTypes[standard].Rec.UpperBound();
  PickEntry(Combo("cmbTypeProfile"), Combo("cmbTypeProfile").count() - 1);
  PickEntry(Combo("cmbSectType"), Combo("cmbSectType").count() - 1);
  const SectionRec& section = Main.Model.Inputs.ElementSection[1];
  EXPECT_EQ(section.Layout, layout.Number);
  EXPECT_EQ(section.TypeIdx, standard);
  EXPECT_EQ(section.SizeIdx, last);
  EXPECT_EQ(section.Profile, Main.Model.ProfileTypes[standard].Rec[last]);
  EXPECT_EQ(section.Paired, layout.Paired);
  EXPECT_EQ(SizeOf(1), SizeName(Main, standard, last));
  EXPECT_EQ(TakeMessages(), Messages());
}

const std::vector<Long> angles{1, 2};
const std::vector<Long> channels{3, 4, 10, 11};
const std::vector<Long> tubes{12, 13, 15, 16, 17, 18, 19, 20, 21, 22};

INSTANTIATE_TEST_SUITE_P(AllLayouts, PressedLayout,
                         ::testing::Values(ShownLayout{1, false, angles, "L25x16x3"},
                                           ShownLayout{2, true, angles, "L25x16x3"},
                                           ShownLayout{3, true, angles, "L25x16x3"},
                                           ShownLayout{4, true, angles, "L25x16x3"},
                                           ShownLayout{5, false, channels, "Шв5П"},
                                           ShownLayout{6, false, {5, 6, 7}, "Дт10"},
                                           ShownLayout{7, false, {8, 9}, "10KT1"},
                                           ShownLayout{8, true, channels, "Шв5П"},
                                           ShownLayout{9, false, tubes, "Тр50x2"},
                                           ShownLayout{10, false, tubes, "Тр50x2"},
                                           ShownLayout{11, false, {14}, "Тр10x1"}),
                         [](const auto& test) { return std::to_string(test.param.Number); });

TEST_F(SectionInputs, ShowTheStartDefaults) {
  EXPECT_EQ(Entries(Combo("cmbKatalog")),
            std::vector<std::string>{"Каталог ГОСТ-овского проката "});
  EXPECT_TRUE(Button("optElementSection1").isChecked());
  EXPECT_EQ(PressedLayouts(), std::vector<Long>{1});
  EXPECT_FALSE(Combo("cmbGdist").isEnabled());
  EXPECT_EQ(Entries(Combo("cmbGdist")), Numbers(4, 30));
  EXPECT_EQ(Combo("cmbGdist").currentText(), "4");
  for (Long option = 1; option <= 5; ++option) {
    EXPECT_EQ(SizeOf(option), "L25x16x3");
  }
}

TEST_F(SectionInputs, GoToTheRecordOfTheirGroup) {
  // The verticals' option stands before that of the support diagonals, their record after it.
  const std::vector<Long> records{1, 2, 3, 5, 4};
  for (Long option = 1; option <= 5; ++option) {
    PressGroup(option);
    PickEntry(Combo("cmbSectType"), static_cast<int>(option));
    const Long size = option + 1;
    const Long record = records[static_cast<std::size_t>(option - 1)];
    EXPECT_EQ(Main.Model.Inputs.ElementSection[record].SizeIdx, size);
    EXPECT_EQ(SizeOf(option), SizeName(Main, 1, size));
  }
}

TEST_F(SectionInputs, ShowTheGroupThatIsChosen) {
  PressGroup(4);
  PressLayout(8);
  TypeGap("14");
  PickIn("cmbTypeProfile", StandardName(Main, 10));
  PressGroup(1);
  EXPECT_EQ(PressedLayouts(), std::vector<Long>{1});
  EXPECT_FALSE(Combo("cmbGdist").isEnabled());
  EXPECT_EQ(FromQt(Combo("cmbTypeProfile").currentText()), StandardName(Main, 1));
  PressGroup(4);
  EXPECT_EQ(PressedLayouts(), std::vector<Long>{8});
  EXPECT_TRUE(Combo("cmbGdist").isEnabled());
  EXPECT_EQ(Combo("cmbGdist").currentText(), "14");
  EXPECT_EQ(FromQt(Combo("cmbTypeProfile").currentText()), StandardName(Main, 10));
  EXPECT_EQ(FromQt(Combo("cmbSectType").currentText()), SizeName(Main, 10, 1));
}

TEST_F(SectionInputs, EachVisitOfAPairedGroupAddsItsGapToTheList) {
  PressLayout(2);
  const int before = Combo("cmbGdist").count();
  PressGroup(2);
  PressGroup(1);
  PressGroup(2);
  PressGroup(1);
  EXPECT_EQ(Combo("cmbGdist").count(), before + 2);
  EXPECT_EQ(Combo("cmbGdist").currentText(), "4");
}

TEST_F(SectionInputs, APickedGapIsKept) {
  PressLayout(2);
  PickIn("cmbGdist", "12");
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 12);
}

TEST_F(SectionInputs, ATypedGapCountsOnEnter) {
  PressLayout(2);
  Type(Gap(), "7.5");
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 4);
  QTest::keyClick(&Gap(), Qt::Key_Return);
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 7.5);
}

TEST_F(SectionInputs, ATypedGapCountsWhenTheBoxIsLeft) {
  PressLayout(3);
  Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  Type(Gap(), "45");
  Combo("cmbSectType").setFocus();
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 45);
}

TEST_F(SectionInputs, AGapThatEntriesBeginWithIsTakenAsTyped) {
  PressLayout(2);
  Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  TypeGap("3");
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 3);
}

TEST_F(SectionInputs, AGapThatIsNoNumberIsTold) {
  PressLayout(2);
  TypeGap("abc");
  EXPECT_EQ(TakeMessages(), Messages{TypeMismatchTail("cmbGdist_Click")});
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 4);
}

TEST_F(SectionInputs, TheLowerChordDoesNotTakeALayoutWithAGapThatIsNoNumber) {
  PressGroup(2);
  PressLayout(2);
  TypeGap("abc");
  TakeMessages();
  PressLayout(3);
  EXPECT_EQ(TakeMessages(), Messages{TypeMismatchTail("imgProfileSecSelect_Click")});
}

TEST_F(SectionInputs, OnlyTheUpperChordForgetsItsPairing) {
  for (const Long option : {1, 2}) {
    PressGroup(option);
    PressLayout(2);
    PickIn("cmbGdist", "20");
    PressLayout(6);
  }
  EXPECT_FALSE(Main.Model.Inputs.ElementSection[1].Paired);
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 0);
  EXPECT_TRUE(Main.Model.Inputs.ElementSection[2].Paired);
  EXPECT_EQ(Main.Model.Inputs.ElementSection[2].Gdist, 20);
  EXPECT_FALSE(Combo("cmbGdist").isEnabled());
}

TEST_F(SectionInputs, EveryChangeTakesTheOwnWeightOutOfTheLoads) {
  const auto withdraws = [&](const char* what, auto act) {
    for (double& load : Main.Model.Inputs.Loads.UpDistForce) {
      load = 1.5;
    }
    Main.Model.OwnWeight.Added = true;
    Main.Model.OwnWeight.PerMetre = 0.5;
    act();
    EXPECT_FALSE(Main.Model.OwnWeight.Added) << what;
    EXPECT_EQ(Values(Main.Model.Inputs.Loads.UpDistForce), std::vector<double>(10, 1.0)) << what;
  };
  withdraws("layout", [&] { PressLayout(2); });
  withdraws("standard", [&] { PickIn("cmbTypeProfile", StandardName(Main, 2)); });
  withdraws("size", [&] { PickEntry(Combo("cmbSectType"), 3); });
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(SectionInputs, AWeightThatCannotBeTakenOutIsTold) {
  Main.Model.OwnWeight.Added = true;
  Main.Model.OwnWeight.PerMetre = -1;
  PressLayout(5);
  const Message told{"chkOwnWeight_Click",
                     "Некорректная погонная масса фермы ! \nqMass = -1\n Собственный вес фермы не "
                     "вычтен из общей нагрузки",
                     MessageStyle::Critical};
  ASSERT_FALSE(Outside.Messages.Shown.empty());
  EXPECT_EQ(TakeMessages().front(), told);
  EXPECT_FALSE(Main.Model.OwnWeight.Added);
}

TEST_F(SectionInputs, TheCurrentGroupIsRedInTheSmallScheme) {
  auto& view = Find<QWidget>(Window, "imgPrevSchem");
  const auto redAt = [&](QPoint point) {
    return view.grab().toImage().pixelColor(point).red() > 150 &&
           view.grab().toImage().pixelColor(point).green() < 100;
  };
  // The middle of the upper chord and of the last panel of the lower one.
  const QPoint upper(view.width() / 2, 14);
  const QPoint lower(14 + (view.width() - 28) / 2, view.height() - 14);
  EXPECT_TRUE(redAt(upper));
  EXPECT_FALSE(redAt(lower));
  PressGroup(2);
  EXPECT_FALSE(redAt(upper));
  EXPECT_TRUE(redAt(lower));
}

/// The mark of a section without a published table.
class SectionSource : public ::testing::Test, public SectionScreen {
 protected:
  SectionSource() {
    PressLayout(2);
    PickIn("cmbTypeProfile", "Уголок равнополочный по ГОСТ 8509-93");
  }
  QWidget& Mark() { return Find<QWidget>(Window, "lblSectionSource"); }
  QLabel& Text() { return *Mark().findChild<QLabel*>(); }
};

TEST_F(SectionSource, IsHiddenWhereTheFiguresArePublished) {
  PickIn("cmbSectType", "L100x10");
  EXPECT_FALSE(Mark().isVisible());
}

TEST_F(SectionSource, TellsWhereTheyAreNot) {
  PickIn("cmbSectType", "L65x8");
  EXPECT_TRUE(Mark().isVisible());
  EXPECT_EQ(FromQt(Text().text()), Main.lblSectionSource.Caption());
  EXPECT_TRUE(Text().text().startsWith(QStringLiteral("L65x8, ")));
  EXPECT_GT(CountPixels(Mark(), CautionColor(Window.palette())), 20) << "its mark";
  PickIn("cmbSectType", "L100x10");
  EXPECT_FALSE(Mark().isVisible());
}

TEST_F(SectionSource, FollowsTheGroup) {
  PickIn("cmbSectType", "L65x8");
  PressGroup(2);
  EXPECT_FALSE(Mark().isVisible());
  PressGroup(1);
  EXPECT_TRUE(Mark().isVisible());
}

TEST_F(SectionSource, StandsUnderTheSizeAndWraps) {
  PickIn("cmbSectType", "L65x8");
  QTest::qWait(1);
  const QComboBox& size = Combo("cmbSectType");
  EXPECT_GE(Mark().geometry().top(), size.geometry().bottom());
  EXPECT_LT(Mark().geometry().bottom(), Combo("cmbGdist").geometry().top());
  EXPECT_LE(Mark().geometry().right(), size.geometry().right() + 1);
  EXPECT_GT(Text().height(), 1.5 * Text().fontMetrics().height());
}

TEST_F(SectionInputs, TheSmallSchemeIsTheChosenOne) {
  auto& view = Find<QWidget>(Window, "imgPrevSchem");
  std::vector<QImage> shown;
  for (const Long scheme : {1, 2, 3, 4}) {
    Main.imgTreloType_Click(scheme);
    shown.push_back(view.grab().toImage());
    for (std::size_t other = 0; other + 1 < shown.size(); ++other) {
      EXPECT_NE(shown[other], shown.back()) << scheme << " and " << other + 1;
    }
  }
  // Scheme 3 has no verticals: none stands under the end of the upper chord.
  const auto inkAt = [&](const QImage& image, int x) {
    return std::abs(qGray(image.pixel(x, image.height() / 2)) - qGray(image.pixel(2, 2))) > 100;
  };
  EXPECT_TRUE(inkAt(shown[0], 14));
  EXPECT_FALSE(inkAt(shown[2], 14));
}

TEST_F(SectionInputs, GroupsThatASchemeDoesNotHaveLeaveNoHole) {
  const auto way = [&](int from, int to) {
    const auto middle = [&](int option) {
      return Button("optElementSection" + std::to_string(option)).geometry().center().y();
    };
    return middle(to) - middle(from);
  };
  QTest::qWait(1);
  EXPECT_NEAR(way(3, 4), way(1, 2), 2);
  Main.imgTreloType_Click(3);
  QTest::qWait(1);
  EXPECT_FALSE(Button("optElementSection4").isVisible());
  EXPECT_NEAR(way(3, 5), way(1, 2), 2);
  Main.imgTreloType_Click(1);
  QTest::qWait(1);
  EXPECT_NEAR(way(3, 4), way(1, 2), 2);
}

}  // namespace
}  // namespace trelonit::test
