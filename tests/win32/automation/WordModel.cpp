#include "tests/win32/automation/WordModel.h"

#include <map>
#include <set>
#include <variant>

#include "editor/document/MemoryRichTextBox.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/FileBytes.h"

namespace trelonit::test {

namespace {

/// What the objects have: properties and routines.
const std::map<std::string, std::set<std::string>>& MembersOfObjects() {
  static const std::map<std::string, std::set<std::string>> members{
      {"Application", {"Documents", "ActiveDocument", "Quit"}},
      {"Documents", {"Open", "Add"}},
      {"ActiveDocument", {"Content", "SaveAs"}},
      {"Content", {"Copy", "Paste"}}};
  return members;
}

std::string ArgumentText(const AutomationValue& value) {
  const auto* number = std::get_if<Long>(&value);
  return number != nullptr ? std::to_string(*number) : std::get<std::string>(value);
}

}  // namespace

class WordModel::Object : public AutomationObject {
 public:
  Object(WordModel& word, std::string name) : word_(word), name_(std::move(name)) {}

  AutomationValue Get(const std::string& member) override {
    Require(member);
    word_.Step(name_ + '.' + member, name_ + '.' + member);
    if (member == "ActiveDocument" && !word_.hasDocument_) {
      throw RuntimeError(4248, "This command is not available because no document is open.");
    }
    return word_.Part(member);
  }
  void Set(const std::string&, const AutomationValue&) override { Refuse(); }
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override {
    Require(member);
    std::string texts;
    for (const AutomationValue& argument : arguments) {
      texts += (texts.empty() ? "" : ", ") + ArgumentText(argument);
    }
    word_.Step(name_ + '.' + member, name_ + '.' + member + '(' + texts + ')');
    word_.Act(member, arguments);
    return member == "Open" || member == "Add" ? AutomationValue(word_.Part("ActiveDocument"))
                                               : AutomationValue();
  }
  std::vector<AutomationHandle> Enumerate() override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
  void Require(const std::string& member) const {
    if (MembersOfObjects().at(name_).count(member) == 0) {
      Refuse();
    }
  }

  WordModel& word_;
  std::string name_;
};

AutomationHandle WordModel::Application() {
  return Part("Application");
}

AutomationHandle WordModel::Part(const std::string& name) {
  return std::make_shared<Object>(*this, name);
}

void WordModel::Step(const std::string& member, const std::string& call) {
  Calls.push_back(call);
  if (const auto failing = orders_.Failures.find(member); failing != orders_.Failures.end()) {
    throw RuntimeError(failing->second);
  }
}

void WordModel::Act(const std::string& member, const std::vector<AutomationValue>& arguments) {
  if (member == "Open" || member == "Add") {
    rich_ = member == "Open" ? ReadBytes(files_, std::get<std::string>(arguments.at(0)))
                             : std::string("{\\rtf1 }");
    hasDocument_ = true;
  } else if (member == "Copy") {
    MemoryRichTextBox box;
    box.SetTextRTF(rich_);
    clipboard_.SetRichText(rich_, box.Text());
  } else if (member == "Paste") {
    rich_ = clipboard_.RichText();
    unsaved_ = true;
  } else if (member == "SaveAs") {
    files_.ReplaceFile(std::get<std::string>(arguments.at(0)), rich_);
    unsaved_ = false;
  } else if (member == "Quit") {
    const AutomationValue withoutSaving = Long{0};
    const bool told = arguments.size() == 1 && arguments[0] == withoutSaving;
    if (orders_.Asks && unsaved_ && !told) {
      // The question stands in a window that nobody sees; whoever waits for it, waits in vain.
      throw RuntimeError(4198, "Command failed");
    }
    Ended();
  }
}

}  // namespace trelonit::test
