#include "drawing/host/objects/HostErrors.h"

namespace trelonit {

RuntimeError KeyNotFound() {
  return {-2145386476, "Key not found"};
}

RuntimeError InvalidName() {
  return {-2145386493, "Invalid input"};
}

RuntimeError SetExists() {
  return {-2145320851, "The named selection set exists"};
}

RuntimeError ObjectErased() {
  return {-2145386420, "Object was erased"};
}

RuntimeError NoDocument() {
  return {-2145320900, "Failed to get the Document object"};
}

RuntimeError UnknownVariable() {
  return {-2145320939, "Error setting system variable"};
}

RuntimeError Disconnected() {
  return {-2147417848, "The object invoked has disconnected from its clients"};
}

}  // namespace trelonit
