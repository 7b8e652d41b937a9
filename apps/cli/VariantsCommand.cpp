#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <thread>

#include "apps/cli/Calculation.h"
#include "apps/cli/Commands.h"
#include "apps/cli/OutputFile.h"
#include "apps/cli/VariantSink.h"
#include "platform/system/Interruption.h"
#include "platform/system/Process.h"
#include "variants/Axis.h"
#include "variants/BestVariants.h"
#include "variants/Refusal.h"
#include "variants/Study.h"
#include "workstation/design/OwnWeight.h"

namespace trelonit::cli {

namespace {

constexpr const char* ownName = "trelonit-cli: ";

VariantAxes AxesOf(const VariantsOptions& options) {
  VariantAxes axes;
  const auto read = [](const std::string& text, const char* key, auto parse, auto& axis) {
    if (text.empty()) {
      return;
    }
    try {
      axis = parse(text);
    } catch (const RuntimeError& error) {
      Refuse(std::string("ключ «") + key + "»: " + error.Description());
    }
  };
  const auto numbers = [](const std::string& text) { return ParseNumbers(text); };
  const auto wholeNumbers = [](const std::string& text) { return ParseWholeNumbers(text); };
  read(options.Scheme, "--scheme", wholeNumbers, axes.Schemes);
  read(options.Span, "--span", numbers, axes.Spans);
  read(options.Height, "--height", numbers, axes.Heights);
  read(options.EndPanel, "--end", numbers, axes.EndPanels);
  read(options.Panels, "--panels", wholeNumbers, axes.Panels);
  const auto kinds = [&](const std::string& text, const char* key, SectionPlace place) {
    read(text, key, ParseKinds, axes.Kinds[static_cast<std::size_t>(place) - 1]);
  };
  kinds(options.Upper, "--upper", sectionUpPoyas);
  kinds(options.Lower, "--lower", sectionDwnPoyas);
  kinds(options.Diagonals, "--diagonals", sectionRaskos);
  kinds(options.SupportDiagonals, "--support-diagonals", sectionOpornRaskos);
  kinds(options.Posts, "--posts", sectionStoyka);
  read(options.Gap, "--gap", numbers, axes.Gaps);
  read(options.Steel, "--steel", ParseSteels, axes.Steels);
  return axes;
}

/// "K/N".
std::pair<std::uint64_t, std::uint64_t> ShardOf(const std::string& text) {
  if (text.empty()) {
    return {1, 1};
  }
  const auto [part, parts] = Halves(text, '/', "часть/всего");
  const Long shard = ParseOneWhole(part);
  const Long shards = ParseOneWhole(parts);
  if (shard < 1 || shards < shard) {
    Refuse("нет части «" + text + "»");
  }
  return {static_cast<std::uint64_t>(shard), static_cast<std::uint64_t>(shards)};
}

/// What comes into the table: all, the lightest, or a front.
class Choice {
 public:
  explicit Choice(const VariantsOptions& options) {
    if (options.Best > 0) {
      lightest_.emplace(options.Best);
    } else if (options.Front == "height") {
      front_.emplace(HeightOf);
    } else if (options.Front == "progib") {
      front_.emplace(DeflectionOf);
    } else if (!options.Front.empty()) {
      Refuse("ключ «--front»: «height» или «progib»");
    }
  }
  void Take(const std::vector<Variant>& batch, VariantSink& sink) {
    for (const Variant& variant : batch) {
      if (lightest_) {
        lightest_->Take(variant);
      } else if (front_) {
        front_->Take(variant);
      } else {
        sink.Take(variant);
      }
    }
  }
  void End(VariantSink& sink) const {
    for (const Variant& variant : Kept()) {
      sink.Take(variant);
    }
  }

 private:
  std::vector<Variant> Kept() const {
    return lightest_ ? lightest_->Kept() : front_ ? front_->Kept() : std::vector<Variant>();
  }

  std::optional<LightestVariants> lightest_;
  std::optional<VariantFront> front_;
};

/// How far a study is, on a terminal.
class Progress {
 public:
  explicit Progress(std::uint64_t count) : count_(count), shown_(IsErrorTerminal()) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() {
    if (shown_ && told_) {
      std::cerr << '\n';
    }
  }

  void Tell(std::uint64_t done) {
    using std::chrono::duration;
    constexpr duration<double> pause(0.2);
    const auto now = std::chrono::steady_clock::now();
    if (!shown_ || (now - last_ < pause && done < count_)) {
      return;
    }
    last_ = now;
    told_ = true;
    const double passed = duration<double>(now - begun_).count();
    const double left = passed / static_cast<double>(done) * static_cast<double>(count_ - done);
    std::cerr << '\r' << done << " из " << count_ << ", осталось "
              << static_cast<std::uint64_t>(left + 1) << " с   " << std::flush;
  }

 private:
  std::uint64_t count_;
  bool shown_;
  bool told_ = false;
  std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point last_ = begun_;
};

Status Run(const VariantsOptions& options, const DesignInputs& base,
           const ProfileTypeArray& catalogue) {
  const VariantSpace space(base, AxesOf(options), catalogue);
  const auto [shard, shards] = ShardOf(options.Shard);
  const StudyPlan plan{
      .Rules = {.ByOpinion = options.Opinion},
      .Jobs = options.Jobs > 0 ? options.Jobs : std::max(std::thread::hardware_concurrency(), 1U),
      .Shard = shard,
      .Shards = shards};
  Choice choice(options);
  const std::unique_ptr<VariantSink> sink = MakeSink(options.Output, shard == 1);
  const Interruption interruption;
  const ShardBounds bounds = BoundsOfShard(space.Count(), shard, shards);
  std::uint64_t done = 0;
  {
    Progress progress(bounds.Last - bounds.First);
    RunStudy(
        space, plan, catalogue,
        [&](const std::vector<Variant>& batch) {
          choice.Take(batch, *sink);
          done += batch.size();
          progress.Tell(done);
        },
        interruption.IsAsked());
  }
  choice.End(*sink);
  sink->Finish();
  if (done < bounds.Last - bounds.First) {
    Tell(ownName + std::string("прервано: посчитано ") + std::to_string(done) + " из " +
         std::to_string(bounds.Last - bounds.First));
    return Status::Failed;
  }
  return Status::Done;
}

}  // namespace

Status RunVariants(const VariantsOptions& options) {
  ConsoleSession session;
  if (!Restore(session, options.Project)) {
    return Status::Failed;
  }
  frmMain& form = session.Main();
  const DesignInputs base = form.ReadInputs();
  if (OwnWeightInside(form.Model.ToCalculate().TreloData, base.ElementSection, base.Density) &&
      base.OwnWeightOn != 0) {
    Tell(std::string(ownName) + "в нагрузках проекта, похоже, уже есть собственный вес");
  }
  try {
    return Run(options, base, form.Model.ProfileTypes);
  } catch (const OutputFailure& failure) {
    Tell(ownName + std::string("файл «") + options.Output + "» не записан: " + failure.Reason);
    return Status::Failed;
  } catch (const RuntimeError& error) {
    Tell(ownName + error.Description());
    return Status::WrongUsage;
  }
}

}  // namespace trelonit::cli
