#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/system/Services.h"
#include "tests/win32/automation/Orders.h"

namespace trelonit::test {

/// A word processor over the machine's own clipboard and disk, which keeps each use of its members.
/// Its documents are rich text, whatever their names say. It asks what to do with an unsaved
/// document, as the real one does, where the order says so.
class WordModel {
 public:
  WordModel(Orders orders, ClipboardService& clipboard, FileService& files)
      : orders_(std::move(orders)), clipboard_(clipboard), files_(files) {}

  AutomationHandle Application();

  /// As "Documents.Open(C:\a.doc)".
  std::vector<std::string> Calls;
  /// Hears that the program ends.
  std::function<void()> Ended;

 private:
  class Object;

  void Act(const std::string& member, const std::vector<AutomationValue>& arguments);
  void Step(const std::string& member, const std::string& call);
  AutomationHandle Part(const std::string& name);

  Orders orders_;
  ClipboardService& clipboard_;
  FileService& files_;
  std::string rich_;
  bool hasDocument_ = false;
  bool unsaved_ = false;
};

}  // namespace trelonit::test
