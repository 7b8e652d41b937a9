#pragma once

#include <filesystem>

namespace trelonit {

// What happens to a save when a signal ends the program: Ctrl+C, the end of the session, a kill.

/// From now on these signals take the unfinished file with them before they do what they do by
/// default. Those that the program was started to ignore stay ignored. Called once at the start.
void TakeUnfinishedFileAlongWhenInterrupted();

/// A name that means an unfinished file while this object lives. There is room for one at a time,
/// which is all that a handler can safely look at; further ones are as good as not there.
class UnfinishedFile {
 public:
  explicit UnfinishedFile(const std::filesystem::path& path);
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  ~UnfinishedFile();

 private:
  bool holdsTheRoom_;
};

/// While one of these lives the signals wait: what is being written has no other place to be whole
/// in.
class HeldInterruption {
 public:
  HeldInterruption();
  HeldInterruption(const HeldInterruption&) = delete;
  HeldInterruption& operator=(const HeldInterruption&) = delete;
  ~HeldInterruption();
};

}  // namespace trelonit
