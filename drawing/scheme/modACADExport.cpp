#include "drawing/scheme/modACADExport.h"

#include <array>
#include <utility>

#include "drawing/scheme/ForceScheme.h"
#include "drawing/scheme/GeometryScheme.h"
#include "platform/errors/Guard.h"
#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

constexpr std::array<ForceRoutine*, 10> forceRoutines{
    DrawForceScheme1, DrawForceScheme2, DrawForceScheme3, DrawForceScheme4, DrawForceScheme5,
    DrawForceScheme6, DrawForceScheme7, DrawForceScheme8, DrawForceScheme9, DrawForceScheme10};

constexpr std::array<GeometryRoutine*, 10> geometryRoutines{
    DrawGeometryScheme1, DrawGeometryScheme2, DrawGeometryScheme3, DrawGeometryScheme4,
    DrawGeometryScheme5, DrawGeometryScheme6, DrawGeometryScheme7, DrawGeometryScheme8,
    DrawGeometryScheme9, DrawGeometryScheme10};

/// Hands the arguments to the routine of that number.
template <class Routines, class... Arguments>
void Dispatch(const Routines& routines, Long treloType, const DrawingTools& tools,
              const Arguments&... arguments) {
  constexpr const char* title = "Trelo's error";
  Guard(tools.Messages, title, [&] {
    if (treloType < 1 || treloType > static_cast<Long>(routines.size())) {
      tools.Messages.Show({.Title = title,
                           .Text = "Неизвестный тип фермы, расчет не возможен ",
                           .Style = MessageStyle::Critical});
      return;
    }
    routines[static_cast<std::size_t>(treloType - 1)](tools, arguments...);
  });
}

}  // namespace

void DrawForceScheme(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                     const AutomationHandle& space) {
  Dispatch(forceRoutines, data.TreloType, tools, data, result, space);
}

void DrawGeometryScheme(const DrawingTools& tools, const TreloData& data, const TreloResult& result,
                        const SectionArray& sections, const AutomationHandle& space) {
  Dispatch(geometryRoutines, data.TreloType, tools, data, result, sections, space);
}

ACADExport::ACADExport(AutomationService& automation, MessageService& messages, NumberLocale locale,
                       const DrawnDesign& design, Label& statusPanel)
    : automation_(automation),
      messages_(messages),
      locale_(std::move(locale)),
      design_(design),
      statusPanel_(statusPanel) {}

void ACADExport::mnuFileAutoCAD_Click() {
  Guard(messages_, "mnuFileAutoCAD_Click", [this] { Export(); });
}

void ACADExport::Export() {
  if (!ACAD_) {
    ACAD_.emplace(automation_, messages_, locale_);
  }
  application_ = ACAD_->GetOrCreateACADObject();
  if (application_ == nullptr) {
    constexpr const char* noHost = "No AutoCAD connect";
    statusPanel_.SetCaption(noHost);
    messages_.Show({.Title = {}, .Text = noHost, .Style = MessageStyle::Critical});
    return;
  }
  SetMember(application_, "Visible", true);
  // Intended: the version is read and not used.
  Member(application_, "Version");
  statusPanel_.SetCaption("AutoCAD connected");

  document_ = CallForObject(ObjectMember(application_, "Documents"), "Add");
  ACAD_->SetupDrawing(document_);
  const DrawingTools tools{*ACAD_, messages_, locale_};
  DrawForceScheme(tools, design_.Data, design_.Result, ObjectMember(document_, "ModelSpace"));
  DrawGeometryScheme(tools, design_.Data, design_.Result, design_.ElementSection,
                     ObjectMember(document_, "ModelSpace"));
  CallMember(ObjectMember(document_, "Application"), "ZoomExtents");
}

}  // namespace trelonit
