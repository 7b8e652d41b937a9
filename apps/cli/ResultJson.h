#pragma once

#include <string>
#include <vector>

#include "platform/errors/Message.h"
#include "workstation/results/ResultLists.h"

namespace trelonit::cli {

/// One object with the whole result of Calculate; its keys are the names in the code. Numbers have
/// full precision and a point.
std::string CalcJson(const ResultLists& lists, const std::vector<Message>& messages, bool barForce);

/// What automatic selection found for a group.
struct SelectionRow {
  std::string Group;    ///< key of the group's block
  std::string Caption;  ///< name of the group for the user
  std::string Name;     ///< designation of the size
  Long SizeIdx = 0;
  double Gdist = 0;
  bool Possible = true;
};

/// The same, without the findings, with the proposal's rows and, of a selection by both, its
/// rounds.
std::string SelectJson(const ResultLists& lists, const std::vector<Message>& messages,
                       const std::vector<SelectionRow>& selection, int rounds);

/// The object of a command that came to no result: the messages alone.
std::string FailureJson(const std::vector<Message>& messages);

}  // namespace trelonit::cli
