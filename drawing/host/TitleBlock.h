#pragma once

#include <string>

#include "drawing/host/Drawing.h"
#include "platform/system/Services.h"

namespace trelonit {

/// What stands in the title block of a sheet, as the user fills it. An empty field stays empty on
/// paper, to be filled by hand.
struct TitleBlock {
  std::string Code;          ///< designation of the document
  std::string Project;       ///< enterprise or complex
  std::string Building;      ///< building or structure
  std::string Images;        ///< what the sheet shows
  std::string Organisation;  ///< who drew it
  std::string Author;
  std::string Checker;
  std::string Date;
  std::string Stage;
  std::string Sheet;
  std::string Sheets;

  friend bool operator==(const TitleBlock&, const TitleBlock&) = default;
};

/// Form 3 of GOST R 21.101, the one of drawings, in millimetres.
constexpr double titleBlockWidth = 185;
constexpr double titleBlockHeight = 55;

/// The block as it stands on a sheet of the given scale note, in millimetres: its lower right
/// corner is at the point, Y goes upwards. Long texts take two lines where their field has room for
/// them, then narrower letters.
Drawing PictureOfTitleBlock(const TitleBlock& block, const std::string& scaleNote,
                            PlacePoint corner);

/// The block that the user filled last, and whether sheets have one.
struct TitleBlockChoice {
  bool Shown = false;
  TitleBlock Block;

  friend bool operator==(const TitleBlockChoice&, const TitleBlockChoice&) = default;
};
TitleBlockChoice LoadTitleBlock(SettingsService& settings);
void StoreTitleBlock(SettingsService& settings, const TitleBlockChoice& choice);

}  // namespace trelonit
