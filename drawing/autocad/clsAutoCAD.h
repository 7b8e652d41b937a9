#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/errors/Message.h"
#include "platform/system/Services.h"
#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// X, Y, Z with subscripts 0, 1, 2, in drawing units; the drawings use millimetres.
using DrawingPoint = BoundedArray<double>;

/// A place on the sheet: Z is 0.
DrawingPoint PointAt(Real x, Real y);

/// What a bar was drawn as; empty where the host gave nothing.
struct LabelledLine {
  AutomationHandle Line;
  AutomationHandle Text;
};

/// Extended data of an entity, or the content of an extended record: two lists of equal length.
/// Both are empty values where nothing could be read.
struct ExtendedData {
  AutomationValue Types;
  AutomationValue Values;
};

/// The one route to the drawing host. It keeps nothing between calls: every operation gets the host
/// objects that it works on. An empty object as a result means failure. No error of the host leaves
/// the class, except from SetupDrawing; where an operation tells of one, it shows a message box.
class clsAutoCAD {
 public:
  /// Seeds the generator of random numbers and gives one number from 0 up to below 1.
  using RandomNumber = std::function<double()>;
  static double SystemRandomNumber();

  clsAutoCAD(AutomationService& automation, MessageService& messages, NumberLocale locale,
             RandomNumber random = SystemRandomNumber);

  /// The running host; never starts it. Silent.
  AutomationHandle GetACADObject() const;
  /// The running host, or a new one. Silent.
  AutomationHandle GetOrCreateACADObject() const;
  /// The active document, or the opened file; the name is ignored where the active one is asked
  /// for. Silent.
  AutomationHandle GetACADDocument(const AutomationHandle& application, const std::string& fileName,
                                   bool readOnly, bool useActive) const;
  /// Closes all documents without saving: unsaved changes are dropped on purpose. False at the
  /// first document that does not close.
  bool CloseAll(const AutomationHandle& application) const;

  AutomationHandle GetOrCreateACADDictionary(const std::string& name,
                                             const AutomationHandle& document) const;
  AutomationHandle GetOrCreateXRecord(const AutomationHandle& dictionary,
                                      const std::string& name) const;

  /// Lets the user select on the screen. Empty where nothing was selected.
  AutomationHandle GetAutoCADSelectionSet(const AutomationHandle& document) const;
  /// A new set of those objects of the set that the program can use, which may hold nothing. The
  /// counts go into the list lstReportList (Clear, BackColor, AddItem, Refresh) of the form.
  AutomationHandle FilterSelectionSet(const AutomationHandle& document, const AutomationHandle& set,
                                      const AutomationHandle& reportForm) const;

  void SetXData(const std::vector<AutomationHandle>& entities, const AutomationValue& values,
                const AutomationValue& types) const;
  /// The data of one application, or of all of them for an empty or blank name.
  ExtendedData GetXData(const AutomationHandle& entity, const std::string& applicationName) const;
  ExtendedData GetXRecordData(const AutomationHandle& record) const;
  bool SetXRecordData(const AutomationHandle& record, const AutomationValue& types,
                      const AutomationValue& values) const;
  /// Checks nothing: the host refuses what does not fit.
  bool CheckXDataSpace(const ExtendedData& data) const;

  /// Silent.
  AutomationHandle TryGetActivDraw(const AutomationHandle& application) const;

  // What follows draws into the model space of a document. Rotations are in radians, heights in
  // drawing units. A failure is told and the rest is still drawn.

  /// A line with the number over its middle, with two decimals as the user's system shows them.
  /// Raises 9 for a point without the subscripts 0 to 2.
  LabelledLine DrawLineAndText(const AutomationHandle& space, const DrawingPoint& point1,
                               const DrawingPoint& point2, double value, double rotation,
                               double textHeight) const;
  /// A line with its length (metres) under it and a name over it, which is the text handed back.
  /// Raises 9 for a point without the subscripts 0 to 2.
  LabelledLine DrawLineAnd2Text(const AutomationHandle& space, const DrawingPoint& point1,
                                const DrawingPoint& point2, double length, const std::string& name,
                                double rotation, double textHeight, bool paired) const;
  /// The caller sets the look of the dimension. Empty for points whose subscripts are not 0 to 2.
  AutomationHandle DrawDimension(const AutomationHandle& space, const DrawingPoint& point1,
                                 const DrawingPoint& point2, const DrawingPoint& location,
                                 double rotation) const;
  AutomationHandle DrawText(const AutomationHandle& space, const DrawingPoint& point,
                            const std::string& text, double rotation, double textHeight) const;
  AutomationHandle DrawLine(const AutomationHandle& space, const DrawingPoint& point1,
                            const DrawingPoint& point2) const;

  /// Layers, styles and variables of a new drawing. An error of the host goes to the caller.
  void SetupDrawing(const AutomationHandle& document) const;

 private:
  enum class Alignment : Long { TopCentre = 7, BottomCentre = 13 };

  static bool IsValidObjectName(std::string_view objectName);
  AutomationHandle CreateScratchSelectionSet(const AutomationHandle& sets, const std::string& name,
                                             Long count) const;

  AutomationHandle PlaceText(const AutomationHandle& space, const std::string& text,
                             const DrawingPoint& point, Alignment alignment, double rotation,
                             double textHeight) const;
  std::string LabelNumber(double value) const;
  void Report(std::string_view title, const std::string& text) const;

  AutomationService& automation_;
  MessageService& messages_;
  NumberLocale locale_;
  RandomNumber random_;
};

}  // namespace trelonit
