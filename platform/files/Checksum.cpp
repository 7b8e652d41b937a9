#include "platform/files/Checksum.h"

#include <cstdint>

namespace trelonit {

std::string ChecksumOf(std::string_view bytes) {
  std::uint64_t sum = 0xcbf29ce484222325U;
  for (const char byte : bytes) {
    sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
  }
  return std::to_string(sum);
}

}  // namespace trelonit
