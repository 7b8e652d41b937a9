#pragma once

#include "apps/cli/JsonText.h"
#include "workstation/design/SecondOpinion.h"

namespace trelonit::cli {

/// A list of objects with Code, Severity, Group, Check and Text; null where a finding has none.
OrderedJson FindingsJson(const std::vector<Finding>& findings);

}  // namespace trelonit::cli
