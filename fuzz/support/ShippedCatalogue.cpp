#include "fuzz/support/ShippedCatalogue.h"

#include "catalogue/modProfileData.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"

namespace trelonit::fuzz {

const ProfileTypeArray& ShippedCatalogue() {
  static const ProfileTypeArray catalogue = [] {
    EmbeddedResources resources;
    test::World world(resources);
    return LoadProfileTypes(world.Bundle());
  }();
  return catalogue;
}

}  // namespace trelonit::fuzz
