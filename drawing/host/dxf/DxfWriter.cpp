#include "drawing/host/dxf/DxfWriter.h"

#include <string_view>

#include "drawing/host/dxf/DxfParts.h"

namespace trelonit {

namespace {

void BeginSection(DxfPairs& out, std::string_view name) {
  out.Text(0, "SECTION");
  out.Text(2, name);
}

void EndSection(DxfPairs& out) {
  out.Text(0, "ENDSEC");
}

/// A section whose content the routine writes.
template <class Content>
void WriteSection(DxfPairs& out, std::string_view name, Content&& content) {
  BeginSection(out, name);
  content();
  EndSection(out);
}

void WriteDictionaries(DxfParts& parts) {
  DxfPairs& out = parts.Out;
  const DxfHandle groups = parts.NewHandle();
  out.Text(0, "DICTIONARY");
  out.Handle(5, parts.Root);
  out.Handle(330, 0);
  out.Text(100, "AcDbDictionary");
  out.Whole(281, 1);
  out.Text(3, "ACAD_GROUP");
  out.Handle(350, groups);

  out.Text(0, "DICTIONARY");
  out.Handle(5, groups);
  out.Handle(330, parts.Root);
  out.Text(100, "AcDbDictionary");
  out.Whole(281, 1);
}

}  // namespace

std::string WriteDxf(const Drawing& drawing) {
  DxfParts parts(drawing);
  DxfPairs& out = parts.Out;
  WriteSection(out, "CLASSES", [] {});
  WriteSection(out, "TABLES", [&] { WriteTables(parts); });
  WriteSection(out, "BLOCKS", [&] { WriteBlocks(parts); });
  WriteSection(out, "ENTITIES", [&] { WriteEntities(parts); });
  WriteSection(out, "OBJECTS", [&] { WriteDictionaries(parts); });
  out.Text(0, "EOF");

  // The header names the first handle that is free, so it is made last.
  DxfPairs header;
  WriteSection(header, "HEADER", [&] { WriteHeader(parts, header); });
  return header.Written() + out.Written();
}

}  // namespace trelonit
