#pragma once

#include <array>

#include "catalogue/ProfileRecord.h"
#include "platform/values/Integers.h"

namespace trelonit {

// The boxes in which a record of the catalogue is shown, numbered from 1.

constexpr Long nameBox = 1;
constexpr Long typeBox = 2;
constexpr Long firstNumberBox = 3;

/// A number of the record with what stands before its box. The order of the boxes is not that of
/// the file: H stands before B, s before t, and P last.
struct NumberBox {
  const char* Caption;
  double ProfileRec::*Field;
};
constexpr std::array<NumberBox, 14> numberBoxes{{{"H = мм", &ProfileRec::H},
                                                 {"B = мм", &ProfileRec::B},
                                                 {"s =  мм", &ProfileRec::s},
                                                 {"t = мм", &ProfileRec::t},
                                                 {"r1 = мм", &ProfileRec::r1},
                                                 {"r2 =  мм", &ProfileRec::r2},
                                                 {"A =  см", &ProfileRec::A},
                                                 {"Jy = см4", &ProfileRec::Jy},
                                                 {"Jz  = см4", &ProfileRec::Jz},
                                                 {"Wy = см3", &ProfileRec::Wy},
                                                 {"Wz = см3", &ProfileRec::Wz},
                                                 {"y0 = мм", &ProfileRec::y0},
                                                 {"z0 = мм", &ProfileRec::z0},
                                                 {"P =  кг/см", &ProfileRec::P}}};

}  // namespace trelonit
