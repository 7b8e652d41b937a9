#pragma once

#include "analysis/CheckRecord.h"
#include "platform/system/Services.h"
#include "workstation/design/DesignModel.h"

namespace trelonit {

/// The largest of the seven utilisation coefficients of a group: strength, stability and
/// slenderness in both planes, slenderness over the user's limit in both planes.
double LargestUse(const GroupCheck& group);

/// A box with the section of each group, for whoever looks for a fault.
void ShowGroupInfo(const DesignModel& model, const Services& services);

}  // namespace trelonit
