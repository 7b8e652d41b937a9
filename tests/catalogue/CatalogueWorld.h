#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/ProfileRecord.h"
#include "catalogue/RecordCoding.h"
#include "catalogue/modProfileData.h"
#include "platform/errors/RuntimeError.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

constexpr std::string_view dataName = "GOST profile.dat";
constexpr std::string_view indexName = "Index.ind";

/// Blocks of the test's own; a number without one raises 326.
class FakeResources : public ResourceService {
 public:
  std::string_view CustomBlock(Integer identifier) override {
    const auto found = Blocks.find(identifier);
    if (found == Blocks.end()) {
      throw ResourceNotFoundError(identifier);
    }
    return found->second;
  }
  Picture Bitmap(Integer identifier) override { throw ResourceNotFoundError(identifier); }
  Picture Icon(Integer identifier) override { throw ResourceNotFoundError(identifier); }
  std::string String(Integer identifier) override { throw ResourceNotFoundError(identifier); }
  std::map<Integer, std::string> Blocks;
};

/// A program with its own resources and its files in memory.
struct CatalogueWorld {
  EmbeddedResources Resources;
  World Outside{Resources};
  const std::string DataPath = "/program/GOST profile.dat";
  const std::string IndexPath = "/program/Index.ind";

  std::string& Data() { return Outside.Files.Content[DataPath]; }
  std::string& Index() { return Outside.Files.Content[IndexPath]; }
  ProfileTypeArray Load() { return LoadProfileTypes(Outside.Bundle()); }
};

/// The number of the run-time error that the body raises; nothing if it raises none.
template <class Body>
std::optional<int> ErrorOf(Body&& body) {
  try {
    std::forward<Body>(body)();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return std::nullopt;
}

/// The bytes of an index row.
inline std::string IndexRow(std::string_view name, Long first, Long last) {
  const auto bytes = EncodeIndexRecord({.Name = name, .FirstNum = first, .LastNum = last});
  return {bytes.begin(), bytes.end()};
}

}  // namespace trelonit::test
