#include "workstation/design/ElementGroups.h"

#include "checks/ElementGroups.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

ElementGroup GroupOfOption(Long option) {
  switch (option) {
    case optionUpPoyas:
      return ElementGroup::UpPoyas;
    case optionDwnPoyas:
      return ElementGroup::DwnPoyas;
    case optionRaskos:
      return ElementGroup::Raskos;
    case optionStoyka:
      return ElementGroup::Stoyka;
    case optionOpornRaskos:
      return ElementGroup::OpornRaskos;
    default:
      RaiseSubscriptOutOfRange();
  }
}

SectionPlace PlaceOfOption(Long option) {
  return RowOf(GroupOfOption(option)).Place;
}

GroupOption OptionOf(ElementGroup group) {
  switch (group) {
    case ElementGroup::UpPoyas:
      return optionUpPoyas;
    case ElementGroup::DwnPoyas:
      return optionDwnPoyas;
    case ElementGroup::Raskos:
      return optionRaskos;
    case ElementGroup::Stoyka:
      return optionStoyka;
    case ElementGroup::OpornRaskos:
      break;
  }
  return optionOpornRaskos;
}

}  // namespace trelonit
