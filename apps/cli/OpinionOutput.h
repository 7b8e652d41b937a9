#pragma once

#include <string>

#include "workstation/design/SecondOpinion.h"

namespace trelonit::cli {

constexpr const char* opinionTitle = "Второе мнение";

/// Findings first, then a table of all checks, the figures of the calculation beside the opinion's.
std::string OpinionText(const CheckResult& check, const SecondOpinion& opinion);

/// The same with everything that the opinion rests on, as one object.
std::string OpinionJson(const CheckResult& check, const SecondOpinion& opinion);

/// Tells on standard error, a line each, what is dangerous.
void PrintDangers(const SecondOpinion& opinion);

/// Tells there why there is no opinion.
void PrintRefusal(const Opinion& opinion);

}  // namespace trelonit::cli
