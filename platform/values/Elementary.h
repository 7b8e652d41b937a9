#pragma once

/// The elementary functions, with the same bits on every system. The libraries of the systems round
/// them differently in the last bit now and then, which would show where designs are alike but for
/// that bit: two sections of the same mass, two bars of the same force.
///
/// Errors stay below 0.6 of the last bit (Hypotenuse: 1). The results are those that glibc 2.36
/// gives on a processor that multiplies and adds in one instruction; here every processor gives
/// them. The compiler has to make an instruction of std::sqrt, as it does when it optimises: not
/// every library's root is the nearest double.
///
/// Methods: sine and cosine from a table in steps of 1/128 and short series for the rest,
/// arctangent from polynomials about nodes where it is nearly a double (S. Gal and B. Bachelis, "An
/// accurate elementary mathematical library for the IEEE floating point standard", ACM Transactions
/// on Mathematical Software 17, 1991); hypotenuse by a corrected root (C. F. Borges, "An improved
/// algorithm for hypot(a,b)", arXiv:1904.09481).
namespace trelonit::portable {

/// Of an angle in radians. From 2^26 quarters of the circle on (10^8) the system's own.
double Sine(double angle);
double Cosine(double angle);

/// From -pi/2 to pi/2.
double ArcTangent(double slope);

/// The angle to the axis of a way that goes so far along it and rises so much, from -pi to pi.
double Direction(double rise, double run);

/// Overflows and underflows only where the result does.
double Hypotenuse(double a, double b);

/// Ten to a whole power, rounded correctly from 10^-22 to 10^22; beyond, the system's own.
double PowerOfTen(double exponent);

}  // namespace trelonit::portable
