#include "tests/verification/Calculix.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace trelonit::verification {

namespace {

constexpr const char* job = "truss";
constexpr double newtonsPerTonne = 9810;
/// ccx makes a brick of each bar, with eight points where it gives stresses.
constexpr std::size_t pointsPerBar = 8;

/// Newtons, metres, pascals. The truss is plane because the third direction is held at every joint.
void WriteDeck(const std::string& name, const Truss& truss, const std::vector<double>& loads,
               const std::vector<double>& areas, double E) {
  std::ofstream deck(name);
  // ccx reads fields of 20 characters.
  deck.precision(12);
  deck << "*NODE, NSET=JOINTS\n";
  for (std::size_t joint = 0; joint < truss.Joints.size(); ++joint) {
    deck << joint + 1 << ", " << truss.Joints[joint].X << ", " << truss.Joints[joint].Y << ", 0\n";
  }
  for (std::size_t bar = 0; bar < truss.Bars.size(); ++bar) {
    deck << "*ELEMENT, TYPE=T3D2, ELSET=BAR" << bar + 1 << "\n"
         << bar + 1 << ", " << truss.Bars[bar].A + 1 << ", " << truss.Bars[bar].B + 1 << "\n";
  }
  deck << "*ELSET, ELSET=BARS, GENERATE\n1, " << truss.Bars.size() << ", 1\n"
       << "*MATERIAL, NAME=STEEL\n*ELASTIC\n"
       << E * 1e6 << ", 0.3\n";
  for (std::size_t bar = 0; bar < truss.Bars.size(); ++bar) {
    deck << "*SOLID SECTION, ELSET=BAR" << bar + 1 << ", MATERIAL=STEEL\n"
         << areas[bar] * 1e-4 << "\n";
  }
  deck << "*BOUNDARY\n"
       << truss.LeftSupport + 1 << ", 1, 2\n"
       << truss.RightSupport + 1 << ", 2, 2\n"
       << "JOINTS, 3, 3\n"
       << "*STEP\n*STATIC\n*CLOAD\n";
  for (std::size_t joint = 0; joint < loads.size(); ++joint) {
    deck << joint + 1 << ", 2, " << -loads[joint] * newtonsPerTonne << "\n";
  }
  deck << "*NODE PRINT, NSET=JOINTS\nU\n*EL PRINT, ELSET=BARS\nS\n*END STEP\n";
  if (!deck.flush()) {
    throw std::runtime_error("cannot write " + name);
  }
}

/// The rows of numbers under the heading that begins so, each behind its own number or numbers.
std::vector<std::vector<double>> ReadRows(const std::string& name, const std::string& heading) {
  std::ifstream file(name);
  std::vector<std::vector<double>> rows;
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::vector<double> row;
    for (double value = 0; words >> value;) {
      row.push_back(value);
    }
    if (row.empty() && line.find_first_not_of(' ') != std::string::npos) {
      inside = line.find(heading) != std::string::npos;
    } else if (inside && !row.empty()) {
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

}  // namespace

ElasticTruss RunCalculix(const std::string& folder, const Truss& truss,
                         const std::vector<double>& loads, const std::vector<double>& areas,
                         double E) {
  const std::string base = folder + "/" + job;
  std::filesystem::remove(base + ".dat");
  WriteDeck(base + ".inp", truss, loads, areas, E);
  const std::string command =
      "cd '" + folder + "' && OMP_NUM_THREADS=1 ccx -i " + job + " >" + job + ".log 2>&1";
  if (std::system(command.c_str()) != 0) {
    throw std::runtime_error("ccx failed, see " + base + ".log");
  }
  const auto moved = ReadRows(base + ".dat", "displacements");
  const auto stresses = ReadRows(base + ".dat", "stresses");
  if (moved.size() != truss.Joints.size() || stresses.size() != pointsPerBar * truss.Bars.size()) {
    throw std::runtime_error("ccx gave no whole answer, see " + base + ".dat");
  }
  ElasticTruss found;
  for (const std::vector<double>& row : moved) {
    found.Moved.push_back({.Right = row.at(1), .Down = -row.at(2)});
  }
  found.Forces.resize(truss.Bars.size());
  for (const std::vector<double>& row : stresses) {
    const std::size_t bar = static_cast<std::size_t>(row.at(0)) - 1;
    const TrussJoint& a = truss.Joints[truss.Bars.at(bar).A];
    const TrussJoint& b = truss.Joints[truss.Bars[bar].B];
    const double right = (b.X - a.X) / truss.Bars[bar].Length;
    const double up = (b.Y - a.Y) / truss.Bars[bar].Length;
    // The stress along the bar, of sxx, syy, szz, sxy.
    const double along =
        right * right * row.at(2) + up * up * row.at(3) + 2 * right * up * row.at(5);
    found.Forces[bar] +=
        along * areas[bar] * 1e-4 / newtonsPerTonne / static_cast<double>(pointsPerBar);
  }
  return found;
}

}  // namespace trelonit::verification
