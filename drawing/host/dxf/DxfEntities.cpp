#include <cstdint>

#include "drawing/host/DimensionPicture.h"
#include "drawing/host/dxf/DxfParts.h"

namespace trelonit {

namespace {

/// How an alignment is written: across (72) and up (73).
struct Justification {
  int Across;
  int Up;
};

Justification JustificationOf(TextAlignment alignment) {
  constexpr int middleOfAll = 4;
  constexpr int columns = 3;
  constexpr int top = 3;
  const int number = static_cast<int>(alignment);
  const int firstOfRows = static_cast<int>(TextAlignment::TopLeft);
  if (number < firstOfRows) {
    return {.Across = alignment == TextAlignment::Middle ? middleOfAll : number, .Up = 0};
  }
  // From the top left one to the bottom right one they go row by row.
  return {.Across = (number - firstOfRows) % columns, .Up = top - (number - firstOfRows) / columns};
}

class EntityWriter {
 public:
  /// Entities of the space or block with this record.
  EntityWriter(DxfParts& parts, DxfHandle owner) : parts_(parts), out_(parts.Out), owner_(owner) {}

  void Begin(std::string_view kind, std::string_view layer) {
    out_.Text(0, kind);
    out_.Handle(5, parts_.NewHandle());
    out_.Handle(330, owner_);
    out_.Text(100, "AcDbEntity");
    out_.Text(8, DxfName(layer));
  }

  void Stroke(const PictureStroke& stroke, std::string_view layer) {
    Begin("LINE", layer);
    WriteBlockLook();
    out_.Text(100, "AcDbLine");
    out_.Point(10, stroke.Start);
    out_.Point(11, stroke.End);
  }

  void Arrow(const PictureTriangle& arrow, std::string_view layer) {
    Begin("SOLID", layer);
    WriteBlockLook();
    out_.Text(100, "AcDbTrace");
    out_.Point(10, arrow.Corners[1]);
    out_.Point(11, arrow.Corners[2]);
    out_.Point(12, arrow.Corners[0]);
    out_.Point(13, arrow.Corners[0]);
  }

  void Text(const PictureText& text, std::string_view layer) {
    const DrawingTextStyle* style = FindTextStyle(parts_.Source, text.Style);
    const Justification justification = JustificationOf(text.Alignment);
    const bool byInsertion = text.Alignment == TextAlignment::Left;
    Begin("TEXT", layer);
    WriteBlockLook();
    out_.Text(100, "AcDbText");
    out_.Point(10, BaselineStart(text, EstimatedWidth(parts_.Source, text)));
    out_.Number(40, text.Height);
    out_.Text(1, DxfContent(text.Text));
    out_.Angle(50, text.Rotation);
    out_.Number(41, style->Width);
    out_.Angle(51, style->ObliqueAngle);
    out_.Text(7, DxfName(style->Name));
    out_.Whole(72, justification.Across);
    if (!byInsertion) {
      out_.Point(11, text.Point);
    }
    out_.Text(100, "AcDbText");
    out_.Whole(73, justification.Up);
  }

  /// The number-th dimension of the drawing, whose picture stands in the block of that number.
  void Dimension(const DrawingDimension& dimension, std::size_t number) {
    constexpr int rotatedWithOwnBlock = 0 + 32;
    constexpr int middleCentre = 5;
    const PictureText text = PictureOfDimension(parts_.Source, dimension).Texts.front();
    Begin("DIMENSION", dimension.Layer);
    out_.Text(100, "AcDbDimension");
    out_.Text(2, DimensionBlockName(number));
    out_.Point(10, SecondFoot(dimension));
    out_.Point(11, text.Point);
    out_.Whole(70, rotatedWithOwnBlock);
    out_.Text(1, "");
    out_.Whole(71, middleCentre);
    out_.Number(42, MeasuredLength(dimension));
    out_.Text(3, DxfName(FindDimStyle(parts_.Source, dimension.Style)->Name));
    out_.Text(100, "AcDbAlignedDimension");
    out_.Point(13, dimension.Point1);
    out_.Point(14, dimension.Point2);
    out_.Angle(50, dimension.Rotation);
    out_.Text(100, "AcDbRotatedDimension");
    WriteStyleOverrides(parts_, dimension);
  }

  void Picture(const EntityPicture& picture, std::string_view layer) {
    for (const PictureStroke& stroke : picture.Strokes) {
      Stroke(stroke, layer);
    }
    for (const PictureTriangle& arrow : picture.Arrows) {
      Arrow(arrow, layer);
    }
    for (const PictureText& text : picture.Texts) {
      Text(text, layer);
    }
  }

 private:
  /// What lies in a block takes colour and line weight of the dimension that stands for the block.
  void WriteBlockLook() {
    if (owner_ == parts_.ModelSpace) {
      return;
    }
    constexpr int byBlock = 0;
    constexpr int weightByBlock = -2;
    out_.Whole(62, byBlock);
    out_.Whole(370, weightByBlock);
  }

  DxfParts& parts_;
  DxfPairs& out_;
  DxfHandle owner_;
};

/// The routine writes what stands in the block.
template <class Content>
void WriteBlock(DxfParts& parts, DxfHandle record, const std::string& name, int flags,
                Content&& content) {
  EntityWriter writer(parts, record);
  DxfPairs& out = parts.Out;
  writer.Begin("BLOCK", "0");
  out.Text(100, "AcDbBlockBegin");
  out.Text(2, name);
  out.Whole(70, flags);
  out.Point(10, {});
  out.Text(3, name);
  out.Text(1, "");
  content(writer);
  writer.Begin("ENDBLK", "0");
  out.Text(100, "AcDbBlockEnd");
}

}  // namespace

void WriteBlocks(DxfParts& parts) {
  constexpr int plain = 0;
  constexpr int anonymous = 1;
  const auto nothing = [](EntityWriter&) {};
  WriteBlock(parts, parts.ModelSpace, "*MODEL_SPACE", plain, nothing);
  WriteBlock(parts, parts.PaperSpace, "*PAPER_SPACE", plain, nothing);
  std::size_t number = 0;
  for (const DrawingEntity& entity : parts.Source.ModelSpace) {
    if (std::holds_alternative<DrawingDimension>(entity)) {
      WriteBlock(
          parts, parts.DimensionBlocks[number], DimensionBlockName(number), anonymous,
          [&](EntityWriter& writer) { writer.Picture(PictureOf(parts.Source, entity), "0"); });
      ++number;
    }
  }
}

void WriteEntities(DxfParts& parts) {
  EntityWriter writer(parts, parts.ModelSpace);
  std::size_t number = 0;
  for (const DrawingEntity& entity : parts.Source.ModelSpace) {
    if (const auto* dimension = std::get_if<DrawingDimension>(&entity)) {
      writer.Dimension(*dimension, number++);
    } else {
      writer.Picture(PictureOf(parts.Source, entity), LayerOf(entity));
    }
  }
}

}  // namespace trelonit
