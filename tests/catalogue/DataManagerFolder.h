#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>

namespace trelonit::test {

inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

/// A new folder that goes with its holder.
class ScratchFolder {
 public:
  ScratchFolder()
      : folder_(std::filesystem::temp_directory_path() /
                ("trelonit-manager-" + std::to_string(std::random_device()()))) {
    // A name that is taken already would mix two runs.
    if (!std::filesystem::create_directory(folder_)) {
      throw std::system_error(std::make_error_code(std::errc::file_exists));
    }
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  std::filesystem::path In(const std::string& name) const {
    return folder_ / std::u8string(name.begin(), name.end());
  }
  std::filesystem::path Put(const std::string& name, const std::string& content) const {
    std::ofstream(In(name), std::ios::binary) << content;
    return In(name);
  }
  /// Files in the folder.
  std::ptrdiff_t Count() const {
    return std::distance(std::filesystem::directory_iterator(folder_), {});
  }

 private:
  std::filesystem::path folder_;
};

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace trelonit::test
