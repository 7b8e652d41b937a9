#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "platform/errors/Outcome.h"

namespace trelonit {

// The formulas of SNiP II-23-81* for centrally loaded bars. N forces in tonnes, areas in cm2,
// moments of inertia in cm4, lengths in m, Ry and E in MPa. All raise the run-time errors of
// checked arithmetic and never return a NaN or an infinity.

/// Utilisation N * Gn * 98.1 / (A * Ry * Yc) (clause 5.1); 98.1 turns tonnes per cm2 into MPa.
double CalcStrength(double N, double Area, double Ry, double Yc, double Gn);

/// Utilisation N * Gn * 98.1 / (phi * A * Ry * Yc) (clause 5.3). A phi of 0 raises 11.
double CalcStability(double N, double Phi, double Area, double Ry, double Yc, double Gn);

/// Slenderness Mu * Len * 100 / sqrt(J / A).
double CalcFlex(double Len, double Area, double J, double Mu);

/// Conditional slenderness Flex * sqrt(Ry / E).
double CalcFlexBar(double Flex, double Ry, double E);

/// Buckling coefficient (formulas 8 to 10 of the norm). Not clamped; 0 at or below 0 and, on
/// purpose, at exactly 2.5 and 4.5, which belong to none of the branches.
double CalcPhi(double FlexBar, double Ry, double E);

/// Compression use factor N * 10 * 9.81 / (phi * A * Ry * Yc), at most 1. The reliability
/// coefficient does not enter.
double CalcAlpha(double N, double Ry, double Area, double Phi, double Yc);

/// Limit slenderness of one plane of a group (tables 19 and 20 of the norm). A length that is not
/// positive tells a message and gives a compression limit of 0, except for a single angle, whose
/// length is not looked at.
Outcome<LimitFlex> CalcLimitFlex(const SectionRec& Sec, double Alpha, double Len, bool Dynamic);

/// Mass of the truss, tonnes: composed areas by the length totals of the groups and the density in
/// t/m3. A result that is not positive is returned as 0.
double CalcMass(const TreloResult& Res, double Density, const SectionArray& Sections);

/// The force of greatest magnitude, as its magnitude; the first of equals. Subscripts from 1.
ForceExtreme MaxAbsForce(const BoundedArray<double>& Forces);

/// The smallest signed force; the first of equals.
ForceExtreme MinForce(const BoundedArray<double>& Forces);

/// The forces without the first and the last, from 1 on. Raises 9 for fewer than three.
BoundedArray<double> StripEnds(const BoundedArray<double>& Forces);

/// A when A is greater than B, else B.
double MaxOf(double A, double B);

}  // namespace trelonit
