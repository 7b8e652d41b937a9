#pragma once

#include "platform/Message.h"

namespace trelonit {

/// For a calculation on the side: what it would say was said by the one that the user asked for.
class SilentMessages : public MessageService {
 public:
  MessageAnswer Show(const Message& /*message*/) override { return MessageAnswer::Ok; }
};

}  // namespace trelonit
