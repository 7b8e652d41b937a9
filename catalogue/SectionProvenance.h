#pragma once

#include <string>

#include "catalogue/ProfileRecord.h"

namespace trelonit {

/// What the figures of a shipped record rest on.
enum class Provenance {
  Published,      ///< a published table has the size and its figures
  Computed,       ///< the size is a published one, A or an inertia is computed from its dimensions
  Reconstructed,  ///< no table at hand has the size: it and its figures follow a neighbouring
                  ///< series
};

/// By the standard's name and the designation of the record; resources/catalogue/SOURCES.md tells
/// the grounds. Records that did not come with the program count as published: they are their
/// owner's.
Provenance ProvenanceOf(const ProfileRec& record);

}  // namespace trelonit
