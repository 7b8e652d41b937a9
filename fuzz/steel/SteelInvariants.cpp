#include "fuzz/steel/SteelInvariants.h"

#include <algorithm>

#include "checks/SteelTable.h"
#include "checks/frmSteel.h"
#include "fuzz/support/FuzzWorld.h"

namespace trelonit::fuzz {

namespace {

/// The program's resources with another table of steels.
class OneBlock : public NoResources {
 public:
  explicit OneBlock(std::string_view block) : block_(block) {}
  std::string_view CustomBlock(Integer) override { return block_; }

 private:
  std::string_view block_;
};

/// Goes through every grade and range and takes each over.
std::string ComplaintAboutWindow(std::string_view bytes) {
  OneBlock resources(bytes);
  test::World world(resources);
  Label name;
  TextBox ry;
  TextBox importance;
  TextBox condition;
  frmSteel form(world.Bundle(), {name, ry, importance, condition});
  form.Form_Load();
  for (Long grade = 0; grade < static_cast<Long>(form.cmbSteelName.List().size()); ++grade) {
    form.cmbSteelName.Select(grade);
    for (Long range = 0; range < static_cast<Long>(form.cmbSheetThick.List().size()); ++range) {
      form.cmbSheetThick.Select(range);
      form.txtRyfason_Click();
      form.cmdApply_Click();
      form.txtRysheet_Click();
      form.cmdApply_Click();
      const auto& steel = form.Steels.at(static_cast<std::size_t>(grade));
      if (form.cmbSheetThick.Text() !=
          steel.Ranges.at(static_cast<std::size_t>(range)).Caption.Trimmed()) {
        return "the window shows another range";
      }
    }
  }
  return ComplaintAboutMessages(world.Messages.Shown);
}

}  // namespace

std::string ComplaintAboutSteels(std::string_view bytes) {
  return ComplaintUnless([&] {
    constexpr std::size_t longestTable = 2000;
    const std::string_view table = bytes.substr(0, longestTable);
    const std::vector<SteelRec> steels = ParseSteelTable(table);
    // A line a grade, and behind the end of the text a grade a byte.
    constexpr std::size_t endOfText = 672;
    const std::string_view text = table.substr(0, endOfText);
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    if (steels.size() != lines + (table.size() - text.size())) {
      return std::string("there are not as many grades as lines");
    }
    return ComplaintAboutWindow(table);
  });
}

}  // namespace trelonit::fuzz
