#pragma once

#include "platform/errors/Message.h"

namespace trelonit {

/// Asks whether a file that is there may be replaced.
bool MayOverwrite(MessageService& messages);

}  // namespace trelonit
