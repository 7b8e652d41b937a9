#include <algorithm>

#include "drawing/host/dxf/DxfParts.h"

namespace trelonit {

namespace {

class TableWriter {
 public:
  TableWriter(DxfParts& parts, std::string_view kind, std::size_t records)
      : parts_(parts), kind_(kind), table_(parts.NewHandle()) {
    parts.Out.Text(0, "TABLE");
    parts.Out.Text(2, kind);
    parts.Out.Handle(5, table_);
    parts.Out.Handle(330, 0);
    parts.Out.Text(100, "AcDbSymbolTable");
    parts.Out.Whole(70, static_cast<std::int64_t>(records));
  }

  void Begin(DxfHandle handle, std::string_view subclass, std::string_view name) {
    // A dimension style's own handle has a code of its own.
    const int handleCode = kind_ == "DIMSTYLE" ? 105 : 5;
    parts_.Out.Text(0, kind_);
    parts_.Out.Handle(handleCode, handle);
    parts_.Out.Handle(330, table_);
    parts_.Out.Text(100, "AcDbSymbolTableRecord");
    parts_.Out.Text(100, subclass);
    parts_.Out.Text(2, DxfName(name));
  }
  void Begin(std::string_view subclass, std::string_view name) {
    Begin(parts_.NewHandle(), subclass, name);
  }
  void End() { parts_.Out.Text(0, "ENDTAB"); }

 private:
  DxfParts& parts_;
  std::string_view kind_;
  DxfHandle table_;
};

/// The view that a reader opens with: all of the drawing.
void WriteView(DxfParts& parts) {
  TableWriter table(parts, "VPORT", 1);
  table.Begin("AcDbViewportTableRecord", "*ACTIVE");
  const PlacePoint& least = parts.Bounds.Least;
  const PlacePoint& greatest = parts.Bounds.Greatest;
  const PlacePoint middle{least.X + (greatest.X - least.X) / 2,
                          least.Y + (greatest.Y - least.Y) / 2};
  constexpr double aspect = 1.5;
  constexpr double margin = 1.05;
  const double height = std::max(greatest.Y - least.Y, (greatest.X - least.X) / aspect) * margin;
  DxfPairs& out = parts.Out;
  out.Whole(70, 0);
  out.PlanePoint(10, {0, 0});
  out.PlanePoint(11, {1, 1});
  out.PlanePoint(12, middle);
  out.PlanePoint(13, {0, 0});
  out.PlanePoint(14, {10, 10});
  out.PlanePoint(15, {10, 10});
  out.Point(16, {0, 0, 1});
  out.Point(17, {0, 0, 0});
  out.Number(40, height > 0 ? height : 1);
  out.Number(41, aspect);
  out.Number(42, 50);
  table.End();
}

void WriteLinetypes(DxfParts& parts) {
  TableWriter table(parts, "LTYPE", 3);
  for (const std::string_view name : {"BYBLOCK", "BYLAYER", "CONTINUOUS"}) {
    table.Begin("AcDbLinetypeTableRecord", name);
    parts.Out.Whole(70, 0);
    parts.Out.Text(3, "");
    parts.Out.Whole(72, 'A');  // the only alignment of dashes that there is
    parts.Out.Whole(73, 0);
    parts.Out.Number(40, 0);
  }
  table.End();
}

void WriteLayers(DxfParts& parts) {
  TableWriter table(parts, "LAYER", parts.Source.Layers.size());
  for (const DrawingLayer& layer : parts.Source.Layers) {
    constexpr int frozen = 1;
    constexpr int locked = 4;
    constexpr int blackOrWhite = 7;
    table.Begin("AcDbLayerTableRecord", layer.Name);
    parts.Out.Whole(70, (layer.Freeze ? frozen : 0) + (layer.Lock ? locked : 0));
    // A layer that is off has its colour below zero.
    parts.Out.Whole(62, layer.LayerOn ? blackOrWhite : -blackOrWhite);
    parts.Out.Text(6, DxfName(layer.Linetype));
    parts.Out.Whole(290, layer.Plottable ? 1 : 0);
    parts.Out.Whole(370, layer.Lineweight);
  }
  table.End();
}

void WriteTextStyles(DxfParts& parts) {
  TableWriter table(parts, "STYLE", parts.Source.TextStyles.size());
  DxfPairs& out = parts.Out;
  for (std::size_t place = 0; place < parts.TextStyles.size(); ++place) {
    const DrawingTextStyle& style = parts.Source.TextStyles[place];
    table.Begin(parts.TextStyles[place], "AcDbTextStyleTableRecord", style.Name);
    out.Whole(70, 0);
    out.Number(40, 0);
    out.Number(41, style.Width);
    out.Angle(50, style.ObliqueAngle);
    out.Whole(71, 0);
    out.Number(42, 1);
    // Has Russian letters and is wherever the format is read.
    out.Text(3, "arial.ttf");
    out.Text(4, "");
  }
  table.End();
}

void WriteApplications(DxfParts& parts) {
  TableWriter table(parts, "APPID", 1);
  table.Begin("AcDbRegAppTableRecord", "ACAD");
  parts.Out.Whole(70, 0);
  table.End();
}

void WriteEmptyTable(DxfParts& parts, std::string_view kind) {
  TableWriter(parts, kind, 0).End();
}

void WriteDimStyles(DxfParts& parts) {
  TableWriter table(parts, "DIMSTYLE", parts.Source.DimStyles.size());
  DxfPairs& out = parts.Out;
  out.Text(100, "AcDbDimStyleTable");
  out.Whole(71, 0);
  for (const DrawingDimStyle& style : parts.Source.DimStyles) {
    table.Begin("AcDbDimStyleTableRecord", style.Name);
    out.Whole(70, 0);
    WriteStyleVariables(parts, style.Variables);
  }
  table.End();
}

void WriteBlockRecords(DxfParts& parts) {
  constexpr std::size_t spaces = 2;
  TableWriter table(parts, "BLOCK_RECORD", spaces + parts.DimensionBlocks.size());
  const auto write = [&](DxfHandle handle, const std::string& name) {
    table.Begin(handle, "AcDbBlockTableRecord", name);
    parts.Out.Handle(340, 0);
  };
  write(parts.ModelSpace, "*MODEL_SPACE");
  write(parts.PaperSpace, "*PAPER_SPACE");
  for (std::size_t dimension = 0; dimension < parts.DimensionBlocks.size(); ++dimension) {
    write(parts.DimensionBlocks[dimension], DimensionBlockName(dimension));
  }
  table.End();
}

}  // namespace

void WriteTables(DxfParts& parts) {
  WriteView(parts);
  WriteLinetypes(parts);
  WriteLayers(parts);
  WriteTextStyles(parts);
  WriteEmptyTable(parts, "VIEW");
  WriteEmptyTable(parts, "UCS");
  WriteApplications(parts);
  WriteDimStyles(parts);
  WriteBlockRecords(parts);
}

}  // namespace trelonit
