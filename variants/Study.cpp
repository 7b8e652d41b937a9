#include "variants/Study.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

namespace trelonit {

namespace {

/// Long enough that the threads seldom meet, short enough that an interrupted study loses little.
constexpr std::uint64_t batchLength = 64;

/// The batches of a study on their way from the threads that make them to the one place that takes
/// them in order.
class Batches {
 public:
  Batches(const ShardBounds& bounds, std::uint64_t mostAhead,
          const std::function<void(const std::vector<Variant>&)>& take,
          const std::atomic<bool>& stop)
      : bounds_(bounds),
        count_((bounds.Last - bounds.First + batchLength - 1) / batchLength),
        mostAhead_(mostAhead),
        take_(take),
        stop_(stop) {}

  /// The numbers of the next batch; an empty one where there is nothing more to do. Waits while
  /// the batches before are too far behind.
  std::pair<std::uint64_t, ShardBounds> Next() {
    std::unique_lock lock(mutex_);
    moved_.wait(lock, [this] { return next_ < taken_ + mostAhead_ || Ends(); });
    if (Ends() || next_ == count_) {
      return {};
    }
    const std::uint64_t batch = next_++;
    const std::uint64_t first = bounds_.First + batch * batchLength;
    return {batch, {first, std::min(first + batchLength, bounds_.Last)}};
  }

  void Put(std::uint64_t batch, std::vector<Variant> made) {
    const std::lock_guard lock(mutex_);
    made_.emplace(batch, std::move(made));
    while (!failure_ && !made_.empty() && made_.begin()->first == taken_) {
      const std::vector<Variant>& oldest = made_.begin()->second;
      try {
        take_(oldest);
      } catch (...) {
        failure_ = std::current_exception();
        break;
      }
      handedOver_ += oldest.size();
      made_.erase(made_.begin());
      ++taken_;
    }
    moved_.notify_all();
  }

  /// A thread has ended with this.
  void Fail(std::exception_ptr failure) {
    const std::lock_guard lock(mutex_);
    failure_ = std::move(failure);
    moved_.notify_all();
  }

  std::uint64_t HandedOver() const {
    if (failure_) {
      std::rethrow_exception(failure_);
    }
    return handedOver_;
  }

 private:
  bool Ends() const { return failure_ || stop_; }

  ShardBounds bounds_;
  std::uint64_t count_;
  std::uint64_t mostAhead_;
  const std::function<void(const std::vector<Variant>&)>& take_;
  const std::atomic<bool>& stop_;

  std::mutex mutex_;
  std::condition_variable moved_;
  std::map<std::uint64_t, std::vector<Variant>> made_;
  std::uint64_t next_ = 0;
  std::uint64_t taken_ = 0;
  std::uint64_t handedOver_ = 0;
  std::exception_ptr failure_;
};

void Work(const VariantSpace& space, const VariantRules& rules, const ProfileTypeArray& catalogue,
          Batches& batches) {
  try {
    for (;;) {
      const auto [batch, bounds] = batches.Next();
      if (bounds.First == bounds.Last) {
        return;
      }
      std::vector<Variant> made;
      made.reserve(bounds.Last - bounds.First);
      for (std::uint64_t number = bounds.First; number < bounds.Last; ++number) {
        made.push_back(MakeVariant(space, number, rules, catalogue));
      }
      batches.Put(batch, std::move(made));
    }
  } catch (...) {
    batches.Fail(std::current_exception());
  }
}

}  // namespace

ShardBounds BoundsOfShard(std::uint64_t count, std::uint64_t shard, std::uint64_t shards) {
  // The first ones are longer by one where the count does not divide.
  const auto begin = [&](std::uint64_t part) {
    return part * (count / shards) + std::min(part, count % shards);
  };
  return {begin(shard - 1), begin(shard)};
}

std::uint64_t RunStudy(const VariantSpace& space, const StudyPlan& plan,
                       const ProfileTypeArray& catalogue,
                       const std::function<void(const std::vector<Variant>&)>& take,
                       const std::atomic<bool>& stop) {
  constexpr std::uint64_t aheadOfEachJob = 4;
  const unsigned jobs = std::max(plan.Jobs, 1U);
  Batches batches(BoundsOfShard(space.Count(), plan.Shard, plan.Shards), jobs * aheadOfEachJob,
                  take, stop);
  {
    std::vector<std::jthread> threads;
    for (unsigned job = 1; job < jobs; ++job) {
      threads.emplace_back([&] { Work(space, plan.Rules, catalogue, batches); });
    }
    Work(space, plan.Rules, catalogue, batches);
  }
  return batches.HandedOver();
}

}  // namespace trelonit
