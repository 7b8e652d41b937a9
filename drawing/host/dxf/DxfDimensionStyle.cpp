#include <variant>

#include "drawing/host/DimensionTable.h"
#include "drawing/host/dxf/DxfParts.h"

namespace trelonit {

namespace {

constexpr int textInsideCode = 174;

/// Group codes of extended data.
enum ExtendedCode : int {
  extendedText = 1000,
  extendedApplication = 1001,
  extendedBrace = 1002,
  extendedHandle = 1005,
  extendedNumber = 1040,
  extendedWhole = 1070,
};

/// The values of a style, under their own codes.
class StyleValues {
 public:
  explicit StyleValues(DxfPairs& out) : out_(out) {}
  void Whole(int code, Long value) { out_.Whole(code, value); }
  void Number(int code, double value) { out_.Number(code, value); }
  void Handle(int code, DxfHandle handle) { out_.Handle(code, handle); }

 private:
  DxfPairs& out_;
};

/// The values of a dimension of its own, each after its code.
class OverrideValues {
 public:
  void Whole(int code, Long value) { Coded(code).Whole(extendedWhole, value); }
  void Number(int code, double value) { Coded(code).Number(extendedNumber, value); }
  void Handle(int code, DxfHandle handle) { Coded(code).Handle(extendedHandle, handle); }
  const DxfPairs& Collected() const { return values_; }

 private:
  DxfPairs& Coded(int code) {
    values_.Whole(extendedWhole, code);
    return values_;
  }
  DxfPairs values_;
};

template <class Values>
void WriteVariable(Values& values, const DxfParts& parts, const DimensionVariable& variable,
                   const DimensionVariables& variables) {
  if (const auto* number = std::get_if<double DimensionVariables::*>(&variable.Field)) {
    values.Number(variable.Code, variables.**number);
  } else if (const auto* whole = std::get_if<Long DimensionVariables::*>(&variable.Field)) {
    values.Whole(variable.Code, variables.**whole);
  } else if (std::get<std::string DimensionVariables::*>(variable.Field) ==
             &DimensionVariables::DIMTXSTY) {
    values.Handle(variable.Code, parts.TextStyleHandle(variables.DIMTXSTY));
  }
}

bool SameValue(const DimensionVariable& variable, const DimensionVariables& variables1,
               const DimensionVariables& variables2) {
  return std::visit([&](auto field) { return variables1.*field == variables2.*field; },
                    variable.Field);
}

}  // namespace

void WriteStyleVariables(DxfParts& parts, const DimensionVariables& variables) {
  StyleValues values(parts.Out);
  for (const DimensionVariable& variable : dimensionTable) {
    WriteVariable(values, parts, variable, variables);
  }
  // What the pictures of dimensions do without asking.
  constexpr Long decimalLengths = 2;
  constexpr Long keepAllZeros = 0;
  values.Whole(74, 0);  // text outside follows the line
  values.Whole(78, keepAllZeros);
  values.Whole(172, 1);  // the line is drawn also with the arrows outside
  values.Whole(textInsideCode, 0);
  values.Whole(277, decimalLengths);
  values.Whole(278, '.');
}

void WriteStyleOverrides(DxfParts& parts, const DrawingDimension& dimension) {
  const DimensionVariables own = EffectiveVariables(dimension);
  const DimensionVariables& styled = FindDimStyle(parts.Source, dimension.Style)->Variables;
  OverrideValues values;
  for (const DimensionVariable& variable : dimensionTable) {
    if (!SameValue(variable, own, styled)) {
      WriteVariable(values, parts, variable, own);
    }
  }
  if (dimension.TextInside) {
    values.Whole(textInsideCode, 1);
  }
  if (values.Collected().Written().empty()) {
    return;
  }
  parts.Out.Text(extendedApplication, "ACAD");
  parts.Out.Text(extendedText, "DSTYLE");
  parts.Out.Text(extendedBrace, "{");
  parts.Out.Append(values.Collected());
  parts.Out.Text(extendedBrace, "}");
}

}  // namespace trelonit
