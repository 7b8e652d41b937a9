#pragma once

namespace trelonit {

/// The program's name for its own windows and message boxes without a title.
constexpr const char* applicationTitle = "Трелонит";
constexpr const char* applicationVersion = "1.0.0";

/// Title of the running caption.
constexpr const char* runningTitle = "Трелонит v 1.0.0";

/// Title of warnings about the state of the program itself.
constexpr const char* debugTitle = "Трелонит v 1.0.0 (alpha) отладка";

}  // namespace trelonit
