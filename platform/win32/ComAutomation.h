#pragma once

#include <memory>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

class ComApartment;

/// The programs of a Windows machine that can be automated, late bound. It and all objects that it
/// gives belong to the thread that made it; the objects may outlive it.
class ComAutomation : public AutomationService {
 public:
  /// What the machine does not have, or does not run, is asked of the next service, which outlives
  /// this. Without a next one it raises 429.
  explicit ComAutomation(AutomationService* next = nullptr);
  AutomationHandle Create(const std::string& programIdentifier) override;
  AutomationHandle GetRunning(const std::string& programIdentifier) override;

 private:
  AutomationService& Next() const;

  std::shared_ptr<const ComApartment> apartment_;
  AutomationService* next_;
};

}  // namespace trelonit
