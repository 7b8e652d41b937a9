#include "bench/VariantsCost.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "bench/ProcessCost.h"

namespace trelonit::bench {

namespace {

/// Heights from 1.5 to 3.5 m, this many and one.
ProcessCost Study(int variants, int panels, int jobs) {
  const std::string step = std::to_string(2.0 / variants);
  const std::string target =
      (std::filesystem::temp_directory_path() / "trelonit-bench-variants.csv").string();
  ProcessCost best{.Milliseconds = 1e9};
  constexpr int runs = 7;
  for (int run = 0; run < runs; ++run) {
    const ProcessCost cost =
        RunProcess({TRELONIT_CLI, "variants", EXAMPLES_FOLDER "/scheme1-24m.tsav", "--height",
                    "1.5:3.5:" + step, "--panels", std::to_string(panels), "--jobs",
                    std::to_string(jobs), "-o", target});
    best.Milliseconds = std::min(best.Milliseconds, cost.Milliseconds);
    best.Megabytes = std::max(best.Megabytes, cost.Megabytes);
  }
  std::filesystem::remove(target);
  return best;
}

}  // namespace

void AddVariantRows(Table& table) {
  constexpr int many = 20'000;
  constexpr double second = 1e6;
  const ProcessCost small = Study(many, 8, 1);
  const ProcessCost large = Study(many, 30, 1);
  table.Row("a variant n = 8, selection and deflection, one job", 1000 * small.Milliseconds / many,
            second / 10'000, "us");
  table.Row("a variant n = 30, selection and deflection, one job", 1000 * large.Milliseconds / many,
            second / 1'500, "us");
  table.Row("a study on two jobs / on one", Study(many, 30, 2).Milliseconds / large.Milliseconds,
            1 / 1.9, "x");
  table.Row("a study, peak memory of 20,000 variants / of 2,000",
            large.Megabytes / Study(many / 10, 30, 1).Megabytes, 1.1, "x");
}

}  // namespace trelonit::bench
