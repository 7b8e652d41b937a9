#include <cmath>
#include <cstdlib>
#include <limits>
#include <rapidcheck/gtest.h>

#include "drawing/host/dxf/DxfPairs.h"
#include "platform/text/Text.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {

namespace {

TEST(DxfNumber, HasAPointAndAtMostSixteenDigits) {
  EXPECT_EQ(DxfNumber(0), "0.0");
  EXPECT_EQ(DxfNumber(-0.0), "0.0");
  EXPECT_EQ(DxfNumber(100000), "100000.0");
  EXPECT_EQ(DxfNumber(-2.5), "-2.5");
  EXPECT_EQ(DxfNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(DxfNumber(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(DxfNumber(1e20), "1e+20");
}

TEST(DxfNumber, RaisesForWhatIsNone) {
  EXPECT_EQ(RaisedBy([] { DxfNumber(std::numeric_limits<double>::quiet_NaN()); }), 6);
  EXPECT_EQ(RaisedBy([] { DxfNumber(-std::numeric_limits<double>::infinity()); }), 6);
}

RC_GTEST_PROP(DxfNumber, ReadsBack, ()) {
  const double number = *rc::gen::arbitrary<double>();
  RC_PRE(std::isfinite(number));
  const double read = std::strtod(DxfNumber(number).c_str(), nullptr);
  RC_ASSERT(std::abs(read - number) <= std::abs(number) * 1e-15);
}

TEST(DxfHandle, IsHexadecimalInCapitals) {
  EXPECT_EQ(HandleText(0), "0");
  EXPECT_EQ(HandleText(0x1F), "1F");
  EXPECT_EQ(HandleText(0xABCDEF0123456789), "ABCDEF0123456789");
}

TEST(DxfContent, EscapesWhatReadersTakeForSigns) {
  EXPECT_EQ(DxfContent(" Схема усилий"), " Схема усилий");
  EXPECT_EQ(DxfContent("a^b"), "a^ b");
  EXPECT_EQ(DxfContent("^"), "^ ");
  EXPECT_EQ(DxfContent("a\nb\tc"), "a^Jb^Ic");
  EXPECT_EQ(DxfContent("\n"), "^J");
  EXPECT_EQ(DxfContent("100%"), "100%");
  EXPECT_EQ(DxfContent("%%c 50"), "%%%%%%c 50");
  EXPECT_EQ(DxfContent("%%%"), "%%%%%%%%%");
  EXPECT_EQ(DxfContent("\\U+0041"), "\\U+005CU+0041");
  EXPECT_EQ(DxfContent("a\\b"), "a\\b");
  EXPECT_EQ(DxfName("50%%"), "50%%");
  EXPECT_EQ(DxfName("a^"), "a^ ");
}

TEST(DxfContent, IsCutBetweenCharactersAndBehindEscapes) {
  EXPECT_EQ(DxfContent(std::string(300, 'a')), std::string(255, 'a'));
  EXPECT_EQ(DxfContent("a" + std::string(253, 'b') + "ж"), "a" + std::string(253, 'b'));
  EXPECT_EQ(DxfContent(std::string(254, 'b') + "^"), std::string(254, 'b'));
  EXPECT_EQ(DxfContent(std::string(253, 'b') + "ж"), std::string(253, 'b') + "ж");
}

TEST(DxfContent, ReplacesMalformedBytes) {
  EXPECT_EQ(DxfContent("a\xFF"
                       "b"),
            "a\xEF\xBF\xBD"
            "b");
}

RC_GTEST_PROP(DxfContent, IsAlwaysOneShortLineOfText, ()) {
  const std::string content = DxfContent(*rc::gen::arbitrary<std::string>());
  RC_ASSERT(content.size() <= 255u);
  RC_ASSERT(IsUtf8(content));
  RC_ASSERT(std::none_of(content.begin(), content.end(),
                         [](char letter) { return static_cast<unsigned char>(letter) < ' '; }));
}

TEST(DxfPairs, WriteACodeLineAndAValueLine) {
  DxfPairs pairs;
  pairs.Text(0, "LINE");
  pairs.Whole(1070, 7);
  pairs.Point(10, {1, 2.5, -3});
  pairs.Handle(330, 255);
  EXPECT_EQ(pairs.Written(), "  0\nLINE\n1070\n7\n 10\n1.0\n 20\n2.5\n 30\n-3.0\n330\nFF\n");
}

TEST(DxfPairs, WriteAnglesAsDegreesOfOneTurn) {
  const auto degrees = [](double radians) {
    DxfPairs pairs;
    pairs.Angle(50, radians);
    return std::strtod(pairs.Written().substr(4).c_str(), nullptr);
  };
  const double halfTurn = std::acos(-1.0);
  EXPECT_NEAR(degrees(halfTurn / 2), 90, 1e-12);
  EXPECT_NEAR(degrees(-halfTurn / 2), 270, 1e-12);
  EXPECT_NEAR(degrees(5 * halfTurn), 180, 1e-12);
  EXPECT_NEAR(degrees(halfTurn / 360), 0.5, 1e-12);
  EXPECT_NEAR(degrees(-halfTurn / 360), 359.5, 1e-12);
  EXPECT_EQ(degrees(0), 0);
  EXPECT_EQ(degrees(-1e-30), 0);
}

}  // namespace

}  // namespace trelonit::test
