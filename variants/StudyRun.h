#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include "variants/BestVariants.h"
#include "variants/Study.h"
#include "variants/VariantRow.h"

namespace trelonit {

/// What a running study has come to since it was last asked.
struct StudyNews {
  std::vector<VariantRow> Rows;  ///< new ones, in the order of their numbers
  std::uint64_t Done = 0;        ///< how many variants are computed in all, and of these:
  std::uint64_t Passing = 0;
  std::uint64_t Impossible = 0;
  // Of all that are computed.
  std::vector<VariantRow> Best;
  std::vector<VariantRow> FrontByHeight;
  std::vector<VariantRow> FrontByProgib;
  bool Ended = false;
  /// What the study broke off with.
  std::exception_ptr Failure;
};

/// A study in threads of its own. It goes on until it is through or is to stop; whoever ends it
/// before waits for its threads.
class StudyRun {
 public:
  struct Limits {
    std::size_t Held = 0;  ///< rows that are handed over; best ones and fronts are of all
    std::size_t Best = 0;
  };

  /// The catalogue outlives it. Moved is called in a thread of the study once there is news, and
  /// not again before the news is taken.
  StudyRun(VariantSpace space, StudyPlan plan, const ProfileTypeArray& catalogue, Limits limits,
           std::function<void()> moved);
  StudyRun(const StudyRun&) = delete;
  StudyRun& operator=(const StudyRun&) = delete;
  ~StudyRun();

  void Stop() { stop_ = true; }
  /// Waits for the end; there may be news then.
  void Join();
  StudyNews TakeNews();

  const VariantSpace& Space() const { return space_; }
  /// Makes one of its variants once more.
  Variant Make(std::uint64_t number) const {
    return MakeVariant(space_, number, plan_.Rules, catalogue_);
  }

 private:
  void Work();
  void Take(const std::vector<Variant>& batch);
  void Tell(bool ended);

  VariantSpace space_;
  StudyPlan plan_;
  const ProfileTypeArray& catalogue_;
  Limits limits_;
  std::function<void()> moved_;
  std::atomic<bool> stop_{false};

  std::mutex mutex_;
  VariantRows rows_;
  std::size_t handedOver_ = 0;
  LightestVariants best_;
  VariantFront byHeight_{HeightOf};
  VariantFront byProgib_{DeflectionOf};
  StudyNews news_;
  bool told_ = false;
  std::thread thread_;
};

}  // namespace trelonit
