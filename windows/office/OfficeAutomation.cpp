#include "windows/office/OfficeAutomation.h"

#include <QFileInfo>
#include <memory>
#include <string_view>
#include <utility>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/rtf/RtfHealth.h"
#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/files/FileBytes.h"
#include "windows/office/OfficeProgram.h"

namespace trelonit {

namespace {

constexpr std::string_view compoundSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
/// The name of the stream that every Word document has, in UTF-16.
constexpr std::string_view wordStream("W\0o\0r\0d\0D\0o\0c\0u\0m\0e\0n\0t\0", 24);
/// Bytes; Word itself takes no longer ones.
constexpr std::uint64_t longestDocument = 512ULL << 20;

/// The converter makes a document of any bytes, so that what is none is refused before.
bool IsWordDocument(std::string_view bytes) {
  return bytes.starts_with(compoundSignature) && bytes.find(wordStream) != std::string_view::npos;
}

std::string PlainText(const std::string& rtf) {
  MemoryRichTextBox box;
  box.SetTextRTF(rtf);
  return box.Text();
}

/// An object with named members; those that it does not name raise 438.
class NamedMembers : public AutomationObject {
 public:
  AutomationValue Get(const std::string&) override { Refuse(); }
  void Set(const std::string&, const AutomationValue&) override { Refuse(); }
  AutomationValue Call(const std::string&, const std::vector<AutomationValue>&) override {
    Refuse();
  }
  std::vector<AutomationHandle> Enumerate() override { Refuse(); }

 protected:
  [[noreturn]] static void Refuse() { throw RuntimeError(ErrorNumber::PropertyNotSupported); }
};

void TakeNoArguments(const std::vector<AutomationValue>& arguments) {
  if (!arguments.empty()) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
}

const std::string& OneText(const std::vector<AutomationValue>& arguments) {
  if (arguments.size() != 1 || !std::holds_alternative<std::string>(arguments.front())) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return std::get<std::string>(arguments.front());
}

/// What the objects of one application share.
class WordSession {
 public:
  WordSession(ClipboardService& clipboard, FileService& files, ConversionSettings settings)
      : clipboard_(clipboard), files_(files), settings_(std::move(settings)) {}

  std::string ReadDocument(const std::string& path);
  void SaveDocument(const std::string& path, const std::string& rtf);
  ClipboardService& Clipboard() { return clipboard_; }
  std::string ClipboardAsRichText();

  AutomationHandle Active;
  bool HasQuit = false;

  void RequireRunning() const {
    if (HasQuit) {
      throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
  }

 private:
  ClipboardService& clipboard_;
  FileService& files_;
  ConversionSettings settings_;
};

using SessionHandle = std::shared_ptr<WordSession>;

std::string WordSession::ReadDocument(const std::string& path) {
  if (files_.FileLength(path) > longestDocument) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  std::string bytes = ReadBytes(files_, path);
  // Word opens rich text whatever the name says.
  if (BeginsAsRtf(bytes)) {
    return bytes;
  }
  if (!IsWordDocument(bytes)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  std::string rtf = ConvertDocument(settings_, bytes, OfficeFormat::Word, OfficeFormat::RichText);
  if (!BeginsAsRtf(rtf)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return rtf;
}

void WordSession::SaveDocument(const std::string& path, const std::string& rtf) {
  const std::string bytes =
      ConvertDocument(settings_, rtf, OfficeFormat::RichText, OfficeFormat::Word);
  if (!IsWordDocument(bytes)) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  files_.ReplaceFile(path, bytes);
}

/// Read and written anew, so that nothing but what the editor can hold reaches the converter.
std::string WordSession::ClipboardAsRichText() {
  const std::string rtf = clipboard_.RichText();
  if (BeginsAsRtf(rtf)) {
    return WriteRtf(ReadRtf(rtf));
  }
  MemoryRichTextBox box;
  box.SetText(clipboard_.Text());
  return box.TextRTF();
}

class WordDocument;
using DocumentHandle = std::shared_ptr<WordDocument>;

/// A document and, by Content, all of its text.
class WordDocument : public NamedMembers, public std::enable_shared_from_this<WordDocument> {
 public:
  WordDocument(SessionHandle session, std::string rtf)
      : session_(std::move(session)), rtf_(std::move(rtf)) {}

  AutomationValue Get(const std::string& member) override;
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override;
  void Copy();
  void Paste();

 private:
  SessionHandle session_;
  std::string rtf_;
};

class WordContent : public NamedMembers {
 public:
  explicit WordContent(DocumentHandle document) : document_(std::move(document)) {}
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override {
    if (member == "Copy") {
      TakeNoArguments(arguments);
      document_->Copy();
    } else if (member == "Paste") {
      TakeNoArguments(arguments);
      document_->Paste();
    } else {
      Refuse();
    }
    return {};
  }

 private:
  DocumentHandle document_;
};

AutomationValue WordDocument::Get(const std::string& member) {
  if (member != "Content") {
    Refuse();
  }
  session_->RequireRunning();
  return AutomationHandle(std::make_shared<WordContent>(shared_from_this()));
}

AutomationValue WordDocument::Call(const std::string& member,
                                   const std::vector<AutomationValue>& arguments) {
  if (member != "SaveAs") {
    Refuse();
  }
  const std::string& path = OneText(arguments);
  session_->RequireRunning();
  session_->SaveDocument(path, rtf_);
  return {};
}

void WordDocument::Copy() {
  session_->RequireRunning();
  session_->Clipboard().SetRichText(rtf_, PlainText(rtf_));
}

void WordDocument::Paste() {
  session_->RequireRunning();
  rtf_ = session_->ClipboardAsRichText();
}

class WordDocuments : public NamedMembers {
 public:
  explicit WordDocuments(SessionHandle session) : session_(std::move(session)) {}
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override {
    std::string rtf;
    if (member == "Open") {
      const std::string& path = OneText(arguments);
      session_->RequireRunning();
      rtf = session_->ReadDocument(path);
    } else if (member == "Add") {
      TakeNoArguments(arguments);
      session_->RequireRunning();
      rtf = WriteRtf({});
    } else {
      Refuse();
    }
    session_->Active = std::make_shared<WordDocument>(session_, std::move(rtf));
    return session_->Active;
  }

 private:
  SessionHandle session_;
};

class WordApplication : public NamedMembers {
 public:
  explicit WordApplication(SessionHandle session) : session_(std::move(session)) {}
  ~WordApplication() override { Quit(); }
  WordApplication(const WordApplication&) = delete;
  WordApplication& operator=(const WordApplication&) = delete;

  AutomationValue Get(const std::string& member) override {
    if (member == "Documents") {
      session_->RequireRunning();
      return AutomationHandle(std::make_shared<WordDocuments>(session_));
    }
    if (member == "ActiveDocument") {
      session_->RequireRunning();
      if (session_->Active == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
      }
      return session_->Active;
    }
    Refuse();
  }
  AutomationValue Call(const std::string& member,
                       const std::vector<AutomationValue>& arguments) override {
    if (member != "Quit") {
      Refuse();
    }
    // Nothing is ever asked about here, so that one answer in advance is as good as none.
    const AutomationValue withoutSaving = Long{0};
    if (arguments.size() != 1 || arguments.front() != withoutSaving) {
      TakeNoArguments(arguments);
    }
    Quit();
    return {};
  }

 private:
  /// The documents know the session and the session the active one: here the circle ends.
  void Quit() {
    session_->HasQuit = true;
    session_->Active.reset();
  }

  SessionHandle session_;
};

}  // namespace

AutomationHandle OfficeAutomation::Create(const std::string& programIdentifier) {
  if (programIdentifier != "Word.Application") {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  ConversionSettings settings = settings_;
  if (settings.Program.empty()) {
    settings.Program = FindOfficeProgram();
  }
  const QFileInfo program(QString::fromStdString(settings.Program));
  if (settings.Program.empty() || !program.isAbsolute() || !program.isFile() ||
      !program.isExecutable()) {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
  return std::make_shared<WordApplication>(
      std::make_shared<WordSession>(clipboard_, files_, std::move(settings)));
}

}  // namespace trelonit
