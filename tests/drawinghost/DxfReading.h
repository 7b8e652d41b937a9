#pragma once

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace trelonit::test {

struct DxfPair {
  int Code = 0;
  std::string Value;
};

/// An object of a drawing file: its kind and the pairs up to the next one.
struct DxfObject {
  std::string Section;
  std::string Kind;
  std::vector<DxfPair> Pairs;

  bool Has(int code) const {
    return std::any_of(Pairs.begin(), Pairs.end(), [&](auto& pair) { return pair.Code == code; });
  }
  /// The first value under the code.
  std::string Text(int code) const {
    for (const DxfPair& pair : Pairs) {
      if (pair.Code == code) {
        return pair.Value;
      }
    }
    throw std::out_of_range(Kind + " without " + std::to_string(code));
  }
  double Number(int code) const { return std::strtod(Text(code).c_str(), nullptr); }
  std::string Handle() const { return Text(Kind == "DIMSTYLE" ? 105 : 5); }
};

struct DxfFile {
  /// The values after each header variable, without codes.
  std::map<std::string, std::vector<std::string>> Header;
  /// Everything behind the header: tables, records, blocks, entities, dictionaries.
  std::vector<DxfObject> Objects;

  std::vector<DxfObject> Of(const std::string& section, const std::string& kind) const {
    std::vector<DxfObject> found;
    std::copy_if(Objects.begin(), Objects.end(), std::back_inserter(found),
                 [&](auto& object) { return object.Section == section && object.Kind == kind; });
    return found;
  }
  /// The record of a table by its name.
  DxfObject Record(const std::string& kind, const std::string& name) const {
    for (const DxfObject& record : Of("TABLES", kind)) {
      if (record.Text(2) == name) {
        return record;
      }
    }
    throw std::out_of_range(kind + " " + name);
  }
};

inline std::vector<DxfPair> ReadPairs(const std::string& text) {
  std::vector<DxfPair> pairs;
  std::istringstream lines(text);
  std::string code;
  std::string value;
  while (std::getline(lines, code)) {
    if (!std::getline(lines, value)) {
      throw std::runtime_error("a code without a value");
    }
    std::size_t used = 0;
    pairs.push_back({std::stoi(code, &used), value});
    if (used != code.size()) {
      throw std::runtime_error("no code: " + code);
    }
  }
  return pairs;
}

inline DxfFile ReadDxf(const std::string& text) {
  DxfFile file;
  std::string section;
  std::string variable;
  const std::vector<DxfPair> pairs = ReadPairs(text);
  for (std::size_t place = 0; place < pairs.size(); ++place) {
    const DxfPair& pair = pairs[place];
    if (pair.Code == 0 && pair.Value == "SECTION") {
      section = pairs.at(++place).Value;
    } else if (pair.Code == 0 && pair.Value == "ENDSEC") {
      section.clear();
    } else if (section == "HEADER") {
      if (pair.Code == 9) {
        variable = pair.Value;
      } else {
        file.Header[variable].push_back(pair.Value);
      }
    } else if (pair.Code == 0) {
      file.Objects.push_back({section, pair.Value, {}});
    } else {
      file.Objects.back().Pairs.push_back(pair);
    }
  }
  return file;
}

}  // namespace trelonit::test
