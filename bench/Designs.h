#pragma once

#include "analysis/modDatatypes.h"
#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionRecord.h"
#include "checks/modCheckueStress.h"
#include "platform/console/ConsoleServices.h"
#include "platform/errors/Message.h"
#include "platform/system/Services.h"
#include "resources/EmbeddedResources.h"

namespace trelonit::bench {

constexpr Long largestPanelNum = 30;

/// A truss of 36 m with every joint and panel loaded.
TreloData LoadedTruss(Long scheme, Long panelNum);

/// Paired angles for its chords and diagonals, single ones for its verticals.
SectionArray PairedAngles(const ProfileTypeArray& catalogue);

CheckNumbers OrdinarySteel();

/// Console services over the real file system; a message would be a wrong measurement, so it ends
/// the process.
class World {
 public:
  World();
  Services Bundle();

 private:
  class NoMessages : public MessageService {
   public:
    MessageAnswer Show(const Message& message) override;
  };

 public:
  NoMessages Messages;

 private:
  NoDialogs dialogs_;
  MemoryClipboard clipboard_;
  MemorySettings settings_;
  NoRegistry registry_;
  NoAutomation automation_;
  ConsoleShell shell_;
  SystemClock clock_;
  EmbeddedResources resources_;
  DiskFiles files_;
  std::string folder_;
};

}  // namespace trelonit::bench
