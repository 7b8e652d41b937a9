#include "workstation/design/modHelper.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "platform/system/ProgramNames.h"

namespace trelonit {

double LargestUse(const GroupCheck& group) {
  return std::max({group.KStrength, group.KStabX, group.KStabY, group.KFlexX, group.KFlexY,
                   group.KUserX, group.KUserY});
}

void ShowGroupInfo(const DesignModel& model, const Services& services) {
  static constexpr std::array<std::pair<const char*, SectionPlace>, sectionCount> groups{{
      {"Верхний пояс :", sectionUpPoyas},
      {"Нижний пояс :", sectionDwnPoyas},
      {"Раскосы :", sectionRaskos},
      {"Опорный раскос :", sectionOpornRaskos},
      {"Стойки :", sectionStoyka},
  }};
  std::string text = "Информация по выбраным типам проката : ";
  for (const auto& [caption, place] : groups) {
    const SectionRec& section = model.Inputs.ElementSection[place];
    text += std::string("\n") + caption + "\nТип сечения : " + std::to_string(section.Layout) +
            "\nТипоразмер : " + section.Profile.Name.Trimmed() +
            "\nРасстояние между профилями :" + NumberToText(section.Gdist, services.Locale);
  }
  services.Messages.Show({.Title = debugTitle, .Text = text});
}

}  // namespace trelonit
