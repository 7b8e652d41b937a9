#pragma once

#include "workstation/main/frmMain.h"

namespace trelonit {

// The project of the main form as the base of a study, and a variant as the project.

/// What is entered, with the user's loads alone: own weight that a calculation has put into them is
/// taken out. Raises as frmMain::EnteredInputs does.
DesignInputs BaseOfStudy(const frmMain& form);

/// What keeps it from being calculated, as a message: that of a calculation where it has one.
std::optional<Message> WhyNotCalculated(const DesignInputs& base, const NumberLocale& locale);

/// Shows these inputs in the main form, on the tab with the commands, as one change of the design.
/// Calculated there they come to the variant's figures.
void ShowAsProject(frmMain& form, const DesignInputs& inputs);

}  // namespace trelonit
