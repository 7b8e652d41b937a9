#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"
#include "workstation/document/ProjectDocument.h"

namespace trelonit::test {

/// A user's disk: projects and what the programs keep between their runs. It goes with the test.
class UserDisk {
 public:
  UserDisk() {
    static int count = 0;
    root_ = std::filesystem::temp_directory_path() /
            ("trelonit-document-" + std::to_string(std::random_device()()) + "-" +
             std::to_string(++count));
    std::filesystem::create_directories(root_ / "program");
  }
  UserDisk(const UserDisk&) = delete;
  UserDisk& operator=(const UserDisk&) = delete;
  ~UserDisk() {
    std::error_code code;
    std::filesystem::remove_all(root_, code);
  }

  std::string In(const std::string& name) const {
    return std::filesystem::weakly_canonical(root_ / name).string();
  }
  std::string Content(const std::string& name) const {
    std::ifstream stream(In(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void Put(const std::string& name, const std::string& content) const {
    std::filesystem::create_directories(std::filesystem::path(In(name)).parent_path());
    std::ofstream(In(name), std::ios::binary) << content;
  }
  bool Has(const std::string& name) const { return std::filesystem::exists(In(name)); }
  StateFolder State() const { return StateFolder(root_ / "state"); }

 private:
  std::filesystem::path root_;
};

/// A running program with its document.
class Session {
 public:
  explicit Session(const UserDisk& disk, SettingsService* settings = nullptr)
      : bundle_{Outside.Messages,  Outside.Dialogs,
                Outside.Clipboard, settings == nullptr ? Outside.Settings : *settings,
                Outside.Registry,  Outside.Automation,
                Outside.Shell,     Outside.Clock,
                resources_,        files_,
                PointLocale(),     disk.In("program")},
        Main(bundle_, {}) {
    Main.Form_Load();
    Document.emplace(Main, bundle_, disk.State());
  }

  /// The texts shown since the last call.
  std::vector<std::string> TakeTexts() {
    std::vector<std::string> texts;
    for (const Message& message : std::exchange(Outside.Messages.Shown, {})) {
      texts.push_back(message.Text);
    }
    return texts;
  }
  void Type(const std::string& span) {
    Main.txtLengthF.SetText(span);
    Document->Note();
  }
  /// Ends as a crash does: nothing of it gets the chance to clean up.
  void Crash(const UserDisk& disk) {
    const std::string copy = disk.Content("state/1.recovery");
    Document.reset();
    if (!copy.empty()) {
      disk.Put("state/1.recovery", copy);
    }
  }

 private:
  EmbeddedResources resources_;
  DiskFiles files_;

 public:
  World Outside{resources_};

 private:
  Services bundle_;

 public:
  frmMain Main;
  std::optional<ProjectDocument> Document;
};

}  // namespace trelonit::test
