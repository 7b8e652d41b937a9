// Measures what the program promises and prints one table: the figure, its limit, whether it is
// kept. Times of different things stand in one run side by side, because machines differ.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <exception>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "analysis/Scheme.h"
#include "analysis/modMaxProgib.h"
#include "analysis/modTrelo.h"
#include "bench/Designs.h"
#include "bench/DesktopCost.h"
#include "bench/ProcessCost.h"
#include "bench/Table.h"
#include "bench/VariantsCost.h"
#include "catalogue/modProfileData.h"
#include "drawing/host/BuiltInHost.h"
#include "drawing/host/dxf/DxfWriter.h"
#include "drawing/scheme/modACADExport.h"
#include "opinion/Opinion.h"
#include "workstation/design/DesignModel.h"
#include "workstation/design/Selection.h"

namespace {

using namespace trelonit;

/// What any solver has to pay: arrays of the sizes of this result allocated, zero-filled, copied.
struct ArraysOnly {
  BoundedArray<double> UpKnotLoad, DwnKnotLoad, UpPoyas, DwnPoyas, Raskos, Stoyka;
  SquareTable<double> BarForce;

  explicit ArraysOnly(const TreloResult& sizes)
      : UpKnotLoad(Like(sizes.UpKnotLoad)),
        DwnKnotLoad(Like(sizes.DwnKnotLoad)),
        UpPoyas(Like(sizes.UpPoyasForce)),
        DwnPoyas(Like(sizes.DwnPoyasForce)),
        Raskos(Like(sizes.RaskosForce)),
        Stoyka(Like(sizes.StoykaForce)),
        BarForce(sizes.KnotNum) {}

  static BoundedArray<double> Like(const BoundedArray<double>& array) {
    return {array.LowerBound(), array.UpperBound()};
  }
};

void Arrays(benchmark::State& state, Long scheme) {
  const TreloResult sizes = CalcTrelo(bench::LoadedTruss(scheme, bench::largestPanelNum)).Value;
  for (auto _ : state) {
    ArraysOnly arrays(sizes);
    benchmark::DoNotOptimize(arrays);
    ArraysOnly copy = arrays;
    benchmark::DoNotOptimize(copy);
  }
}

void Solver(benchmark::State& state, Long scheme) {
  const TreloData data = bench::LoadedTruss(scheme, bench::largestPanelNum);
  for (auto _ : state) {
    TreloResult result = CalcTrelo(data).Value;
    benchmark::DoNotOptimize(result);
  }
}

void MemberCheck(benchmark::State& state) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  const SectionArray sections = bench::PairedAngles(catalogue);
  const TreloData data = bench::LoadedTruss(1, bench::largestPanelNum);
  const TreloResult result = CalcTrelo(data).Value;
  for (auto _ : state) {
    CheckResult check = CheckueStress(data, result, bench::OrdinarySteel(), sections).Value;
    benchmark::DoNotOptimize(check);
  }
}

/// The second opinion on a calculated design: statics, every bar judged, no findings.
void SecondOpinion(benchmark::State& state, Long scheme) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  const SectionArray sections = bench::PairedAngles(catalogue);
  const TreloData data = bench::LoadedTruss(scheme, bench::largestPanelNum);
  const TreloResult result = CalcTrelo(data).Value;
  const CheckNumbers numbers = bench::OrdinarySteel();
  const CheckResult check = CheckueStress(data, result, numbers, sections).Value;
  const JudgedDesign design{
      .Data = data, .Result = result, .Check = check, .Sections = sections, .Numbers = numbers};
  for (auto _ : state) {
    Opinion opinion = FormOpinion(design);
    if (opinion.HasRefused()) {
      state.SkipWithError("the opinion is refused");
    }
    benchmark::DoNotOptimize(opinion);
  }
}

void Deflection(benchmark::State& state, Long scheme) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  const TreloData data = bench::LoadedTruss(scheme, bench::largestPanelNum);
  const TreloResult result = CalcTrelo(data).Value;
  const CheckNumbers numbers = bench::OrdinarySteel();
  const CheckResult check =
      CheckueStress(data, result, numbers, bench::PairedAngles(catalogue)).Value;
  for (auto _ : state) {
    benchmark::DoNotOptimize(CalcProgib(data, result, check, true, numbers.E));
  }
}

void CatalogueLoad(benchmark::State& state) {
  bench::World world;
  const Services services = world.Bundle();
  LoadProfileTypes(services);  // unpacks the files
  for (auto _ : state) {
    ProfileTypeArray catalogue = LoadProfileTypes(services);
    benchmark::DoNotOptimize(catalogue);
  }
}

/// The longest search there is: forces that no size carries, from the first size of the largest
/// standard, for all five groups.
void Selection(benchmark::State& state) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  Design design;
  Long largest = 1;
  for (Long standard = 1; standard <= catalogue.UpperBound(); ++standard) {
    if (catalogue[standard].Rec.UpperBound() > catalogue[largest].Rec.UpperBound()) {
      largest = standard;
    }
  }
  constexpr Long roundTube = 11;
  for (SectionRec& section : design.ElementSection) {
    section = {.TypeIdx = largest,
               .SizeIdx = 1,
               .Profile = catalogue[largest].Rec[1],
               .Layout = roundTube};
  }
  design.TreloData = bench::LoadedTruss(1, bench::largestPanelNum);
  for (double& force : design.TreloData.UpPForce) {
    force = 1e5;
  }
  const Calculation calculation = Calculate(design, bench::OrdinarySteel()).Value;
  Messages told;
  for (auto _ : state) {
    const SelectionProposal proposal = SelectSections(calculation, catalogue, told);
    if (proposal.Impossible.size() != groupCount) {
      state.SkipWithError("a size carries the forces");
    }
  }
}

/// Both schemes in a new drawing of the built-in host, and the drawing as a file.
void DrawingExport(benchmark::State& state, Long scheme) {
  bench::World world;
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  const SectionArray sections = bench::PairedAngles(catalogue);
  const TreloData data = bench::LoadedTruss(scheme, bench::largestPanelNum);
  const TreloResult result = CalcTrelo(data).Value;
  for (auto _ : state) {
    BuiltInHost host;
    BuiltInHostAutomation automation(host);
    Label panel;
    ACADExport(automation, world.Messages, {}, {data, result, sections}, panel)
        .mnuFileAutoCAD_Click();
    std::string file = WriteDxf(*host.ActiveDocument());
    benchmark::DoNotOptimize(file);
  }
}

/// Keeps the smallest time of each name, in nanoseconds: what the machine's other work adds is not
/// the program's.
class SmallestTimes : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) {
        continue;
      }
      const double nanoseconds =
          run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
      const auto [place, fresh] = times_.emplace(run.run_name.function_name, nanoseconds);
      if (!fresh) {
        place->second = std::min(place->second, nanoseconds);
      }
    }
  }
  double operator[](const std::string& name) const { return times_.at(name); }

 private:
  std::map<std::string, double> times_;
};

std::string Name(const char* what, Long scheme) {
  return what + std::to_string(scheme);
}

void Register() {
  const auto add = [](const std::string& name, auto&&... arguments) {
    benchmark::RegisterBenchmark(name.c_str(), arguments...)->Repetitions(15)->MinTime(0.02);
  };
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    add(Name("Arrays", scheme), Arrays, scheme);
    add(Name("Solver", scheme), Solver, scheme);
    add(Name("Deflection", scheme), Deflection, scheme);
    add(Name("SecondOpinion", scheme), SecondOpinion, scheme);
    add(Name("DrawingExport", scheme), DrawingExport, scheme);
  }
  add("MemberCheck", MemberCheck);
  add("CatalogueLoad", CatalogueLoad);
  add("Selection", Selection);
}

int Measure(int argc, char** argv) {
  // Repetitions of different things take turns, so that a busy moment of the machine hits all
  // alike.
  std::vector<char*> arguments(argv, argv + argc);
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  arguments.push_back(interleave.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  Register();
  SmallestTimes times;
  benchmark::RunSpecifiedBenchmarks(&times);

  bench::Table table;
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    table.Row("analysis n = 30, scheme " + std::to_string(scheme) + " (" +
                  FormatPlain(times[Name("Solver", scheme)] / 1000, 2, {}) +
                  " us) / arrays of its sizes",
              times[Name("Solver", scheme)] / times[Name("Arrays", scheme)], 3, "x");
  }
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    table.Row("deflection n = 30, scheme " + std::to_string(scheme) + " / an analysis",
              times[Name("Deflection", scheme)] / times[Name("Solver", scheme)], 4, "x");
  }
  table.Row("member check n = 30", times["MemberCheck"] / 1e3, 1.5, "us");
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    table.Row("second opinion n = 30, scheme " + std::to_string(scheme),
              times[Name("SecondOpinion", scheme)] / 1e3, 60, "us");
  }
  table.Row("loading the catalogue", times["CatalogueLoad"] / 1e6, 3, "ms");
  table.Row("selection, five groups to the end of the largest standard", times["Selection"] / 1e6,
            0.5, "ms");

  for (Long scheme = 1; scheme <= 4; ++scheme) {
    table.Row("drawing n = 30, scheme " + std::to_string(scheme) + ", to its finished DXF",
              times[Name("DrawingExport", scheme)] / 1e6, 30, "ms");
  }

  bench::ProcessCost best{.Milliseconds = 1e9};
  for (int run = 0; run < 20; ++run) {
    const bench::ProcessCost cost =
        bench::RunProcess({TRELONIT_CLI, "calc", EXAMPLES_FOLDER "/scheme1-24m.tsav"});
    best.Milliseconds = std::min(best.Milliseconds, cost.Milliseconds);
    best.Megabytes = std::max(best.Megabytes, cost.Megabytes);
  }
  table.Row("trelonit-cli calc, whole process", best.Milliseconds, 15, "ms");
  table.Row("trelonit-cli calc, peak memory", best.Megabytes, 20, "MB");
  bench::AddVariantRows(table);
#ifdef TRELONIT_WHOLE_PROGRAM
  bench::AddDesktopRows(table);
#endif
  return table.AllKept() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Measure(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
