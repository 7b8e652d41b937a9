#pragma once

#include "analysis/modDatatypes.h"

namespace trelonit {

/// Brings the arrays to the bounds of the scheme and panel count, keeping the values that still
/// fit. Schemes beyond 5 leave them alone. Raises 9 for a bound below 0; the arrays are then as
/// they were.
void ReDimLoads(LoadArrays& loads, Long treloType, Long panelNum);

/// Re-creates the arrays with zeros. Scheme 5 keeps its lower arrays as they are: intended, this
/// routine and ReDimLoads differ there.
void ClearLoads(LoadArrays& loads, Long treloType, Long panelNum);

/// Adds this much, tonnes per metre, to every panel of both chords; negative to subtract.
void AddToDistributedLoads(LoadArrays& loads, double perMetre);

/// How many loads of the user's are gone after the arrays were cut or cleared: those of joints and
/// panels that are not there any more or carry nothing now. Own weight inside the distributed
/// loads, tonnes per metre, is none of the user's.
Long LoadsLost(const LoadArrays& before, const LoadArrays& after, double ownWeight);

/// Highest joint and panel number of a chord, from 0; -1 for a scheme that has no table.
Long LastKnotNum(bool upper, Long treloType, Long panelNum);
Long LastPanelNum(bool upper, Long treloType, Long panelNum);

}  // namespace trelonit
