#pragma once

#include <string>
#include <vector>

#include "platform/Message.h"
#include "workstation/DesignModel.h"
#include "workstation/ResultLists.h"

namespace trelonit::cli {

/// One object with the whole result of Calculate; its keys are the names in the code. Numbers have
/// full precision and a point.
std::string CalcJson(const DesignModel& model, const ResultLists& lists,
                     const std::vector<Message>& messages, bool barForce);

/// The object of a command that came to no result: the messages alone.
std::string FailureJson(const std::vector<Message>& messages);

}  // namespace trelonit::cli
