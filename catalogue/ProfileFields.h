#pragma once

#include <array>
#include <string_view>

#include "catalogue/ProfileRecord.h"

namespace trelonit {

/// A number of a catalogue record under the name that tables and other programs know it by.
struct ProfileField {
  std::string_view Name;
  double ProfileRec::*Number;
};

/// All numbers of a record, in the order of the data file. What reads, writes or lists records
/// goes by this list.
constexpr std::array<ProfileField, 14> profileFields{{{"B", &ProfileRec::B},
                                                      {"H", &ProfileRec::H},
                                                      {"t", &ProfileRec::t},
                                                      {"s", &ProfileRec::s},
                                                      {"r1", &ProfileRec::r1},
                                                      {"r2", &ProfileRec::r2},
                                                      {"A", &ProfileRec::A},
                                                      {"Jy", &ProfileRec::Jy},
                                                      {"Jz", &ProfileRec::Jz},
                                                      {"P", &ProfileRec::P},
                                                      {"Wy", &ProfileRec::Wy},
                                                      {"Wz", &ProfileRec::Wz},
                                                      {"y0", &ProfileRec::y0},
                                                      {"z0", &ProfileRec::z0}}};

}  // namespace trelonit
