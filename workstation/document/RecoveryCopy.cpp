#include "workstation/document/RecoveryCopy.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/files/Checksum.h"
#include "workstation/design/ProjectFile.h"

namespace trelonit {

namespace {

constexpr const char* recoveryHead = "Trelonit recovery copy 1";
constexpr const char* noAmount = "-";

/// The texts behind the project, in their order.
struct Addition {
  std::string Head;
  std::string File;
  std::string Time;
  std::string OwnWeightAdded;
  std::string OwnWeightPerMetre;
  std::string OwnWeightInside;
  DesignTexts Texts;

  std::array<std::string*, 16> Lines() {
    return {&Head,
            &File,
            &Time,
            &OwnWeightAdded,
            &OwnWeightPerMetre,
            &OwnWeightInside,
            &Texts.LengthF,
            &Texts.Hight,
            &Texts.LenOporn,
            &Texts.PanelNum,
            &Texts.Ry,
            &Texts.UsloviyaRabot,
            &Texts.Nadegnost,
            &Texts.Steel.ModulYung,
            &Texts.Steel.DensitSteel,
            &Texts.Steel.LimitFlex};
  }
};

/// The beginning of the line behind the last one of the project; npos where there is none.
std::size_t EndOfProject(const std::string& bytes) {
  std::size_t place = 0;
  for (int line = 0; line < projectLineCount && place != std::string::npos; ++line) {
    place = bytes.find('\n', place);
    place += place == std::string::npos ? 0 : 1;
  }
  return place;
}

std::vector<std::string> LinesFrom(const std::string& bytes, std::size_t place) {
  std::vector<std::string> lines;
  for (std::size_t end = bytes.find('\n', place); end != std::string::npos;
       place = end + 1, end = bytes.find('\n', place)) {
    lines.push_back(bytes.substr(place, end - place));
  }
  return lines;
}

}  // namespace

std::string RecoveryText(const RecoveryCopy& copy, const NumberLocale& locale) {
  const DesignState& state = copy.State;
  const auto number = [&](double value) { return NumberToText(value, locale); };
  Addition addition{
      .Head = recoveryHead,
      .File = copy.File,
      .Time = copy.Time,
      .OwnWeightAdded = BooleanToText(state.OwnWeight.Added),
      .OwnWeightPerMetre = number(state.OwnWeight.PerMetre),
      .OwnWeightInside = state.OwnWeightInside ? number(*state.OwnWeightInside) : noAmount,
      .Texts = state.Texts};
  std::string text = ProjectText(state.Inputs, locale);
  for (std::string* line : addition.Lines()) {
    // A name may hold anything.
    std::replace(line->begin(), line->end(), '\n', ' ');
    text += *line + '\n';
  }
  return text + ChecksumOf(text) + '\n';
}

std::optional<RecoveryCopy> ReadRecovery(const std::string& bytes,
                                         const ProfileTypeArray& catalogue,
                                         const NumberLocale& locale) {
  const std::size_t end = EndOfProject(bytes);
  if (end == std::string::npos || !IsProjectText(bytes.substr(0, end))) {
    return std::nullopt;
  }
  const std::vector<std::string> lines = LinesFrom(bytes, end);
  Addition addition;
  const auto places = addition.Lines();
  if (lines.size() != places.size() + 1) {
    return std::nullopt;
  }
  for (std::size_t line = 0; line < places.size(); ++line) {
    *places[line] = lines[line];
  }
  const std::size_t summed = bytes.size() - lines.back().size() - 1;
  if (addition.Head != recoveryHead || lines.back() != ChecksumOf(bytes.substr(0, summed))) {
    return std::nullopt;
  }
  DesignState state{.Inputs = ProjectOfText(bytes.substr(0, end), catalogue, locale),
                    .Texts = addition.Texts,
                    .OwnWeight = {.Added = addition.OwnWeightAdded == BooleanToText(true),
                                  .PerMetre = ParseNumber(addition.OwnWeightPerMetre, locale)}};
  if (addition.OwnWeightInside != noAmount) {
    state.OwnWeightInside = ParseNumber(addition.OwnWeightInside, locale);
  }
  return RecoveryCopy{.State = state, .File = addition.File, .Time = addition.Time};
}

}  // namespace trelonit
