#pragma once

#include "catalogue/ProfileRecord.h"

namespace trelonit::fuzz {

/// The catalogue that the program brings with it.
const ProfileTypeArray& ShippedCatalogue();

}  // namespace trelonit::fuzz
