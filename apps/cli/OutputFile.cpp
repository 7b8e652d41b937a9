#include "apps/cli/OutputFile.h"

#include <algorithm>

#include "platform/errors/RuntimeError.h"
#include "platform/text/Text.h"

namespace trelonit::cli {

bool HasExtension(std::string_view name, std::string_view extension) {
  return name.size() > extension.size() &&
         std::equal(extension.rbegin(), extension.rend(), name.rbegin(),
                    [](char a, char b) { return a == LowerLatin(b); });
}

Status WriteOutput(const std::string& file, const std::string& bytes) {
  try {
    DiskFiles().ReplaceFile(file, bytes);
  } catch (const RuntimeError& error) {
    std::cerr << "trelonit-cli: файл «" << file << "» не записан: " << error.Description() << "\n";
    return Status::Failed;
  }
  return Status::Done;
}

}  // namespace trelonit::cli
