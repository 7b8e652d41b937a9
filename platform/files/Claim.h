#pragma once

#include <filesystem>
#include <memory>

namespace trelonit {

/// A file that one program at a time can hold. It is held while this lives; the system gives it
/// free however the program ends, and it goes from the disk with an orderly end.
class Claim {
 public:
  virtual ~Claim() = default;
};

/// Neither held nor another's: the system cannot tell, as in a folder that may not be written.
struct ClaimAttempt {
  std::unique_ptr<Claim> Held;
  /// Another program, or another claim of this one, holds it.
  bool ByAnother = false;
};

/// Does not wait. Makes the file; its folder must be there.
ClaimAttempt TryClaim(const std::filesystem::path& file);

}  // namespace trelonit
