#include "variants/StudyRun.h"

#include <exception>
#include <utility>

namespace trelonit {

StudyRun::StudyRun(VariantSpace space, StudyPlan plan, const ProfileTypeArray& catalogue,
                   Limits limits, std::function<void()> moved)
    : space_(std::move(space)),
      plan_(plan),
      catalogue_(catalogue),
      limits_(limits),
      moved_(std::move(moved)),
      best_(limits.Best),
      thread_([this] { Work(); }) {}

StudyRun::~StudyRun() {
  Stop();
  Join();
}

void StudyRun::Join() {
  if (thread_.joinable()) {
    thread_.join();
  }
}

void StudyRun::Work() {
  try {
    RunStudy(
        space_, plan_, catalogue_, [this](const std::vector<Variant>& batch) { Take(batch); },
        stop_);
  } catch (...) {
    const std::lock_guard lock(mutex_);
    news_.Failure = std::current_exception();
  }
  Tell(true);
}

void StudyRun::Take(const std::vector<Variant>& batch) {
  {
    const std::lock_guard lock(mutex_);
    for (const Variant& variant : batch) {
      ++news_.Done;
      news_.Passing += variant.Verdict == VariantVerdict::Passes ? 1 : 0;
      news_.Impossible += variant.Verdict == VariantVerdict::Impossible ? 1 : 0;
      best_.Take(variant);
      byHeight_.Take(variant);
      byProgib_.Take(variant);
      if (handedOver_ < limits_.Held) {
        ++handedOver_;
        news_.Rows.push_back(rows_.Of(variant));
      }
    }
  }
  Tell(false);
}

void StudyRun::Tell(bool ended) {
  {
    const std::lock_guard lock(mutex_);
    news_.Ended = news_.Ended || ended;
    if (std::exchange(told_, true)) {
      return;
    }
  }
  moved_();
}

StudyNews StudyRun::TakeNews() {
  const std::lock_guard lock(mutex_);
  told_ = false;
  StudyNews news = std::exchange(news_, {.Rows = {},
                                         .Done = news_.Done,
                                         .Passing = news_.Passing,
                                         .Impossible = news_.Impossible,
                                         .Best = {},
                                         .FrontByHeight = {},
                                         .FrontByProgib = {},
                                         .Ended = news_.Ended,
                                         .Failure = news_.Failure});
  const auto rows = [this](const std::vector<Variant>& kept) {
    std::vector<VariantRow> made;
    for (const Variant& variant : kept) {
      made.push_back(rows_.Of(variant));
    }
    return made;
  };
  news.Best = rows(best_.Kept());
  news.FrontByHeight = rows(byHeight_.Kept());
  news.FrontByProgib = rows(byProgib_.Kept());
  return news;
}

}  // namespace trelonit
