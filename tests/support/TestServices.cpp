#include "tests/support/TestServices.h"

#include <sstream>

#include "platform/errors/RuntimeError.h"

namespace trelonit::test {

MessageAnswer RecordingMessages::Show(const Message& message) {
  Shown.push_back(message);
  if (!IsQuestion(message)) {
    return MessageAnswer::Ok;
  }
  if (Answers.empty()) {
    return message.Style == MessageStyle::QuestionYesNo ? MessageAnswer::No : MessageAnswer::Cancel;
  }
  const MessageAnswer answer = Answers.front();
  Answers.pop_front();
  return answer;
}

std::string ScriptedDialogs::Next(const FileDialogRequest& request) {
  Requests.push_back(request);
  if (Names.empty()) {
    return {};
  }
  std::string name = Names.front();
  Names.pop_front();
  return name;
}

bool MemoryFiles::FileExists(const std::string& path) {
  if (NoFileSystem) {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  return Content.count(path) != 0;
}

std::unique_ptr<std::istream> MemoryFiles::OpenForReading(const std::string& path) {
  Require(path);
  return std::make_unique<std::istringstream>(Content.at(path));
}

std::uint64_t MemoryFiles::FileLength(const std::string& path) {
  Require(path);
  return Content.at(path).size();
}

void MemoryFiles::ReplaceFile(const std::string& path, std::string_view bytes) {
  if (path.empty()) {
    throw RuntimeError(ErrorNumber::BadFileName);
  }
  if (const auto refused = Refused.find(path); refused != Refused.end()) {
    throw RuntimeError(refused->second);
  }
  Content[path] = bytes;
  ++Writes;
}

class MemoryFiles::Update : public FileUpdate {
 public:
  Update(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}
  void WriteAt(std::uint64_t place, std::string_view bytes) override {
    std::string& content = files_.Content.at(path_);
    const auto start = static_cast<std::size_t>(place);
    if (content.size() < start + bytes.size()) {
      content.resize(start + bytes.size(), '\0');
    }
    content.replace(start, bytes.size(), bytes);
    ++files_.Writes;
  }

 private:
  MemoryFiles& files_;
  std::string path_;
};

std::unique_ptr<FileUpdate> MemoryFiles::OpenForUpdate(const std::string& path) {
  Require(path);
  if (ReadOnly.count(path) != 0) {
    throw RuntimeError(ErrorNumber::PermissionDenied);
  }
  return std::make_unique<Update>(*this, path);
}

void MemoryFiles::Require(const std::string& path) const {
  if (path.empty()) {
    throw RuntimeError(ErrorNumber::BadFileName);
  }
  if (const auto refused = Refused.find(path); refused != Refused.end()) {
    throw RuntimeError(refused->second);
  }
  if (Content.count(path) == 0) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
}

std::string RecordingShell::ComputerName() {
  if (!Computer) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return *Computer;
}

class MemoryRegistry::OpenKey : public RegistryKey {
 public:
  OpenKey(MemoryRegistry& registry, const std::map<std::string, RegistryValue>& values)
      : registry_(registry), values_(values) {}
  ~OpenKey() override { ++registry_.Closed; }
  std::optional<RegistryValue> Query(const std::string& name) override {
    const auto found = values_.find(name);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  MemoryRegistry& registry_;
  const std::map<std::string, RegistryValue>& values_;
};

std::unique_ptr<RegistryKey> MemoryRegistry::Open(RegistryRoot root, const std::string& key) {
  const auto found = Keys.find({root, key});
  if (found == Keys.end()) {
    return nullptr;
  }
  ++Opened;
  return std::make_unique<OpenKey>(*this, found->second);
}

Services World::Bundle() {
  return {Messages, Dialogs, Clipboard,  Settings, Registry, Automation,
          Shell,    Clock,   resources_, Files,    Locale,   ProgramFolder};
}

World::World(ResourceService& resources) : resources_(resources) {}

World::~World() = default;

NumberLocale PointLocale() {
  return {".", ",", 3};
}

NumberLocale CommaLocale() {
  return {",", "\u00A0", 3};
}

}  // namespace trelonit::test
