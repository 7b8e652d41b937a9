#include <utility>

#include "drawing/host/objects/HostDocument.h"
#include "drawing/host/objects/HostObject.h"
#include "drawing/host/objects/HostValues.h"

namespace trelonit {

namespace {

class ApplicationObject : public HostObject<ApplicationObject> {
 public:
  explicit ApplicationObject(HostReference host) : host_(std::move(host)) {}

  static const auto& Members() {
    using Self = ApplicationObject;
    static constexpr std::array members{
        HostMember<Self>{.Name = "Documents",
                         .Get = [](Self& self) -> AutomationValue {
                           Alive(self.host_);
                           return MakeDocuments(self.host_);
                         }},
        HostMember<Self>{
            .Name = "ActiveDocument",
            .Get = [](Self& self) -> AutomationValue { return self.Active(); },
            .Set = [](Self& self, const AutomationValue& value) { self.SetActive(value); }},
        HostMember<Self>{.Name = "Version",
                         .Get = [](Self& self) -> AutomationValue {
                           Alive(self.host_);
                           return std::string("Trelonit 1.0");
                         }},
        HostMember<Self>{
            .Name = "Visible",
            .Get = [](Self& self) -> AutomationValue { return Alive(self.host_)->Visible; },
            .Set = [](Self& self, const AutomationValue& value) { self.SetVisible(value); }},
        HostMember<Self>{.Name = "ZoomExtents",
                         .Call = [](Self& self, const HostArguments&) -> AutomationValue {
                           self.ZoomExtents();
                           return {};
                         }}};
    return members;
  }

 private:
  AutomationHandle Active() const {
    const std::shared_ptr<HostState> host = Alive(host_);
    if (host->Active == nullptr) {
      throw NoDocument();
    }
    return host->Active->Object;
  }
  void SetActive(const AutomationValue& value) {
    const std::shared_ptr<HostState> host = Alive(host_);
    const std::shared_ptr<HostDocument> document = DocumentBehind(value);
    if (DocumentOf(*host, document->Sheet) == nullptr) {
      throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
    ActivateDocument(*host, document);
  }
  void SetVisible(const AutomationValue& value) {
    const std::shared_ptr<HostState> host = Alive(host_);
    host->Visible = FlagIn(value);
    if (host->Hooks.VisibleChanged) {
      host->Hooks.VisibleChanged(host->Visible);
    }
  }
  void ZoomExtents() {
    const std::shared_ptr<HostState> host = Alive(host_);
    if (host->Active == nullptr) {
      throw NoDocument();
    }
    Notify(host->Hooks.ZoomExtents, *host->Active);
  }

  HostReference host_;
};

class DocumentsObject : public HostObject<DocumentsObject> {
 public:
  explicit DocumentsObject(HostReference host) : host_(std::move(host)) {}

  static const auto& Members() {
    using Self = DocumentsObject;
    static constexpr std::array members{
        HostMember<Self>{.Name = "Add",
                         .Call = [](Self& self, const HostArguments&) -> AutomationValue {
                           return AddDocument(Alive(self.host_))->Object;
                         }},
        HostMember<Self>{.Name = "Open",
                         .Call = [](Self&, const HostArguments& arguments) -> AutomationValue {
                           return Open(arguments);
                         },
                         .FewestArguments = 1,
                         .MostArguments = 2}};
    return members;
  }

  std::vector<AutomationHandle> Enumerate() override {
    std::vector<AutomationHandle> documents;
    for (const auto& document : Alive(host_)->Documents) {
      documents.push_back(document->Object);
    }
    return documents;
  }

 private:
  [[noreturn]] static AutomationValue Open(const HostArguments& arguments) {
    TextIn(arguments.front());
    if (arguments.size() > 1) {
      FlagIn(arguments.back());
    }
    throw RuntimeError(static_cast<int>(ErrorNumber::PropertyNotSupported),
                       "The built-in drawing host makes drawings and opens no files");
  }

  HostReference host_;
};

}  // namespace

AutomationHandle MakeApplication(const HostReference& host) {
  return std::make_shared<ApplicationObject>(host);
}

AutomationHandle MakeDocuments(const HostReference& host) {
  return std::make_shared<DocumentsObject>(host);
}

}  // namespace trelonit
