#pragma once

#include <memory>
#include <string>

#include "variants/Variant.h"

namespace trelonit::cli {

/// What kept a table from being written.
struct OutputFailure {
  std::string Reason;
};

/// Where the variants of a study go, in the order in which they come. A file is there once Finish
/// has ended, whole or not at all. All raise OutputFailure.
class VariantSink {
 public:
  virtual ~VariantSink() = default;
  virtual void Take(const Variant& variant) = 0;
  virtual void Finish() = 0;
};

/// By the name's extension: .csv, .json, .svg; "-" is a table on standard output. The tables of the
/// parts of a study give the whole one, so that only the first has a head. Raises 5 for another
/// extension, with a text for the user.
std::unique_ptr<VariantSink> MakeSink(const std::string& output, bool withHead);

}  // namespace trelonit::cli
