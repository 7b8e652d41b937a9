#include "tests/win32/automation/Orders.h"

#include <fstream>
#include <sstream>

namespace trelonit::test {

namespace {

/// As "Line.Layer 1004 The layer is locked".
void AddFailure(Orders& orders, std::istream& line) {
  std::string member;
  int number = 0;
  std::string description;
  line >> member >> number >> std::ws;
  std::getline(line, description);
  orders.Failures.emplace(member, RuntimeError(number, description));
}

}  // namespace

void WriteOrders(const std::filesystem::path& file, const Orders& orders) {
  std::ofstream stream(file);
  stream << "program " << orders.Program << "\nclass " << orders.Class << "\nruns " << orders.Runs
         << "\nasks " << orders.Asks << "\nbusy " << orders.Busy << "\ndeath " << orders.Death
         << '\n';
  for (const auto& [member, error] : orders.Failures) {
    stream << "fails " << member << ' ' << error.Number() << ' ' << error.Description() << '\n';
  }
}

Orders ReadOrders(const std::filesystem::path& file) {
  Orders orders;
  std::ifstream stream(file);
  for (std::string text; std::getline(stream, text);) {
    std::istringstream line(text);
    std::string what;
    line >> what;
    if (what == "program") {
      line >> orders.Program;
    } else if (what == "class") {
      line >> orders.Class;
    } else if (what == "runs") {
      line >> orders.Runs;
    } else if (what == "asks") {
      line >> orders.Asks;
    } else if (what == "busy") {
      line >> orders.Busy;
    } else if (what == "death") {
      line >> orders.Death;
    } else if (what == "fails") {
      AddFailure(orders, line);
    }
  }
  return orders;
}

}  // namespace trelonit::test
