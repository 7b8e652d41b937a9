#pragma once

#include <map>
#include <string>

#include "resources/generator/SvgPicture.h"

namespace trelonit::packer {

/// C++ source that defines CompiledPictures with these pictures, by their names.
std::string PicturesSource(const std::map<std::string, SvgPicture>& pictures);

}  // namespace trelonit::packer
