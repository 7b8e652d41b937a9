#include "fuzz/project/ProjectInvariants.h"

#include <algorithm>
#include <array>

#include "fuzz/support/FuzzWorld.h"
#include "fuzz/support/ShippedCatalogue.h"
#include "workstation/design/ProjectFile.h"

namespace trelonit::fuzz {

namespace {

/// The bytes as a file, read, and stored again.
struct Stored {
  std::string Text;
  Messages Told;
};

Stored Store(std::string_view bytes, const NumberLocale& locale) {
  NoResources resources;
  test::World world(resources);
  world.Locale = locale;
  world.Files.Content["read"] = bytes;
  const DesignInputs record = ReadApplParameters("read", ShippedCatalogue(), world.Bundle());
  WriteApplParameters("written", record, world.Bundle());
  return {world.Files.Content["written"], world.Messages.Shown};
}

std::string ComplaintAboutProject(std::string_view bytes, const NumberLocale& locale) {
  const Stored first = Store(bytes, locale);
  if (std::string complaint = ComplaintAboutMessages(first.Told); !complaint.empty()) {
    return complaint;
  }
  if (std::count(first.Text.begin(), first.Text.end(), '\n') != projectLineCount) {
    return "a project is stored in another number of lines";
  }
  // The first storing keeps fifteen digits of a number, which may lead beyond the greatest one.
  const Stored second = Store(first.Text, locale);
  if (!second.Told.empty()) {
    return "what was stored is read with a message: " + second.Told.front().Text;
  }
  return Store(second.Text, locale).Text == second.Text ? "" : "a project changes by its storing";
}

}  // namespace

std::string ComplaintAboutProject(std::string_view bytes) {
  return ComplaintUnless([&] {
    const std::array<NumberLocale, 2> locales{
        {{}, {.DecimalSeparator = ",", .GroupSeparator = "\u00A0"}}};
    std::string complaint;
    for (const NumberLocale& locale : locales) {
      if (complaint.empty()) {
        complaint = ComplaintAboutProject(bytes, locale);
      }
    }
    return complaint;
  });
}

}  // namespace trelonit::fuzz
