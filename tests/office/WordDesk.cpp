#include "tests/office/WordDesk.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdlib.h>

namespace trelonit::test {

namespace fs = std::filesystem;

namespace {

fs::path NewFolder() {
  std::string name = (fs::temp_directory_path() / "word desk-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw std::runtime_error("no folder for the test");
  }
  return name;
}

}  // namespace

WordDesk::WordDesk()
    : root_(NewFolder()), folder_(root_ / "Мои документы"), conversions_(root_ / "work") {
  fs::create_directory(folder_);
  fs::create_directory(conversions_);
  Settings.TemporaryFolder = conversions_.string();
}

WordDesk::~WordDesk() {
  std::error_code code;
  fs::remove_all(root_, code);
}

void WordDesk::UseScript(const std::string& script) {
  const fs::path program = root_ / "soffice";
  std::ofstream file(program);
  file << "#!/bin/sh\ndesk='" << folder_.string()
       << "'\nwhile [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\ndocument=$1\n"
       << script << '\n';
  file.close();
  fs::permissions(program, fs::perms::owner_all);
  Settings.Program = program.string();
}

void WordDesk::Open(const std::string& path) {
  const AutomationHandle word = Application();
  GetObject(word, "Documents")->Call("Open", {path});
  GetObject(GetObject(word, "ActiveDocument"), "Content")->Call("Copy", {});
  word->Call("Quit", {});
}

void WordDesk::Save(const std::string& path) {
  const AutomationHandle word = Application();
  GetObject(word, "Documents")->Call("Add", {});
  const AutomationHandle document = GetObject(word, "ActiveDocument");
  GetObject(document, "Content")->Call("Paste", {});
  document->Call("SaveAs", {path});
  word->Call("Quit", {});
}

std::string WordDesk::Path(const std::string& name) const {
  return (folder_ / name).string();
}

void WordDesk::Put(const std::string& name, const std::string& bytes) const {
  std::ofstream(folder_ / name, std::ios::binary) << bytes;
}

std::string WordDesk::Content(const std::string& name) const {
  std::ifstream file(folder_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool WordDesk::Has(const std::string& name) const {
  return fs::exists(folder_ / name);
}

AutomationHandle GetObject(const AutomationHandle& object, const std::string& member) {
  return std::get<AutomationHandle>(object->Get(member));
}

int ErrorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

std::string InUtf16(const std::string& letters) {
  std::string bytes;
  for (const char letter : letters) {
    bytes += letter;
    bytes += '\0';
  }
  return bytes;
}

std::string LikeWordDocument() {
  return std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + InUtf16("WordDocument");
}

}  // namespace trelonit::test
