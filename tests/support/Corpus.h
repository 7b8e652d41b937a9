#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit::test {

/// An input of a fuzz target: one that some person thought of, or that the fuzzer found worth
/// keeping.
struct Sample {
  std::string Name;
  std::string Bytes;
};

/// The corpus of a target, fuzz/TARGET/corpus, in the same order everywhere.
std::vector<Sample> CorpusOf(const std::string& target);

/// Expects of every sample, and of it wherever it ends, that there is nothing to complain of. Of a
/// long one only some ends are tried.
void ReplayCorpus(const std::string& target, std::string (*complaintAbout)(std::string_view));

}  // namespace trelonit::test
