#include "workstation/ElementGroups.h"

#include "platform/BoundedArray.h"

namespace trelonit {

SectionPlace PlaceOfOption(Long option) {
  switch (option) {
    case optionUpPoyas:
      return sectionUpPoyas;
    case optionDwnPoyas:
      return sectionDwnPoyas;
    case optionRaskos:
      return sectionRaskos;
    case optionStoyka:
      return sectionStoyka;
    case optionOpornRaskos:
      return sectionOpornRaskos;
    default:
      RaiseSubscriptOutOfRange();
  }
}

}  // namespace trelonit
