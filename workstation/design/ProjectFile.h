#pragma once

#include <string>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "platform/system/Services.h"

namespace trelonit {

/// What a project file holds, in the order of its fields. Results are not in it.
struct ProjectRecord : LoadArrays {
  Integer TreloType = 0;
  Integer UpPoyasBrace = 0;
  Integer DownPoyasBrace = 0;
  double LengthF = 0;
  double Hight = 0;
  double LenOporn = 0;
  Long PanelNum = 0;
  std::string SteelName;
  double Ry = 0;
  double Density = 0;
  double ModulYung = 0;
  double LimitFlex = 0;
  double Nadegnost = 0;
  double UsloviyaRabot = 0;
  Integer ProgibOn = 0;
  std::string LenLim;
  Integer ProgibUpper = 0;
  Integer ActiveGroup = 0;
  SectionArray Sections{1, sectionCount};
  Integer DinloadOn = 0;
  Integer OwnWeightOn = 0;
  Integer AllPanelsOn = 0;
  Integer PForceTool = 0;
  bool ReservedFlag = false;
};

/// Extension of project files, without its point.
constexpr const char* projectExtension = "tsav";

/// Lines of a project file.
constexpr int projectLineCount = 53;

/// The text of a project file in code page 1251: one quoted value a line, nothing escaped.
std::string ProjectText(const ProjectRecord& record, const NumberLocale& locale);

/// Puts the project in the place of the file. A file that cannot be made is told to the user; what
/// was there before stays whole then. Returns whether the file was made.
bool WriteApplParameters(const std::string& fileName, const ProjectRecord& record,
                         const Services& services);

/// Reads a project. A damaged file never stops the reading: it gives messages and a record in which
/// the damaged fields are 0 or repeat the last text that could be read. The catalogue records of
/// the sections are fetched anew by their indices.
ProjectRecord ReadApplParameters(const std::string& fileName, const ProfileTypeArray& catalogue,
                                 const Services& services);

}  // namespace trelonit
