#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "platform/errors/Outcome.h"

namespace trelonit {

// The formulas of SNiP II-23-81* for centrally loaded bars, to which the clauses and tables below
// belong. Where the program has a rule of its own, it says so. N forces in tonnes, areas in cm2,
// moments of inertia in cm4, lengths in m, Ry and E in MPa. All raise the run-time errors of
// checked arithmetic and never return a NaN or an infinity.

/// Utilisation N * Gn * 98.1 / (A * Ry * Yc) (clause 5.1, formula 5); 98.1 turns tonnes per
/// cm2 into MPa. Gn is the coefficient of GOST 27751-88.
double CalcStrength(double N, double Area, double Ry, double Yc, double Gn);

/// Utilisation N * Gn * 98.1 / (phi * A * Ry * Yc) (clause 5.3, formula 7). A phi of 0 raises
/// 11.
double CalcStability(double N, double Phi, double Area, double Ry, double Yc, double Gn);

/// Slenderness Mu * Len * 100 / sqrt(J / A): the effective length of clause 6.1 over the radius of
/// gyration. Mu is a length factor of table 11.
double CalcFlex(double Len, double Area, double J, double Mu);

/// Conditional slenderness Flex * sqrt(Ry / E) of clause 5.3.
double CalcFlexBar(double Flex, double Ry, double E);

/// Buckling coefficient (clause 5.3, formulas 8 to 10). Not clamped. The program's own rules: 0 at
/// or below 0 and, on purpose, at exactly 2.5 and 4.5, which belong to none of the branches; 0.017
/// beyond 35, where the norm has no formula.
double CalcPhi(double FlexBar, double Ry, double E);

/// Compression use factor N * 10 * 9.81 / (phi * A * Ry * Yc), at most 1: alpha of clause 6.15*,
/// table 19*. The program's own rules: it has no least value, where the norm has 0.5, and the
/// reliability coefficient does not enter.
double CalcAlpha(double N, double Ry, double Area, double Phi, double Yc);

/// Limit slenderness of one plane of a group: in compression 180 - 60 alpha or 210 - 60 alpha
/// (clause 6.15*, table 19*), in tension 400, with dynamic loads 250 and 350 (clause 6.16*, table
/// 20*). The program's own rules: the layout and the length choose where the norm looks at the kind
/// of element, 120 beyond 50 m, and all groups are held to 250. A length that is not positive tells
/// a message and gives a compression limit of 0, except for a single angle, whose length is not
/// looked at.
Outcome<LimitFlex> CalcLimitFlex(const SectionRec& Sec, double Alpha, double Len, bool Dynamic);

/// Mass of the truss, tonnes: composed areas by the length totals of the groups and the density in
/// t/m3; geometry, no norm. A result that is not positive is returned as 0.
double CalcMass(const TreloResult& Res, double Density, const SectionArray& Sections);
/// The same with the areas of a check.
double CalcMass(const TreloResult& Res, double Density, const CheckResult& Areas);

/// The force of greatest magnitude, as its magnitude; the first of equals. Subscripts from 1.
ForceExtreme MaxAbsForce(const BoundedArray<double>& Forces);

/// The smallest signed force; the first of equals.
ForceExtreme MinForce(const BoundedArray<double>& Forces);

/// The forces without the first and the last, from 1 on. Raises 9 for fewer than three.
BoundedArray<double> StripEnds(const BoundedArray<double>& Forces);

/// A when A is greater than B, else B.
double MaxOf(double A, double B);

}  // namespace trelonit
