#include <variant>

#include "drawing/host/DimensionTable.h"
#include "drawing/host/dxf/DxfParts.h"

namespace trelonit {

namespace {

class HeaderWriter {
 public:
  explicit HeaderWriter(DxfPairs& out) : out_(out) {}

  DxfPairs& Variable(std::string_view name) {
    constexpr int variableName = 9;
    out_.Text(variableName, "$" + std::string(name));
    return out_;
  }
  void Text(std::string_view name, int code, std::string_view value) {
    Variable(name).Text(code, value);
  }
  void Whole(std::string_view name, Long value) {
    constexpr int wholeNumber = 70;
    Variable(name).Whole(wholeNumber, value);
  }
  void Number(std::string_view name, double value) {
    constexpr int number = 40;
    Variable(name).Number(number, value);
  }
  void Point(std::string_view name, const PlacePoint& point) { Variable(name).Point(10, point); }
  void PlanePoint(std::string_view name, const PlacePoint& point) {
    Variable(name).PlanePoint(10, point);
  }

 private:
  DxfPairs& out_;
};

void WriteDimensionVariables(HeaderWriter& header, const DimensionVariables& variables) {
  for (const DimensionVariable& variable : dimensionTable) {
    if (const auto* number = std::get_if<double DimensionVariables::*>(&variable.Field)) {
      header.Number(variable.Name, variables.**number);
    } else if (const auto* whole = std::get_if<Long DimensionVariables::*>(&variable.Field)) {
      header.Whole(variable.Name, variables.**whole);
    } else {
      constexpr int styleName = 7;
      constexpr int text = 1;
      const auto field = std::get<std::string DimensionVariables::*>(variable.Field);
      header.Text(variable.Name, field == &DimensionVariables::DIMTXSTY ? styleName : text,
                  DxfName(variables.*field));
    }
  }
}

}  // namespace

void WriteHeader(const DxfParts& parts, DxfPairs& out) {
  const Drawing& drawing = parts.Source;
  HeaderWriter header(out);
  header.Text("ACADVER", 1, "AC1021");
  // Says nothing in this version, whose texts are UTF-8; older readers look at it all the same.
  header.Text("DWGCODEPAGE", 3, "ANSI_1251");
  header.Text("HANDSEED", 5, HandleText(parts.FreeHandle()));
  header.PlanePoint("LIMMIN", parts.Bounds.Least);
  header.PlanePoint("LIMMAX", parts.Bounds.Greatest);
  header.Point("EXTMIN", parts.Bounds.Least);
  header.Point("EXTMAX", parts.Bounds.Greatest);
  // The sheet that a reader offers for a print: A3, lying.
  header.PlanePoint("PLIMMIN", {0, 0});
  header.PlanePoint("PLIMMAX", {420, 297});
  constexpr Long millimetres = 4;
  header.Whole("INSUNITS", millimetres);
  header.Whole("MEASUREMENT", 1);
  constexpr Long decimalLengths = 2;
  header.Whole("LUNITS", decimalLengths);
  constexpr int flag = 290;
  header.Variable("LWDISPLAY").Whole(flag, 1);
  header.Text("CLAYER", 8, DxfName(drawing.ActiveLayer));
  header.Text("TEXTSTYLE", 7, DxfName(drawing.ActiveTextStyle));
  header.Text("DIMSTYLE", 2, DxfName(drawing.ActiveDimStyle));
  WriteDimensionVariables(header, drawing.Variables);
}

}  // namespace trelonit
