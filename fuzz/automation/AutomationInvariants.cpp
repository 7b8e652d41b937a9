#include "fuzz/automation/AutomationInvariants.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "drawing/autocad/clsAutoCAD.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/host/DrawingPicture.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "fuzz/support/ByteSource.h"
#include "fuzz/support/FuzzWorld.h"
#include "platform/system/AutomationMembers.h"

namespace trelonit::fuzz {

namespace {

/// Every member of the host's objects, and one that none has.
constexpr std::array<const char*, 55> memberNames{"Documents",
                                                  "ActiveDocument",
                                                  "Version",
                                                  "Visible",
                                                  "ZoomExtents",
                                                  "Add",
                                                  "Open",
                                                  "Active",
                                                  "Application",
                                                  "SelectionSets",
                                                  "Dictionaries",
                                                  "Layers",
                                                  "TextStyles",
                                                  "DimStyles",
                                                  "ModelSpace",
                                                  "ActiveLayer",
                                                  "ActiveTextStyle",
                                                  "ActiveDimStyle",
                                                  "SetVariable",
                                                  "Close",
                                                  "Document",
                                                  "AddLine",
                                                  "AddText",
                                                  "AddDimRotated",
                                                  "Layer",
                                                  "ObjectName",
                                                  "SetXData",
                                                  "GetXData",
                                                  "Alignment",
                                                  "Rotation",
                                                  "TextAlignmentPoint",
                                                  "TextStyle",
                                                  "ArrowheadSize",
                                                  "TextGap",
                                                  "TextHeight",
                                                  "ScaleFactor",
                                                  "TextInsideAlign",
                                                  "TextInside",
                                                  "PrimaryUnitsPrecision",
                                                  "Freeze",
                                                  "LayerOn",
                                                  "Linetype",
                                                  "Lineweight",
                                                  "ObliqueAngle",
                                                  "Width",
                                                  "Name",
                                                  "Count",
                                                  "Delete",
                                                  "AddItems",
                                                  "GetXRecordData",
                                                  "AddXRecord",
                                                  "GetObject",
                                                  "Item",
                                                  "SelectOnScreen",
                                                  "nobody's"};

/// Values that some member takes.
constexpr std::array<const char*, 14> knownTexts{
    "0",        "STANDARD", "Main",     "Dimensional", "CONTINUOUS",
    "DIMSCALE", "DIMDEC",   "DIMTXSTY", "DIMBLK",      "AutoCAD.Application",
    "",         "Set",      "a\nb",     "\u0416%%c\\P"};

/// One session with the host: the objects that came out of it are used again.
class Session {
 public:
  explicit Session(std::string_view bytes)
      : source_(bytes),
        automation_(host_),
        wrapper_(automation_, messages_, {}, [] { return 0.5; }) {
    host_.Hooks().SelectOnScreen = [](const std::shared_ptr<Drawing>& drawing) {
      return drawing->ModelSpace.empty() ? std::vector<std::size_t>{} : std::vector<std::size_t>{0};
    };
    objects_.push_back(host_.Application());
    MayFail([&] {
      const AutomationHandle document =
          CallForObject(ObjectMember(host_.Application(), "Documents"), "Add");
      objects_.push_back(document);
      objects_.push_back(ObjectMember(document, "ModelSpace"));
    });
  }

  void Run() {
    constexpr int mostSteps = 100;
    for (int step = 0; step < mostSteps && !source_.IsEmpty(); ++step) {
      MayFail([&] { Step(); });
    }
  }

  std::string ComplaintAboutDrawings() {
    for (const std::shared_ptr<Drawing>& drawing : host_.Documents()) {
      std::string dxf;
      MayFail([&] { dxf = WriteDxf(*drawing); });
      MayFail([&] { BoundsOf(*drawing); });
      for (const DrawingEntity& entity : drawing->ModelSpace) {
        MayFail([&] { PictureOf(*drawing, entity); });
      }
      if (!dxf.empty() && !dxf.ends_with("EOF\r\n") && !dxf.ends_with("EOF\n")) {
        return "a drawing does not end";
      }
    }
    return ComplaintAboutMessages(messages_.Shown);
  }

 private:
  void Step() {
    constexpr std::size_t wrapperShare = 4;
    if (source_.Below(wrapperShare) == 0) {
      UseWrapper();
    } else {
      UseMember();
    }
  }

  void UseMember() {
    const AutomationHandle object = Object();
    const std::string member = memberNames.at(source_.Below(memberNames.size()));
    switch (source_.Below(5)) {
      case 0:
        Keep(Member(object, member));
        break;
      case 1:
        SetMember(object, member, Value());
        break;
      case 2:
        for (const AutomationHandle& item : Required(object).Enumerate()) {
          Keep(item);
        }
        break;
      default: {
        std::vector<AutomationValue> arguments;
        for (std::size_t count = source_.Below(6); count > 0; --count) {
          arguments.push_back(Value());
        }
        Keep(CallMember(object, member, arguments));
      }
    }
  }

  void UseWrapper() {
    switch (source_.Below(16)) {
      case 0:
        Keep(wrapper_.GetOrCreateACADObject());
        break;
      case 1:
        Keep(wrapper_.GetACADDocument(Object(), Text(), source_.Flag(), source_.Flag()));
        break;
      case 2:
        Keep(wrapper_.GetOrCreateACADDictionary(Text(), Object()));
        break;
      case 3:
        Keep(wrapper_.GetOrCreateXRecord(Object(), Text()));
        break;
      case 4:
        Keep(wrapper_.GetAutoCADSelectionSet(Object()));
        break;
      case 5:
        Keep(wrapper_.FilterSelectionSet(Object(), Object(), Object()));
        break;
      case 6:
        wrapper_.SetXData({Object(), Object()}, Value(), Value());
        break;
      case 7:
        wrapper_.CheckXDataSpace(wrapper_.GetXData(Object(), Text()));
        break;
      case 8:
        wrapper_.CheckXDataSpace(wrapper_.GetXRecordData(Object()));
        break;
      case 9:
        wrapper_.SetXRecordData(Object(), Value(), Value());
        break;
      case 10:
        Keep(wrapper_.TryGetActivDraw(Object()));
        break;
      case 11:
        Keep(wrapper_.DrawLineAndText(Object(), Point(), Point(), source_.Number(),
                                      source_.Number(), source_.Number()));
        break;
      case 12:
        Keep(wrapper_.DrawLineAnd2Text(Object(), Point(), Point(), source_.Number(), Text(),
                                       source_.Number(), source_.Number(), source_.Flag()));
        break;
      case 13:
        Keep(wrapper_.DrawDimension(Object(), Point(), Point(), Point(), source_.Number()));
        break;
      case 14:
        wrapper_.SetupDrawing(Object());
        break;
      default:
        wrapper_.CloseAll(Object());
    }
  }

  AutomationHandle Object() {
    const std::size_t place = source_.Below(objects_.size() + 1);
    return place < objects_.size() ? objects_[place] : nullptr;
  }

  std::string Text() {
    const std::size_t place = source_.Below(knownTexts.size() + 1);
    return place < knownTexts.size() ? knownTexts.at(place) : source_.Text();
  }

  DrawingPoint Point() {
    DrawingPoint point(0, source_.Byte() == 1 ? 1 : 2);
    for (double& coordinate : point) {
      coordinate = source_.Number();
    }
    return point;
  }

  AutomationValue Value(int depth = 0) {
    switch (source_.Below(8)) {
      case 0:
        return {};
      case 1:
        return source_.Flag();
      case 2:
        return Long{source_.Byte()};
      case 3:
        return source_.Number();
      case 4:
        return Text();
      case 5: {
        const DrawingPoint point = Point();
        return std::vector<double>(point.begin(), point.end());
      }
      case 6:
        return Object();
      default: {
        AutomationList list;
        constexpr int deepest = 3;
        for (std::size_t count = depth < deepest ? source_.Below(4) : 0; count > 0; --count) {
          list.push_back({Value(depth + 1)});
        }
        return list;
      }
    }
  }

  void Keep(const AutomationHandle& object) {
    constexpr std::size_t mostObjects = 40;
    if (object != nullptr && objects_.size() < mostObjects) {
      objects_.push_back(object);
    }
  }
  void Keep(const LabelledLine& drawn) {
    Keep(drawn.Line);
    Keep(drawn.Text);
  }
  void Keep(const AutomationValue& value) {
    if (const auto* object = std::get_if<AutomationHandle>(&value)) {
      Keep(*object);
    }
  }

  ByteSource source_;
  BuiltInHost host_;
  BuiltInHostAutomation automation_;
  test::RecordingMessages messages_;
  clsAutoCAD wrapper_;
  std::vector<AutomationHandle> objects_;
};

}  // namespace

std::string ComplaintAboutAutomation(std::string_view bytes) {
  return ComplaintUnless([&] {
    Session session(bytes);
    session.Run();
    return session.ComplaintAboutDrawings();
  });
}

}  // namespace trelonit::fuzz
