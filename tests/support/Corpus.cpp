#include "tests/support/Corpus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace trelonit::test {

std::vector<Sample> CorpusOf(const std::string& target) {
  std::vector<Sample> samples;
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(FUZZ_FOLDER) /
                                                               target / "corpus")) {
    std::ifstream file(entry.path(), std::ios::binary);
    samples.push_back(
        {entry.path().stem().string(), std::string(std::istreambuf_iterator(file), {})});
  }
  // The system's order is any.
  std::sort(samples.begin(), samples.end(),
            [](const Sample& a, const Sample& b) { return a.Name < b.Name; });
  return samples;
}

void ReplayCorpus(const std::string& target, std::string (*complaintAbout)(std::string_view)) {
  constexpr std::size_t fewestSamples = 8;
  constexpr std::size_t ends = 8;
  const std::vector<Sample> corpus = CorpusOf(target);
  ASSERT_GE(corpus.size(), fewestSamples);
  for (const Sample& sample : corpus) {
    const std::string_view whole = sample.Bytes;
    EXPECT_EQ(complaintAbout(whole), "") << sample.Name;
    const std::size_t step = whole.size() / ends + 1;
    for (std::size_t length = 0; length < whole.size(); length += step) {
      EXPECT_EQ(complaintAbout(whole.substr(0, length)), "") << sample.Name << " " << length;
    }
  }
}

}  // namespace trelonit::test
