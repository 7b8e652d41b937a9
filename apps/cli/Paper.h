#pragma once

#include <functional>
#include <string>

#include "apps/cli/ConsoleSession.h"
#include "drawing/host/Drawing.h"
#include "editor/document/RichDocument.h"

namespace trelonit::cli {

/// What makes pages. It needs the window toolkit (no display), which takes longer to load than a
/// calculation lasts. So there are two console programs: the one that users start has no paper and
/// hands such commands over to the other one beside it.
struct Paper {
  /// The bytes of a PDF file with this title.
  std::function<std::string(const RichDocument&, const std::string& title)> Pdf;
  /// The bytes of a file with a drawing on one page, to scale.
  std::function<std::string(const Drawing&)> DrawingPdf;
  std::function<std::string(const Drawing&)> DrawingPng;
  /// Runs the whole command line in the program that has paper. There where the others are missing.
  std::function<Status()> HandOver;
};

/// The paper of this program.
Paper MakePaper(int argc, char** argv);

}  // namespace trelonit::cli
