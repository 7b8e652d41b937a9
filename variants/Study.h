#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

#include "variants/Variant.h"

namespace trelonit {

/// Which part of a space is computed, and how.
struct StudyPlan {
  VariantRules Rules;
  /// Threads that compute; they share nothing but the space and the catalogue.
  unsigned Jobs = 1;
  /// Part Shard of Shards, counted from 1: the parts one after another are the whole.
  std::uint64_t Shard = 1;
  std::uint64_t Shards = 1;
};

/// The numbers of the variants of a shard: First up to, without, Last.
struct ShardBounds {
  std::uint64_t First = 0;
  std::uint64_t Last = 0;
};
ShardBounds BoundsOfShard(std::uint64_t count, std::uint64_t shard, std::uint64_t shards);

/// Computes the variants of the plan and hands them over in the order of their numbers, a batch at
/// a time, one call after another; how many are held meanwhile does not depend on how many there
/// are. Once stop is set it ends with the batches that are whole. An exception of take ends it and
/// goes on. Returns how many variants were handed over.
std::uint64_t RunStudy(const VariantSpace& space, const StudyPlan& plan,
                       const ProfileTypeArray& catalogue,
                       const std::function<void(const std::vector<Variant>&)>& take,
                       const std::atomic<bool>& stop);

}  // namespace trelonit
