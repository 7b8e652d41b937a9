#include "resources/generator/SvgPath.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>

namespace trelonit::packer {

namespace {

struct Point {
  double X = 0;
  double Y = 0;
};

class NumberReader {
 public:
  explicit NumberReader(std::string_view text) : rest_(text) {}

  /// Past blanks and commas.
  bool AtEnd() {
    while (!rest_.empty() &&
           (std::isspace(static_cast<unsigned char>(rest_.front())) != 0 || rest_.front() == ',')) {
      rest_.remove_prefix(1);
    }
    return rest_.empty();
  }
  bool AtLetter() {
    return !AtEnd() && std::isalpha(static_cast<unsigned char>(rest_.front())) != 0;
  }
  char Letter() {
    const char letter = rest_.front();
    rest_.remove_prefix(1);
    return letter;
  }
  double Number() {
    double value = 0;
    if (AtEnd()) {
      throw std::runtime_error("a number is missing");
    }
    const auto [end, fault] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (fault != std::errc()) {
      throw std::runtime_error("no number: " + std::string(rest_.substr(0, 8)));
    }
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

 private:
  std::string_view rest_;
};

/// Walks along path data and notes where it comes.
class PathWalk {
 public:
  explicit PathWalk(std::string_view data) : reader_(data) {}

  SvgPath Run() {
    char command = 0;
    while (!reader_.AtEnd()) {
      if (reader_.AtLetter()) {
        command = reader_.Letter();
      } else if (command == 0 || command == 'Z' || command == 'z') {
        throw std::runtime_error("path data without a command");
      }
      Step(command);
      // Further points of a move are lines.
      command = command == 'M' ? 'L' : command == 'm' ? 'l' : command;
    }
    return std::move(path_);
  }

 private:
  void Step(char command) {
    const bool relative = std::islower(static_cast<unsigned char>(command)) != 0;
    const Point from = relative ? at_ : Point{};
    switch (std::toupper(static_cast<unsigned char>(command))) {
      case 'M':
        start_ = Put('M', Read(from));
        return;
      case 'L':
        Put('L', Read(from));
        return;
      case 'H':
        Put('L', {from.X + reader_.Number(), at_.Y});
        return;
      case 'V':
        Put('L', {at_.X, from.Y + reader_.Number()});
        return;
      case 'C': {
        const Point first = Read(from);
        const Point second = Read(from);
        Curve(first, second, Read(from));
        return;
      }
      case 'A':
        Arc(from);
        return;
      case 'Z':
        path_.Verbs += 'Z';
        at_ = start_;
        return;
      default:
        throw std::runtime_error(std::string("an unknown command of a path: ") + command);
    }
  }

  Point Read(Point from) {
    const double x = reader_.Number();
    return {from.X + x, from.Y + reader_.Number()};
  }

  void Note(Point point) { path_.Numbers.insert(path_.Numbers.end(), {point.X, point.Y}); }

  Point Put(char verb, Point to) {
    path_.Verbs += verb;
    Note(to);
    return at_ = to;
  }

  void Curve(Point first, Point second, Point to) {
    path_.Verbs += 'C';
    Note(first);
    Note(second);
    Note(to);
    at_ = to;
  }

  /// Arcs of circles, as the drawings have them: the centre lies on the line that halves the chord.
  void Arc(Point from) {
    const double radius = reader_.Number();
    if (reader_.Number() != radius) {
      throw std::runtime_error("an arc of an ellipse");
    }
    reader_.Number();  // the turn of an ellipse
    const bool large = reader_.Number() != 0;
    const bool clockwise = reader_.Number() != 0;
    const Point a = at_;
    const Point b = Read(from);
    const double half = std::hypot(b.X - a.X, b.Y - a.Y) / 2;
    if (!(half > 0)) {
      return;
    }
    const double away = std::sqrt(std::max(radius * radius - half * half, 0.0)) / (2 * half);
    const double side = large == clockwise ? -away : away;
    const Point centre{(a.X + b.X) / 2 - side * (b.Y - a.Y), (a.Y + b.Y) / 2 + side * (b.X - a.X)};
    const double real = std::hypot(a.X - centre.X, a.Y - centre.Y);
    const double first = std::atan2(a.Y - centre.Y, a.X - centre.X);
    double turn = std::atan2(b.Y - centre.Y, b.X - centre.X) - first;
    if (clockwise && turn < 0) {
      turn += 2 * std::numbers::pi;
    } else if (!clockwise && turn > 0) {
      turn -= 2 * std::numbers::pi;
    }
    // A curve for each quarter of a turn at most; a whole quarter stays one.
    const int curves = static_cast<int>(std::ceil(std::abs(turn) / (std::numbers::pi / 2 + 0.001)));
    const double step = turn / curves;
    const double reach = 4.0 / 3.0 * std::tan(step / 4) * real;
    for (int curve = 0; curve < curves; ++curve) {
      const double here = first + curve * step;
      const double there = here + step;
      const Point to{centre.X + real * std::cos(there), centre.Y + real * std::sin(there)};
      Curve({at_.X - reach * std::sin(here), at_.Y + reach * std::cos(here)},
            {to.X + reach * std::sin(there), to.Y - reach * std::cos(there)}, to);
    }
    at_ = b;
  }

  NumberReader reader_;
  SvgPath path_;
  Point at_;
  Point start_;
};

}  // namespace

std::vector<double> ReadNumbers(std::string_view text) {
  std::vector<double> numbers;
  for (NumberReader reader(text); !reader.AtEnd();) {
    numbers.push_back(reader.Number());
  }
  return numbers;
}

SvgPath ReadPath(std::string_view data) {
  return PathWalk(data).Run();
}

}  // namespace trelonit::packer
