#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <sstream>

#include "drawing/host/DrawingPicture.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "tests/drawinghost/HostDesk.h"

namespace trelonit::test {

namespace {

// What other programs make of the written files: ezdxf reads every value back, LibreCAD shows them.

/// A folder that goes with the test.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "trelonit-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::runtime_error("no folder for the test");
    }
    path_ = pattern;
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Runs the command with a time limit; its output goes into the file.
bool RunProgram(const std::string& command, const std::string& output) {
  return std::system(("timeout 60 " + command + " > '" + output + "' 2>&1").c_str()) == 0;
}

/// One drawn entity as a line of fields.
class Fields {
 public:
  Fields(const char* kind, const std::string& layer) {
    text_.imbue(std::locale::classic());
    text_.precision(17);
    text_ << kind << '\t' << layer;
  }
  template <class Value>
  Fields& Add(const Value& value) {
    text_ << '\t' << value;
    return *this;
  }
  Fields& Add(const PlacePoint& point) { return Add(point.X).Add(point.Y).Add(point.Z); }
  std::string Line() const { return text_.str() + '\n'; }

 private:
  std::ostringstream text_;
};

std::string LineOf(const DrawingLine& line) {
  return Fields("LINE", line.Layer).Add(line.Start).Add(line.End).Line();
}

std::string LineOf(const DrawingText& text) {
  return Fields("TEXT", text.Layer)
      .Add(text.TextAlignmentPoint)
      .Add(text.Height)
      .Add(text.Rotation)
      .Add(static_cast<Long>(text.Alignment))
      .Add(text.Style)
      .Add(text.Text)
      .Line();
}

std::string LineOf(const DrawingDimension& dimension) {
  return Fields("DIMENSION", dimension.Layer)
      .Add(dimension.Point1)
      .Add(dimension.Point2)
      .Add(dimension.Location)
      .Add(dimension.Rotation)
      .Add(dimension.Style)
      .Add(dimension.TextStyle)
      .Add(dimension.ArrowheadSize)
      .Add(dimension.TextGap)
      .Add(dimension.TextHeight)
      .Add(dimension.ScaleFactor)
      .Add(dimension.TextInsideAlign)
      .Add(dimension.TextInside)
      .Add(dimension.PrimaryUnitsPrecision)
      .Add(MeasuredLength(dimension))
      .Add(DimensionText(dimension))
      .Line();
}

std::string ListOf(const Drawing& drawing) {
  std::string list;
  for (const DrawingEntity& entity : drawing.ModelSpace) {
    list += std::visit([](const auto& kind) { return LineOf(kind); }, entity);
  }
  return list;
}

struct DrawnScheme {
  Long Scheme;
  Long Panels;
};

/// In the lists of tests.
void PrintTo(const DrawnScheme& drawn, std::ostream* stream) {
  *stream << "scheme " << drawn.Scheme << ", " << drawn.Panels << " panels";
}

class OtherPrograms : public testing::TestWithParam<DrawnScheme> {
 protected:
  ScratchFolder Folder;
  std::shared_ptr<Drawing> Sheet = ExportedDrawing(GetParam().Scheme, GetParam().Panels);
};

INSTANTIATE_TEST_SUITE_P(All, OtherPrograms,
                         testing::Values(DrawnScheme{1, 4}, DrawnScheme{2, 4}, DrawnScheme{3, 2},
                                         DrawnScheme{4, 4}, DrawnScheme{1, 30}, DrawnScheme{2, 30},
                                         DrawnScheme{3, 30}, DrawnScheme{4, 30}),
                         [](const auto& scheme) {
                           return "Scheme" + std::to_string(scheme.param.Scheme) + "With" +
                                  std::to_string(scheme.param.Panels) + "Panels";
                         });

TEST_P(OtherPrograms, ReadBackWhatWasDrawn) {
  ASSERT_STRNE(SYSTEM_PYTHON, "") << "needs Python with ezdxf";
  Write(Folder / "drawing.dxf", WriteDxf(*Sheet));
  Write(Folder / "list.txt", ListOf(*Sheet));
  EXPECT_TRUE(RunProgram(std::string(SYSTEM_PYTHON) + " " READ_DRAWING " '" +
                             (Folder / "drawing.dxf") + "' '" + (Folder / "list.txt") + "'",
                         Folder / "output.txt"))
      << Read(Folder / "output.txt");
}

TEST(OtherProgramsToo, TellADifferenceWhereThereIsOne) {
  ASSERT_STRNE(SYSTEM_PYTHON, "") << "needs Python with ezdxf";
  const ScratchFolder folder;
  const std::shared_ptr<Drawing> sheet = ExportedDrawing(1, 4);
  Write(folder / "list.txt", ListOf(*sheet));
  std::get<DrawingLine>(sheet->ModelSpace.at(0)).End.X += 1e-5;
  Write(folder / "drawing.dxf", WriteDxf(*sheet));
  EXPECT_FALSE(RunProgram(std::string(SYSTEM_PYTHON) + " " READ_DRAWING " '" +
                              (folder / "drawing.dxf") + "' '" + (folder / "list.txt") + "'",
                          folder / "output.txt"));
  EXPECT_EQ(Read(folder / "output.txt").rfind("1. LINE end x", 0), 0u)
      << Read(folder / "output.txt");
}

/// A printed page in shades of grey, with the place of the drawing on it.
class Page {
 public:
  static constexpr int dotsPerInch = 300;

  Page(const std::string& bytes, double scale) : scale_(scale * dotsPerInch / 25.4) {
    std::istringstream header(bytes);
    std::string format;
    int greatest = 0;
    header >> format >> width_ >> height_ >> greatest;
    if (format != "P5" || greatest != 255) {
      throw std::runtime_error("no picture");
    }
    pixels_ = bytes.substr(static_cast<std::size_t>(header.tellg()) + 1);
  }

  /// Whether something is drawn at the place, or as near as a stroke is thick.
  bool HasInk(double x, double y) const {
    const int column = Column(x);
    const int row = Row(y);
    constexpr int reach = 3;
    for (int down = -reach; down <= reach; ++down) {
      for (int right = -reach; right <= reach; ++right) {
        if (IsDark(column + right, row + down)) {
          return true;
        }
      }
    }
    return false;
  }
  /// Whether all of the page outside the box is white.
  bool IsBlankOutside(const DrawingBounds& box) const {
    std::string rest = pixels_;
    const int left = Column(box.Least.X);
    const int right = Column(box.Greatest.X);
    for (int row = Row(box.Greatest.Y); row <= Row(box.Least.Y); ++row) {
      rest.replace(Pixel(left, row), Pixel(right, row) - Pixel(left, row),
                   Pixel(right, row) - Pixel(left, row), white);
    }
    return rest.find_first_not_of(white) == std::string::npos;
  }
  bool IsDarkAt(double x, double y) const { return IsDark(Column(x), Row(y)); }

 private:
  static constexpr char white = '\xFF';

  /// The nearest ones on the page.
  int Column(double x) const {
    return std::clamp(static_cast<int>(std::lround(x * scale_)), 0, width_ - 1);
  }
  int Row(double y) const {
    return std::clamp(height_ - static_cast<int>(std::lround(y * scale_)), 0, height_ - 1);
  }
  std::size_t Pixel(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(column);
  }
  bool IsDark(int column, int row) const {
    constexpr int middleGrey = 128;
    return column >= 0 && column < width_ && row >= 0 && row < height_ &&
           static_cast<unsigned char>(pixels_[Pixel(column, row)]) < middleGrey;
  }

  double scale_;
  int width_ = 0;
  int height_ = 0;
  std::string pixels_;
};

/// The drawing farther up and to the right, so that all of it lies on the page.
void Move(Drawing& drawing, double x, double y) {
  const auto move = [&](PlacePoint& point) {
    point.X += x;
    point.Y += y;
  };
  for (DrawingEntity& entity : drawing.ModelSpace) {
    if (auto* line = std::get_if<DrawingLine>(&entity)) {
      move(line->Start);
      move(line->End);
    } else if (auto* text = std::get_if<DrawingText>(&entity)) {
      move(text->InsertionPoint);
      move(text->TextAlignmentPoint);
    } else {
      auto& dimension = std::get<DrawingDimension>(entity);
      move(dimension.Point1);
      move(dimension.Point2);
      move(dimension.Location);
    }
  }
}

void ExpectStroke(const Page& page, const PictureStroke& stroke) {
  constexpr int steps = 20;
  for (int step = 1; step < steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    EXPECT_TRUE(page.HasInk(stroke.Start.X + part * (stroke.End.X - stroke.Start.X),
                            stroke.Start.Y + part * (stroke.End.Y - stroke.Start.Y)))
        << "(" << stroke.Start.X << ", " << stroke.Start.Y << ") to (" << stroke.End.X << ", "
        << stroke.End.Y << ") at " << part;
  }
}

/// Letters cross the middle of their line, where nothing else stands.
void ExpectText(const Page& page, const Drawing& drawing, const PictureText& text) {
  const auto [lowerLeft, lowerRight, upperRight, upperLeft] = TextOutline(drawing, text);
  constexpr int columns = 200;
  constexpr int rows = 20;
  int dark = 0;
  for (int column = 0; column <= columns; ++column) {
    for (int row = rows / 3; row <= rows * 2 / 3; ++row) {
      const double right = static_cast<double>(column) / columns;
      const double up = static_cast<double>(row) / rows;
      dark +=
          page.IsDarkAt(
              lowerLeft.X + right * (lowerRight.X - lowerLeft.X) + up * (upperLeft.X - lowerLeft.X),
              lowerLeft.Y + right * (lowerRight.Y - lowerLeft.Y) + up * (upperLeft.Y - lowerLeft.Y))
              ? 1
              : 0;
    }
  }
  constexpr int fewestDots = 20;
  EXPECT_GE(dark, fewestDots) << text.Text << " at (" << text.Point.X << ", " << text.Point.Y
                              << ")";
}

TEST_P(OtherPrograms, ShowBarsTextsAndDimensionsInTheirPlaces) {
  ASSERT_STRNE(LIBRECAD, "") << "needs LibreCAD";
  ASSERT_STRNE(PDFTOPPM, "") << "needs pdftoppm";
  Move(*Sheet, 5000, 3000);
  Write(Folder / "drawing.dxf", WriteDxf(*Sheet));
  // 60 m come to 300 mm of the sheet, smaller trusses get letters of a better size.
  const double scale = GetParam().Panels > 4 ? 0.005 : 0.015;
  const std::string home = Folder / "";
  ASSERT_TRUE(RunProgram("env HOME='" + home + "' XDG_RUNTIME_DIR='" + home +
                             "' QT_QPA_PLATFORM=offscreen " LIBRECAD " dxf2pdf -m -s " +
                             std::to_string(scale) + " -t '" + home + "' '" +
                             (Folder / "drawing.dxf") + "'",
                         Folder / "output.txt"))
      << Read(Folder / "output.txt");
  ASSERT_TRUE(RunProgram(PDFTOPPM " -gray -r " + std::to_string(Page::dotsPerInch) +
                             " -singlefile '" + (Folder / "drawing.pdf") + "' '" +
                             (Folder / "page") + "'",
                         Folder / "output.txt"))
      << Read(Folder / "output.txt");
  const Page page(Read(Folder / "page.pgm"), scale);

  for (const DrawingEntity& entity : Sheet->ModelSpace) {
    const EntityPicture picture = PictureOf(*Sheet, entity);
    for (const PictureStroke& stroke : picture.Strokes) {
      ExpectStroke(page, stroke);
    }
    for (const PictureText& text : picture.Texts) {
      ExpectText(page, *Sheet, text);
    }
  }
  DrawingBounds around = BoundsOf(*Sheet);
  const double margin = 500;
  around.Least.X -= margin;
  around.Least.Y -= margin;
  around.Greatest.X += margin;
  around.Greatest.Y += margin;
  EXPECT_TRUE(page.IsBlankOutside(around));
}

}  // namespace

}  // namespace trelonit::test
