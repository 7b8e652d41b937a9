#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/CodePage1251.h"
#include "tests/workstation/main/Desk.h"
#include "workstation/design/ProjectFile.h"

namespace trelonit::test {

/// The values of a project file in order, without quotes and line ends, as UTF-8.
using ProjectValues = std::vector<std::string>;

/// Numbers of the lines, from 1.
enum ProjectLine : std::size_t {
  lineHeader = 1,
  lineTreloType = 2,
  lineUpPoyasBrace = 3,
  lineDownPoyasBrace = 4,
  lineLengthF = 5,
  lineHight = 6,
  lineLenOporn = 7,
  linePanelNum = 8,
  lineSteelName = 9,
  lineRy = 10,
  lineDensity = 11,
  lineModulYung = 12,
  lineLimitFlex = 13,
  lineNadegnost = 14,
  lineUsloviyaRabot = 15,
  lineProgibOn = 16,
  lineLenLim = 17,
  lineProgibUpper = 18,
  lineActiveGroup = 19,
  lineUpPoyas = 20,
  lineDwnPoyas = 25,
  lineOpornRaskos = 30,
  lineRaskos = 35,
  lineStoyka = 40,
  lineDinloadOn = 45,
  lineOwnWeightOn = 46,
  lineAllPanelsOn = 47,
  linePForceTool = 48,
  lineUpPForce = 49,
  lineUpDistForce = 50,
  lineDwnPForce = 51,
  lineDwnDistForce = 52,
  lineReservedFlag = 53,
};

/// The values of a project saved right after the start.
inline ProjectValues StartUpValues(const std::string& point = ".") {
  const std::string tenZeros = "0;0;0;0;0;0;0;0;0;0";
  ProjectValues values{"Trelo calculation save file",
                       "1",
                       "2",
                       "2",
                       "20",
                       "1" + point + "5",
                       "2",
                       "10",
                       "Сталь С245 - лист от 2 до 20 мм",
                       "240",
                       "7" + point + "85",
                       "210000",
                       "150",
                       "1",
                       "0" + point + "9",
                       "0",
                       "1 / 120",
                       "1",
                       "1"};
  for (int section = 1; section <= 5; ++section) {
    values.insert(values.end(), {"1", "1", "0", "False", "1"});
  }
  values.insert(values.end(), {"0", "0", "0", "1", tenZeros + ";0", tenZeros, tenZeros + ";0",
                               tenZeros, "False"});
  return values;
}

inline ProjectValues With(ProjectValues values, std::size_t line, const std::string& value) {
  values.at(line - 1) = value;
  return values;
}

/// The bytes of the file with these values.
inline std::string ProjectBytes(const ProjectValues& values) {
  std::string bytes;
  for (const std::string& value : values) {
    bytes += '"' + EncodeCodePage1251(value) + "\"\r\n";
  }
  return bytes;
}

/// The values of a file in which every line is quoted and ended as it must be.
inline ProjectValues ValuesOf(std::string_view bytes) {
  ProjectValues values;
  while (!bytes.empty()) {
    const std::size_t end = bytes.find("\r\n");
    if (end == std::string_view::npos || end < 2 || bytes[0] != '"' || bytes[end - 1] != '"') {
      throw std::logic_error("no quoted line: " + std::string(bytes.substr(0, end)));
    }
    values.push_back(DecodeCodePage1251(bytes.substr(1, end - 2)));
    bytes.remove_prefix(end + 2);
  }
  return values;
}

/// A number so that two texts are equal only when the numbers are.
inline std::string Exact(double value) {
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.17g", value);
  return {text.data(), static_cast<std::size_t>(length)};
}

inline std::string Exact(const BoundedArray<double>& values) {
  if (!values.IsAllocated()) {
    return "unallocated";
  }
  std::string text = "from " + std::to_string(values.LowerBound()) + ":";
  for (const double value : values) {
    text += " " + Exact(value);
  }
  return text;
}

/// A section as a line; its catalogue record by the name.
inline std::string Described(const SectionRec& section) {
  return std::to_string(section.SizeIdx) + ", " + std::to_string(section.TypeIdx) + ", " +
         Exact(section.Gdist) + ", " + (section.Paired ? "paired" : "single") + ", " +
         std::to_string(section.Layout) + ", [" + section.Profile.Name.Trimmed() + "] " +
         Exact(section.Profile.A);
}

inline std::vector<std::string> Described(const LoadArrays& loads) {
  return {"UpPForce " + Exact(loads.UpPForce), "UpDistForce " + Exact(loads.UpDistForce),
          "DwnPForce " + Exact(loads.DwnPForce), "DwnDistForce " + Exact(loads.DwnDistForce)};
}

/// All fields of a project as lines, so that a difference can be read.
inline std::vector<std::string> Described(const DesignInputs& record) {
  const auto number = [](const char* name, double value) {
    return std::string(name) + " " + Exact(value);
  };
  std::vector<std::string> lines{number("TreloType", record.TreloType),
                                 number("UpPoyasBrace", record.UpPoyasBrace),
                                 number("DownPoyasBrace", record.DownPoyasBrace),
                                 number("LengthF", record.LengthF),
                                 number("Hight", record.Hight),
                                 number("LenOporn", record.LenOporn),
                                 number("PanelNum", record.PanelNum),
                                 "SteelName [" + record.SteelName + "]",
                                 number("Ry", record.Ry),
                                 number("Density", record.Density),
                                 number("ModulYung", record.ModulYung),
                                 number("LimitFlex", record.LimitFlex),
                                 number("Nadegnost", record.Nadegnost),
                                 number("UsloviyaRabot", record.UsloviyaRabot),
                                 number("ProgibOn", record.ProgibOn),
                                 "LenLim [" + record.LenLim + "]",
                                 number("ProgibUpper", record.ProgibUpper),
                                 number("ActiveGroup", record.ActiveGroup)};
  for (Long place = 1; place <= sectionCount; ++place) {
    lines.push_back("section " + std::to_string(place) + ": " +
                    Described(record.ElementSection[place]));
  }
  lines.insert(lines.end(),
               {number("DinloadOn", record.DinloadOn), number("OwnWeightOn", record.OwnWeightOn),
                number("AllPanelsOn", record.AllPanelsOn), number("PForceTool", record.PForceTool),
                record.ReservedFlag ? "ReservedFlag" : "no ReservedFlag"});
  for (const std::string& line : Described(record.Loads)) {
    lines.push_back(line);
  }
  return lines;
}

constexpr const char* projectPath = "/projects/roof.tsav";

/// Saves under a name that is new.
inline std::string SavedBytes(Desk& desk, frmMain& form) {
  desk.Outside.Files.Content.erase(projectPath);
  desk.Outside.Dialogs.Names = {projectPath};
  if (!form.SaveParam_Click()) {
    throw std::logic_error("not saved");
  }
  return desk.Outside.Files.Content.at(projectPath);
}

/// Restores a file with these bytes; the messages of it stay to be taken.
inline bool RestoreBytes(Desk& desk, frmMain& form, const std::string& bytes) {
  desk.Outside.Files.Content[projectPath] = bytes;
  desk.Outside.Dialogs.Names = {projectPath};
  return form.Restore_Click();
}

/// What a file that cannot be opened, for reading or for writing, is told with.
inline Message OpenFailure(const std::string& description) {
  return {"WriteApplParameters",
          "Ошибка создания файла для записи ! err discription : \n" + description,
          MessageStyle::Critical};
}

inline Message LineCountMessage() {
  return {"ReadApplParameters",
          "Ошибка чтения файла сохранения.\nколличество строк не соответствует ожидаемому!",
          MessageStyle::Critical};
}

inline Message HeaderMessage() {
  return {"", "Ошибка считывания первой строки файла сохранения !", MessageStyle::Critical};
}

/// The form after its start, as the reader of files that a test makes.
class ProjectReading : public ::testing::Test {
 protected:
  DesignInputs Read(const std::string& bytes) {
    desk.Outside.Files.Content[projectPath] = bytes;
    return ReadApplParameters(projectPath, form.Model.ProfileTypes, desk.Outside.Bundle());
  }
  DesignInputs Read(const ProjectValues& values) { return Read(ProjectBytes(values)); }

  StartedDesk desk;
  frmMain& form = desk.Main;
};

}  // namespace trelonit::test
