#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"

namespace trelonit::test {
namespace {

/// A number with at most 15 significant digits, which is what a file keeps.
double AnyDecimal() {
  const auto digits = *rc::gen::inRange<std::int64_t>(-999'999'999'999'999, 1'000'000'000'000'000);
  const int cut = *rc::gen::inRange(0, 15);
  const auto mantissa = digits / static_cast<std::int64_t>(std::pow(10.0, cut));
  const int exponent = *rc::gen::inRange(-30, 31);
  return TextToNumber(std::to_string(mantissa) + "E" + std::to_string(exponent), PointLocale());
}

Integer AnyInteger() {
  return *rc::gen::arbitrary<Integer>();
}

/// A text of letters that the code page has, without the ones that end a value.
std::string AnyText() {
  const auto byte = rc::gen::suchThat(rc::gen::arbitrary<unsigned char>(),
                                      [](unsigned char one) { return one >= 32 && one != '"'; });
  std::string bytes;
  for (const unsigned char one : *rc::gen::container<std::vector<unsigned char>>(byte)) {
    bytes.push_back(static_cast<char>(one));
  }
  return DecodeCodePage1251(bytes);
}

BoundedArray<double> AnyLoads() {
  BoundedArray<double> loads(0, *rc::gen::inRange(0, 40));
  for (double& load : loads) {
    load = *rc::gen::arbitrary<bool>() ? AnyDecimal() : 0;
  }
  return loads;
}

/// A section as a file can hold one; mostly of the catalogue, else without a profile.
SectionRec AnySection(const ProfileTypeArray& catalogue) {
  SectionRec section{
      .Gdist = AnyDecimal(), .Paired = *rc::gen::arbitrary<bool>(), .Layout = AnyInteger()};
  if (*rc::gen::weightedElement<bool>({{4, true}, {1, false}})) {
    section.TypeIdx = *rc::gen::inRange(1, catalogue.UpperBound() + 1);
    section.SizeIdx = *rc::gen::inRange(1, catalogue[section.TypeIdx].Rec.UpperBound() + 1);
    section.Profile = catalogue[section.TypeIdx].Rec[section.SizeIdx];
  } else {
    section.TypeIdx = *rc::gen::element(-32768, -1, 0, catalogue.UpperBound() + 1, 32767);
    section.SizeIdx = AnyInteger();
  }
  return section;
}

DesignInputs AnyProject(const ProfileTypeArray& catalogue) {
  DesignInputs record;
  for (Integer DesignInputs::*field :
       {&DesignInputs::TreloType, &DesignInputs::UpPoyasBrace, &DesignInputs::DownPoyasBrace,
        &DesignInputs::ProgibOn, &DesignInputs::ProgibUpper, &DesignInputs::ActiveGroup,
        &DesignInputs::DinloadOn, &DesignInputs::OwnWeightOn, &DesignInputs::AllPanelsOn,
        &DesignInputs::PForceTool}) {
    record.*field = AnyInteger();
  }
  for (double DesignInputs::*field :
       {&DesignInputs::LengthF, &DesignInputs::Hight, &DesignInputs::LenOporn, &DesignInputs::Ry,
        &DesignInputs::Density, &DesignInputs::ModulYung, &DesignInputs::LimitFlex,
        &DesignInputs::Nadegnost, &DesignInputs::UsloviyaRabot}) {
    record.*field = AnyDecimal();
  }
  record.PanelNum = AnyInteger();
  record.SteelName = AnyText();
  record.LenLim = AnyText();
  for (SectionRec& section : record.ElementSection) {
    section = AnySection(catalogue);
  }
  for (BoundedArray<double> LoadArrays::*array :
       {&LoadArrays::UpPForce, &LoadArrays::UpDistForce, &LoadArrays::DwnPForce,
        &LoadArrays::DwnDistForce}) {
    record.Loads.*array = AnyLoads();
  }
  return record;
}

NumberLocale AnyLocale() {
  // Also one whose groups look like the decimals of the others.
  const auto separators = *rc::gen::element(std::pair<std::string, std::string>(".", ","),
                                            std::pair<std::string, std::string>(",", "\u00A0"),
                                            std::pair<std::string, std::string>(",", "."),
                                            std::pair<std::string, std::string>(".", ""));
  return {separators.first, separators.second, 3};
}

class ProjectRoundTrip : public ProjectReading {};

RC_GTEST_FIXTURE_PROP(ProjectRoundTrip, KeepsEveryFieldInEveryPairOfLocales, ()) {
  const DesignInputs written = AnyProject(form.Model.ProfileTypes);
  desk.Outside.Locale = AnyLocale();
  RC_ASSERT(WriteApplParameters(projectPath, written, desk.Outside.Bundle()));
  desk.Outside.Locale = AnyLocale();
  const DesignInputs read =
      ReadApplParameters(projectPath, form.Model.ProfileTypes, desk.Outside.Bundle());
  RC_ASSERT(Described(read) == Described(written));
  RC_ASSERT(read.ElementSection == written.ElementSection);
  RC_ASSERT(desk.TakeMessages() == Messages());
}

RC_GTEST_FIXTURE_PROP(ProjectRoundTrip, WritesAReadProjectToTheSameBytes, ()) {
  desk.Outside.Locale = AnyLocale();
  const std::string bytes = ProjectText(AnyProject(form.Model.ProfileTypes), desk.Outside.Locale);
  RC_ASSERT(std::count(bytes.begin(), bytes.end(), '\n') == 53);
  RC_ASSERT(ProjectText(Read(bytes), desk.Outside.Locale) == bytes);
}

RC_GTEST_FIXTURE_PROP(ProjectRoundTrip, KeepsFifteenDigitsOfAnyNumber, (double value)) {
  RC_PRE(std::abs(value) < 1e300 && (value == 0 || std::abs(value) > 1e-290));
  desk.Outside.Locale = AnyLocale();
  DesignInputs written;
  written.LengthF = value;
  written.Loads.UpPForce = BoundedArray<double>(0, 0);
  written.Loads.UpPForce[0] = value;
  const DesignInputs read = Read(ProjectText(written, desk.Outside.Locale));
  RC_ASSERT(std::abs(read.LengthF - value) <= std::abs(value) * 5.1e-15);
  RC_ASSERT(read.Loads.UpPForce[0] == read.LengthF);
}

TEST_F(ProjectRoundTrip, KeepsEveryCharacterOfTheCodePage) {
  DesignInputs written;
  for (int byte = 32; byte < 256; ++byte) {
    if (byte != '"') {
      written.SteelName += DecodeCodePage1251(std::string(1, static_cast<char>(byte)));
    }
  }
  EXPECT_EQ(Read(ProjectText(written, PointLocale())).SteelName, written.SteelName);
}

TEST_F(ProjectRoundTrip, GivesLoadsThatWereNeverMadeOneZero) {
  const DesignInputs read = Read(ProjectText(DesignInputs(), PointLocale()));
  EXPECT_EQ(Values(read.Loads.UpPForce), Zeros(1));
  EXPECT_EQ(Values(read.Loads.DwnDistForce), Zeros(1));
}

}  // namespace
}  // namespace trelonit::test
