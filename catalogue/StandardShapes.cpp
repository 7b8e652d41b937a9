#include "catalogue/StandardShapes.h"

#include "platform/values/BoundedArray.h"

namespace trelonit {

double CornersOf30245of2003(double wall) {
  constexpr double lastThinWall = 6;
  constexpr double lastMiddleWall = 10;
  return wall <= lastThinWall ? 2 : wall <= lastMiddleWall ? 2.5 : 3;
}

SectionShape ConcentricTubeShape(const ProfileRec& record, double outerRadiusInWalls) {
  const Real wall = record.s;
  return RectangularTubeShape(record, outerRadiusInWalls * wall, (outerRadiusInWalls - 1) * wall);
}

SectionShape ShapeOfStandard(Long standard, const ProfileRec& record) {
  switch (standard) {
    case 1:
    case 2:
      return {AngleOutline(record), {}};
    case 3:
      return {ChannelOutline(record, 0), {}};
    case 4:
      return {ChannelOutline(record, slopeOfChannels), {}};
    case 5:
      return {IOutline(record, slopeOfBeams), {}};
    case 6:
    case 7:
      return {IOutline(record, 0), {}};
    case 8:
    case 9:
      return {TeeOutline(record), {}};
    case 10:
    case 11:
      return {BentChannelOutline(record), {}};
    case 12:
    case 13:
      return ConcentricTubeShape(record, cornersOf30245of94);
    case 14:
      return RoundTubeShape(record);
    case 15:
    case 16:
      return ConcentricTubeShape(record, CornersOf30245of2003(record.s));
    case 17:
    case 19:
      return ConcentricTubeShape(record, cornersOf12336);
    case 18:
    case 20:
    case 21:
      return RectangularTubeShape(record, 0, 0);
    case 22:
      return ConcentricTubeShape(record, cornersOf8645);
    default:
      RaiseSubscriptOutOfRange();
  }
}

}  // namespace trelonit
