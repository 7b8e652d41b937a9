#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "opinion/Findings.h"

namespace trelonit::test {

inline std::vector<Finding> OfCode(const std::vector<Finding>& findings, FindingCode code) {
  std::vector<Finding> some;
  std::copy_if(findings.begin(), findings.end(), std::back_inserter(some),
               [=](const Finding& finding) { return finding.Code == code; });
  return some;
}

inline std::vector<std::string> TextsOf(const std::vector<Finding>& findings, FindingCode code) {
  std::vector<std::string> texts;
  for (const Finding& finding : OfCode(findings, code)) {
    texts.push_back(finding.Text);
  }
  return texts;
}

using Texts = std::vector<std::string>;

}  // namespace trelonit::test
