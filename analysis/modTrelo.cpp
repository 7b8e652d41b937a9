#include "analysis/modTrelo.h"

#include <array>

#include "platform/Guard.h"

namespace trelonit {

namespace {

using Solver = TreloResult (*)(const TreloData&, MessageService&);

constexpr std::array<Solver, 10> solvers{CalcTrelo1, CalcTrelo2, CalcTrelo3, CalcTrelo4,
                                         CalcTrelo5, CalcTrelo6, CalcTrelo7, CalcTrelo8,
                                         CalcTrelo9, CalcTrelo10};

constexpr const char* title = "Trelo's error";

}  // namespace

TreloResult CalcTrelo(const TreloData& data, MessageService& messages) {
  TreloResult result;
  Guard(messages, title, [&] {
    if (data.TreloType < 1 || data.TreloType > static_cast<Long>(solvers.size())) {
      messages.Show({.Title = title,
                     .Text = "Неизвестный тип фермы, расчет не возможен ",
                     .Style = MessageStyle::Critical});
      return;
    }
    result = solvers[static_cast<std::size_t>(data.TreloType - 1)](data, messages);
  });
  return result;
}

}  // namespace trelonit
