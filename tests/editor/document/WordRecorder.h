#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/system/Services.h"

namespace trelonit::test {

/// A word processor that keeps each use of its members, in order, and fails when it is told to.
class WordRecorder : public AutomationService {
 public:
  WordRecorder(ClipboardService& clipboard, FileService& files)
      : clipboard_(clipboard), files_(files) {}

  AutomationHandle Create(const std::string& programIdentifier) override {
    Step("Create " + programIdentifier);
    return std::make_shared<Object>(*this, "Application");
  }

  /// As "Documents.Open(/a.doc)".
  std::vector<std::string> Steps;
  /// The step that fails, from 1; 0 for none.
  std::size_t FailingStep = 0;
  /// Whether all steps behind it fail too.
  bool StaysBroken = false;
  RuntimeError Error{ErrorNumber::PropertyNotSupported};
  /// Members that give no object.
  std::set<std::string> Missing;
  /// The opened document, which Copy puts on the clipboard.
  std::string Rich;
  std::string Plain;
  /// What Paste found there; SaveAs stores the plain one.
  std::string PastedRich;
  std::string PastedPlain;
  /// Objects that are still held.
  int Held = 0;

 private:
  class Object : public AutomationObject {
   public:
    Object(WordRecorder& word, std::string name) : word_(word), name_(std::move(name)) {
      ++word_.Held;
    }
    ~Object() override { --word_.Held; }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    AutomationValue Get(const std::string& member) override {
      word_.Step(name_ + '.' + member);
      if (word_.Missing.count(member) != 0) {
        return {};
      }
      return AutomationHandle(std::make_shared<Object>(word_, member));
    }
    void Set(const std::string& member, const AutomationValue&) override {
      word_.Step(name_ + '.' + member + " =");
    }
    AutomationValue Call(const std::string& member,
                         const std::vector<AutomationValue>& arguments) override {
      std::string texts;
      for (const AutomationValue& argument : arguments) {
        const auto* number = std::get_if<Long>(&argument);
        texts += (texts.empty() ? "" : ", ") +
                 (number != nullptr ? std::to_string(*number) : std::get<std::string>(argument));
      }
      word_.Step(name_ + '.' + member + '(' + texts + ')');
      word_.Act(member, texts);
      return {};
    }
    std::vector<AutomationHandle> Enumerate() override {
      word_.Step(name_ + " enumerated");
      return {};
    }

   private:
    WordRecorder& word_;
    std::string name_;
  };

  void Step(const std::string& step) {
    Steps.push_back(step);
    if (FailingStep != 0 &&
        (Steps.size() == FailingStep || (StaysBroken && Steps.size() > FailingStep))) {
      throw RuntimeError(Error);
    }
  }
  void Act(const std::string& member, const std::string& argument) {
    if (member == "Copy") {
      clipboard_.SetRichText(Rich, Plain);
    } else if (member == "Paste") {
      PastedRich = clipboard_.RichText();
      PastedPlain = clipboard_.Text();
    } else if (member == "SaveAs") {
      files_.ReplaceFile(argument, PastedPlain);
    }
  }

  ClipboardService& clipboard_;
  FileService& files_;
};

}  // namespace trelonit::test
