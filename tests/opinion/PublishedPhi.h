#pragma once

#include <array>

namespace trelonit::test {

struct PublishedPhi {
  double Slenderness = 0;
  double Thousandths = 0;
};

/// SNiP II-23-81*, table 72, for Ry = 240 MPa (E = 206000 MPa).
constexpr std::array<PublishedPhi, 22> publishedPhi{
    {{10, 987},  {20, 962},  {30, 931},  {40, 894},  {50, 852},  {60, 805},  {70, 754},  {80, 686},
     {90, 612},  {100, 542}, {110, 478}, {120, 419}, {130, 364}, {140, 315}, {150, 276}, {160, 244},
     {170, 218}, {180, 196}, {190, 177}, {200, 161}, {210, 147}, {220, 135}}};

}  // namespace trelonit::test
