#include "drawing/host/TitleBlock.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/text/NumberText.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr const char* thickLayer = "Thick";
constexpr const char* thinLayer = "Thin";
constexpr Long thickWeight = 50;
constexpr Long thinWeight = 18;

constexpr double largeLetters = 5;
constexpr double usualLetters = 3.5;
constexpr double smallLetters = 2.5;
constexpr double letterSlope = 0.262;
/// The width factor of letters that have room.
constexpr double usualWidth = 0.7;
/// About the width of a letter with the factor 1, in parts of the height of capitals.
constexpr double letterWidth = 0.85;
/// Between the text and the lines of its field.
constexpr double fieldEdge = 1;
constexpr double lineSpacing = 1.6;

/// A field of the form; from the lower left corner of the block.
struct TitleField {
  double Left;
  double Bottom;
  double Right;
  double Top;
};

// The columns of the changes and of the signatures, then the field of the names.
constexpr double namesEdge = 65;
constexpr std::array signatureColumns{20.0, 40.0, 55.0, namesEdge};
constexpr std::array changeColumns{10.0, 30.0};
constexpr double signaturesTop = 30;  ///< height of their rows
constexpr double rowHeight = 5;
constexpr double numbersEdge = 135;  ///< where stage, sheet and organisation stand

constexpr TitleField codeField{namesEdge, 45, titleBlockWidth, titleBlockHeight};
constexpr TitleField projectField{namesEdge, 30, titleBlockWidth, 45};
constexpr TitleField buildingField{namesEdge, 15, numbersEdge, 30};
constexpr TitleField imagesField{namesEdge, 0, numbersEdge, 15};
constexpr TitleField organisationField{numbersEdge, 0, titleBlockWidth, 15};
constexpr std::array<TitleField, 3> numberHeads{
    {{numbersEdge, 25, 150, 30}, {150, 25, 165, 30}, {165, 25, titleBlockWidth, 30}}};
constexpr std::array<TitleField, 3> numberFields{
    {{numbersEdge, 15, 150, 25}, {150, 15, 165, 25}, {165, 15, titleBlockWidth, 25}}};

/// The words of a text in as many lines, the first ones as long as the others allow.
std::vector<std::string> InTwoLines(const std::string& text, std::size_t lines) {
  if (lines < 2) {
    return {text};
  }
  // The blank nearest to the middle.
  std::size_t best = std::string::npos;
  const std::size_t middle = text.size() / 2;
  for (std::size_t blank = text.find(' '); blank != std::string::npos;
       blank = text.find(' ', blank + 1)) {
    const auto away = [&](std::size_t at) { return at > middle ? at - middle : middle - at; };
    if (best == std::string::npos || away(blank) < away(best)) {
      best = blank;
    }
  }
  if (best == std::string::npos) {
    return {text};
  }
  return {text.substr(0, best), text.substr(best + 1)};
}

class TitleForm {
 public:
  explicit TitleForm(PlacePoint corner) : left_(corner.X - titleBlockWidth), bottom_(corner.Y) {
    picture_.Layers.push_back({.Name = thickLayer, .Lineweight = thickWeight});
    picture_.Layers.push_back({.Name = thinLayer, .Lineweight = thinWeight});
  }

  Drawing Picture() { return std::move(picture_); }

  void Rule(const char* layer, double x1, double y1, double x2, double y2) {
    picture_.ModelSpace.emplace_back(
        DrawingLine{.Start = At(x1, y1), .End = At(x2, y2), .Layer = layer});
  }
  void Frame(const TitleField& field) {
    Rule(thickLayer, field.Left, field.Bottom, field.Right, field.Bottom);
    Rule(thickLayer, field.Right, field.Bottom, field.Right, field.Top);
    Rule(thickLayer, field.Right, field.Top, field.Left, field.Top);
    Rule(thickLayer, field.Left, field.Top, field.Left, field.Bottom);
  }

  /// In the middle of its field.
  void Centred(const TitleField& field, const std::string& text, double height) {
    const double room = field.Right - field.Left - 2 * fieldEdge;
    const auto most = static_cast<std::size_t>((field.Top - field.Bottom) / (lineSpacing * height));
    const bool tooLong = WidthOf(text, height, usualWidth) > room;
    const std::vector<std::string> lines = InTwoLines(text, tooLong ? most : 1);
    const double middle = (field.Bottom + field.Top) / 2;
    double y = middle + static_cast<double>(lines.size() - 1) / 2 * lineSpacing * height;
    for (const std::string& line : lines) {
      Put((field.Left + field.Right) / 2, y - height / 2, line, height, TextAlignment::Centre,
          room);
      y -= lineSpacing * height;
    }
  }
  /// On the line of its field, from the left.
  void OnLine(const TitleField& field, const std::string& text, double height) {
    Put(field.Left + fieldEdge, field.Bottom + fieldEdge, text, height, TextAlignment::Left,
        field.Right - field.Left - 2 * fieldEdge);
  }

 private:
  PlacePoint At(double x, double y) const { return {left_ + x, bottom_ + y, 0}; }

  static double WidthOf(const std::string& text, double height, double factor) {
    return static_cast<double>(Characters(text).size()) * letterWidth * factor * height;
  }

  void Put(double x, double y, const std::string& text, double height, TextAlignment alignment,
           double room) {
    if (text.empty()) {
      return;
    }
    const double needed = WidthOf(text, height, 1);
    const PlacePoint point = At(x, y);
    picture_.ModelSpace.emplace_back(
        DrawingText{.Text = text,
                    .InsertionPoint = point,
                    .Height = height,
                    .Alignment = alignment,
                    .TextAlignmentPoint = point,
                    .Style = StyleOf(std::min(usualWidth, room / needed)),
                    .Layer = thinLayer});
  }

  std::string StyleOf(double width) {
    std::string name = "Block " + NumberToText(width, {});
    if (FindTextStyle(picture_, name) == nullptr) {
      picture_.TextStyles.push_back({.Name = name, .ObliqueAngle = letterSlope, .Width = width});
    }
    return name;
  }

  double left_;
  double bottom_;
  Drawing picture_;
};

void AddChanges(TitleForm& form) {
  constexpr std::array<const char*, 6> changeHeads{"Изм.",   "Кол.уч", "Лист",
                                                   "№ док.", "Подп.",  "Дата"};
  constexpr std::array<double, 7> changeEdges{0, 10, 20, 30, 40, 55, namesEdge};
  for (std::size_t place = 0; place < changeHeads.size(); ++place) {
    form.Centred({changeEdges.at(place), signaturesTop, changeEdges.at(place + 1),
                  signaturesTop + rowHeight},
                 changeHeads.at(place), smallLetters);
  }
  for (const double column : changeColumns) {
    form.Rule(thickLayer, column, signaturesTop, column, titleBlockHeight);
  }
  for (const double column : signatureColumns) {
    form.Rule(thickLayer, column, 0, column, titleBlockHeight);
  }
  for (double y = rowHeight; y < titleBlockHeight; y += rowHeight) {
    const bool head = y == signaturesTop || y == signaturesTop + rowHeight;
    form.Rule(head ? thickLayer : thinLayer, 0, y, namesEdge, y);
  }
}

void AddSignatures(TitleForm& form, const TitleBlock& block) {
  struct Signature {
    const char* Role;
    const std::string& Name;
    double Bottom;
  };
  for (const Signature& signature :
       {Signature{"Разраб.", block.Author, 25}, Signature{"Проверил", block.Checker, 20}}) {
    const double top = signature.Bottom + rowHeight;
    form.OnLine({0, signature.Bottom, signatureColumns[0], top}, signature.Role, smallLetters);
    form.OnLine({signatureColumns[0], signature.Bottom, signatureColumns[1], top}, signature.Name,
                smallLetters);
    if (!signature.Name.empty()) {
      form.Centred({signatureColumns[2], signature.Bottom, namesEdge, top}, block.Date,
                   smallLetters);
    }
  }
}

void AddNames(TitleForm& form, const TitleBlock& block, const std::string& scaleNote) {
  form.Frame(codeField);
  form.Frame(projectField);
  form.Frame(buildingField);
  form.Frame(imagesField);
  form.Frame(organisationField);
  form.Centred(codeField, block.Code, largeLetters);
  form.Centred(projectField, block.Project, usualLetters);
  form.Centred(buildingField, block.Building, usualLetters);
  form.Centred(imagesField, block.Images.empty() ? scaleNote : block.Images + ", " + scaleNote,
               usualLetters);
  form.Centred(organisationField, block.Organisation, usualLetters);
  const std::array<std::pair<const char*, const std::string*>, 3> fields{
      {{"Стадия", &block.Stage}, {"Лист", &block.Sheet}, {"Листов", &block.Sheets}}};
  for (std::size_t place = 0; place < fields.size(); ++place) {
    form.Frame(numberHeads.at(place));
    form.Frame(numberFields.at(place));
    form.Centred(numberHeads.at(place), fields.at(place).first, smallLetters);
    form.Centred(numberFields.at(place), *fields.at(place).second, usualLetters);
  }
}

// Settings -------------------------------------------------------------------------------------

constexpr const char* titleSection = "TitleBlock";
constexpr const char* shownKey = "Shown";

/// A field with its key and what stands in it before the user fills it.
struct KeptField {
  const char* Key;
  std::string TitleBlock::*Text;
  const char* Usual;
};
constexpr std::array<KeptField, 11> keptFields{
    {{"Code", &TitleBlock::Code, ""},
     {"Project", &TitleBlock::Project, ""},
     {"Building", &TitleBlock::Building, ""},
     {"Images", &TitleBlock::Images, "Стропильная ферма. Геометрическая схема, схема усилий"},
     {"Organisation", &TitleBlock::Organisation, ""},
     {"Author", &TitleBlock::Author, ""},
     {"Checker", &TitleBlock::Checker, ""},
     {"Date", &TitleBlock::Date, ""},
     {"Stage", &TitleBlock::Stage, "Р"},
     {"Sheet", &TitleBlock::Sheet, "1"},
     {"Sheets", &TitleBlock::Sheets, "1"}}};

}  // namespace

Drawing PictureOfTitleBlock(const TitleBlock& block, const std::string& scaleNote,
                            PlacePoint corner) {
  TitleForm form(corner);
  form.Frame({0, 0, titleBlockWidth, titleBlockHeight});
  AddChanges(form);
  AddSignatures(form, block);
  AddNames(form, block, scaleNote);
  return form.Picture();
}

TitleBlockChoice LoadTitleBlock(SettingsService& settings) {
  TitleBlockChoice choice;
  choice.Shown = settings.Get(titleSection, shownKey, BooleanToText(false)) == BooleanToText(true);
  for (const KeptField& field : keptFields) {
    choice.Block.*field.Text = settings.Get(titleSection, field.Key, field.Usual);
  }
  return choice;
}

void StoreTitleBlock(SettingsService& settings, const TitleBlockChoice& choice) {
  settings.Set(titleSection, shownKey, BooleanToText(choice.Shown));
  for (const KeptField& field : keptFields) {
    settings.Set(titleSection, field.Key, choice.Block.*field.Text);
  }
}

}  // namespace trelonit
