#include "tests/opinion/HandWorkedDesigns.h"

// The arithmetic, N in t, lengths in m, A in cm2, J in cm4, radii in cm. Throughout
//   strength  s = N gn 98.1 / (A Ry gc)         stability  s / phi
//   lambda = 100 l / i, i = sqrt(J / A)         x = lambda sqrt(Ry / E)
//   slenderness  lambda / limit
// with phi by formula (8), (9) or (10) as told, and in compression the limit 180 - 60 a (chords,
// support diagonals, support posts) or 210 - 60 a (others), a the stability within 0.5 and 1.

namespace trelonit::test {

namespace {

/// Two equal angles 10 mm apart; z is the centroid's distance from the leg, mm.
SectionRec PairOfAngles(double area, double inertia, double z) {
  SectionRec section;
  section.Profile.A = area;
  section.Profile.Jy = inertia;
  section.Profile.Jz = inertia;
  section.Profile.y0 = z;
  section.Profile.z0 = z;
  section.Gdist = 10;
  section.Paired = true;
  section.Layout = 2;
  return section;
}

SectionRec Tube(double area, double inertia) {
  return Single(area, inertia, inertia, 11);
}

/// Parallel chords of 12 m, 3 m high, four panels of 3 m: every diagonal at 45 degrees. 8 t on the
/// upper joints, half at the ends; reactions 16 t. Upper chord held at every other joint, 6 m;
/// lower one at its ends only, 12 m. Dynamic loads.
///
/// Joints from the left. Support: post -16. Its head: 16 - 4 = 12 go into the support diagonal,
/// 12 sqrt 2 = 16.97056, and press the chord by 12. Foot of the first diagonal: second post -12,
/// lower chord 12. Head of that post: 12 - 8 = 4 into the next diagonal, 4 sqrt 2 = 5.65685, upper
/// chord -12 - 4 = -16. Head of the middle post: nothing but its load, -8. The outer bars of the
/// lower chord carry nothing. The right half is alike.
///
/// Sections (GOST 8509-93), angles in pairs, legs 10 mm apart:
///   upper chord L100x8: A = 2 15.6 = 31.2, Jx = 2 147.19 = 294.38, ix = 3.07169,
///     Jy = 2 (147.19 + 15.6 (2.75 + 0.5)^2) = 623.93, iy = 4.47189
///   lower chord, posts, support diagonals L75x6: A = 17.56, Jx = 93.14, ix = 2.30306,
///     Jy = 2 (46.57 + 8.78 (2.06 + 0.5)^2) = 208.2212, iy = 3.44350
///   other diagonals L63x5: A = 12.26, Jx = 46.2, ix = 1.94124,
///     Jy = 2 (23.1 + 6.13 (1.74 + 0.5)^2) = 107.7158, iy = 2.96411
/// Ry = 240, E = 206000, gc = gn = 0.95: s = N 98.1 / (240 A), Ry / E = 0.001165049.
HandWorkedDesign ParallelChords() {
  TreloData data = Design(1, 4, 12, 3, 3);
  Fill(data.UpPForce, 8);
  data.UpPForce[0] = 4;
  data.UpPForce[4] = 4;
  data.UpPoyasBrace = 3;
  data.DownPoyasBrace = 1;
  const SectionRec L100 = PairOfAngles(15.6, 147.19, 27.5);
  const SectionRec L75 = PairOfAngles(8.78, 46.57, 20.6);
  const SectionRec L63 = PairOfAngles(6.13, 23.1, 17.4);
  const CheckNumbers numbers{.Ry = 240,
                             .E = 206000,
                             .Yc = 0.95,
                             .Gn = 0.95,
                             .Density = 7.85,
                             .Dynamic = true,
                             .LimitUser = 150};
  const double r2 = 1.4142135623730951;
  return {
      .Name = "scheme 1, paired angles, dynamic loads",
      .Design = OpinionCase(data, Sections(L100, L75, L63, L75, L75), numbers),
      .Groups = {
          // Bar 2: s = 16 98.1 / (240 31.2) = 0.20962.
          //   X: l 3, lambda 97.666, x 3.33362, (9) 1.454854 - 0.339194 x + 0.0210573 x^2 =
          //      0.55812: 0.37557; a 0.5: 97.666 / 150 = 0.65111
          //   Y: l 6, lambda 134.172, x 4.57965, (10) 332 / (20.9732 46.42035) = 0.34101: 0.61469;
          //      limit 180 - 60 0.61469 = 143.118: 0.93749
          {ElementGroup::UpPoyas,
           {-12, -16, -16, -12},
           {0.20962, 0.37557, 0.61469, 0.65111, 0.93749}},
          // Bar 2: 12 98.1 / (240 17.56) = 0.27933. All bars: 130.261 / 250 = 0.52105;
          // l 12, lambda 348.483 / 250 = 1.39393.
          {ElementGroup::DwnPoyas, {0, 12, 12, 0}, {0.27933, 0, 0, 0.52105, 1.39393}},
          // Bar 1, a support post: s = 16 98.1 / (240 17.56) = 0.37244.
          //   X: l 3, lambda 130.261, x 4.44618, (9) 0.36301: 1.02598; a 1: 130.261 / 120 = 1.08551
          //   Y: l 3, lambda 87.121, x 2.97367, (9) 0.63241: 0.58892; limit 144.665: 0.60222
          {ElementGroup::Stoyka,
           {-16, -12, -8, -12, -16},
           {0.37244, 1.02598, 0.58892, 1.08551, 0.60222}},
          // 5.65685 98.1 / (240 12.26) = 0.18860. X: l 0.8 4.24264 = 3.39411, lambda 174.844 / 350
          // =
          // 0.49955; Y: l 4.24264, lambda 143.134 / 350 = 0.40895.
          {ElementGroup::Raskos, {4 * r2, 4 * r2}, {0.18860, 0, 0, 0.49955, 0.40895}},
          // 16.97056 98.1 / (240 17.56) = 0.39503. l 4.24264 both ways: 184.217 / 250 = 0.73687;
          // 123.207 / 250 = 0.49283.
          {ElementGroup::OpornRaskos, {12 * r2, 12 * r2}, {0.39503, 0, 0, 0.73687, 0.49283}},
      }};
}

/// Triangles with verticals, 12 m, 2 m high, four panels of 3 m, 4 t/m on the upper chord: 12 t on
/// a joint, 6 t at the ends; reactions 24 t. Upper chord held at all joints, 3 m; lower one, a bar
/// of 6 m, also in the middle, 3 m. Static loads.
///
/// Support: 24 - 6 = 18 into the diagonal of sqrt(3^2 + 2^2) = 3.60555 m: 18 3.60555 / 2 =
/// 32.44996; upper chord -18 3 / 2 = -27. First vertical: its load, -12. Lower joint: 18 - 12 = 6
/// must come down through the second diagonal: -6 3.60555 / 2 = -10.81665; lower chord 27 + 6 3 / 2
/// = 36. Over the second panel the upper chord keeps its -27.
///
/// Square tubes 120x4 (A 18.5, J 408.5, i 4.69905), 100x4 (15.3, 231.3, 3.88814), 80x4 (12.2,
/// 115.3, 3.07421). Ry = 240, E = 206000, gc = gn = 1: s = N 98.1 / (240 A).
HandWorkedDesign TrianglesWithVerticals() {
  TreloData data = Design(4, 4, 12, 2, 3);
  Fill(data.UpDistForce, 4);
  data.UpPoyasBrace = 4;
  data.DownPoyasBrace = 2;
  const SectionRec tube120 = Tube(18.5, 408.5);
  const SectionRec tube100 = Tube(15.3, 231.3);
  const SectionRec tube80 = Tube(12.2, 115.3);
  const CheckNumbers numbers{
      .Ry = 240, .E = 206000, .Yc = 1, .Gn = 1, .Density = 7.85, .LimitUser = 150};
  const double diagonal = 3.605551275463989;
  return {
      .Name = "scheme 4, square tubes, static loads",
      .Design = OpinionCase(data, Sections(tube120, tube100, tube80, tube100, tube80), numbers),
      .Groups = {
          // s = 27 98.1 / (240 18.5) = 0.59655; l 3 both ways: lambda 63.843, x 2.17914,
          // (8) 1 - 0.0665573 x sqrt x = 0.78590: 0.75907; limit 134.456: 0.47482.
          {ElementGroup::UpPoyas,
           {-27, -27, -27, -27},
           {0.59655, 0.75907, 0.75907, 0.47482, 0.47482}},
          // 36 98.1 / (240 15.3) = 0.96176. X: l 6, 154.315 / 400 = 0.38579; Y: l 3, 0.19289.
          {ElementGroup::DwnPoyas, {36}, {0.96176, 0, 0, 0.38579, 0.19289}},
          // s = 12 98.1 / (240 12.2) = 0.40205.
          //   X: l 0.8 2 = 1.6, lambda 52.046, x 1.77648, (8) 0.84241: 0.47726; a 0.5: 0.28914
          //   Y: l 2, lambda 65.057, x 2.22060, (8) 0.77976: 0.51561; limit 179.064: 0.36332
          {ElementGroup::Stoyka, {-12, -12}, {0.40205, 0.47726, 0.51561, 0.28914, 0.36332}},
          // s = 10.81665 98.1 / (240 12.2) = 0.36240.
          //   X: l 2.88444, lambda 93.827, x 3.20257, (9) 0.58453: 0.61998; limit 172.801: 0.54298
          //   Y: l 3.60555, lambda 117.284, x 4.00321, (9) 0.43445: 0.83417; limit 159.950: 0.73325
          {ElementGroup::Raskos,
           {-3 * diagonal, -3 * diagonal},
           {0.36240, 0.61998, 0.83417, 0.54298, 0.73325}},
          // 32.44996 98.1 / (240 15.3) = 0.86692; l 3.60555: lambda 92.732 / 400 = 0.23183.
          {ElementGroup::OpornRaskos,
           {9 * diagonal, 9 * diagonal},
           {0.86692, 0, 0, 0.23183, 0.23183}},
      }};
}

/// The second scheme with end panels of 2 m and two of 3 m, 10 m, 2 m high, loaded without symmetry
/// and below as well: 5 t on the second upper joint (x = 2), 3 t on the third lower one (x = 8).
/// Upper chord held in the middle, 5 m; lower one, 3 + 3 m, at every other joint, 6 m. Dynamic.
///
/// Reactions: right (5 2 + 3 8) / 10 = 3.4, left 4.6. Left support: diagonal 4.6 sqrt 2 = 6.50538,
/// upper chord -4.6. Its foot: post -4.6, lower chord 4.6. Head of the post: 5 - 4.6 = 0.4 too
/// much, so the second diagonal, sqrt(3^2 + 2^2) m, is pressed: -0.4 3.60555 / 2 = -0.72111; upper
/// chord -4.6 + 0.4 3 / 2 = -4 (moments about the middle: (4.6 5 - 5 3) / 2 = 4). The middle post
/// has no load: 0. Lower chord 4.6 - 0.6 - 0.6 = 3.4; third diagonal 0.72111; third post -0.4;
/// upper chord -4 + 0.6 = -3.4; last diagonal 3.4 sqrt 2 = 4.80833.
///
/// Round tubes (GOST 10704-91) 102x3 (A 9.33, J 114.416, i 3.50189), 76x3 (6.88, 45.9074, 2.58314),
/// 60x3 (5.37, 21.878, 2.01844). Ry = 315, E = 206000, gc = 0.9, gn = 1: s = N 98.1 / (283.5 A),
/// Ry / E = 0.001529126, sqrt 0.0391040.
HandWorkedDesign HeldAbove() {
  TreloData data = Design(2, 4, 10, 2, 2);
  data.UpPForce[1] = 5;
  data.DwnPForce[2] = 3;
  data.UpPoyasBrace = 2;
  data.DownPoyasBrace = 3;
  const SectionRec tube102 = Tube(9.33, 114.416);
  const SectionRec tube76 = Tube(6.88, 45.9074);
  const SectionRec tube60 = Tube(5.37, 21.878);
  const CheckNumbers numbers{.Ry = 315,
                             .E = 206000,
                             .Yc = 0.9,
                             .Gn = 1,
                             .Density = 7.85,
                             .Dynamic = true,
                             .LimitUser = 150};
  const double r2 = 1.4142135623730951;
  const double diagonal = 3.605551275463989;
  return {
      .Name = "scheme 2, round tubes, loads without symmetry",
      .Design = OpinionCase(data, Sections(tube102, tube76, tube60, tube76, tube60), numbers),
      .Groups = {
          // Bar 1: s = 4.6 98.1 / (283.5 9.33) = 0.17061.
          //   Y: l 5, lambda 142.780, x 5.58328, (10) 332 / (31.1730 45.41672) = 0.23450: 0.72753;
          //      limit 136.348: 1.04717
          // Bar 2: s = 0.14835.
          //   X: l 3, lambda 85.668, x 3.34997, (9) 0.56085: 0.26452; a 0.5: 85.668 / 150 = 0.57112
          {ElementGroup::UpPoyas,
           {-4.6, -4, -4, -3.4},
           {0.17061, 0.26452, 0.72753, 0.57112, 1.04717}},
          // 4.6 98.1 / (283.5 6.88) = 0.23136. X: l 3, 116.138 / 250; Y: l 6, 232.276 / 250.
          {ElementGroup::DwnPoyas, {4.6, 3.4}, {0.23136, 0, 0, 0.46455, 0.92910}},
          // Bar 1: s = 4.6 98.1 / (283.5 5.37) = 0.29641.
          //   X: l 1.6, lambda 79.269, x 3.09974, (9) 0.61250: 0.48394; a 0.5: 79.269 / 180 =
          //   0.44038
          //   Y: l 2, lambda 99.086, x 3.87467, (9) 0.46027: 0.64399; limit 171.360: 0.57823
          {ElementGroup::Stoyka, {-4.6, 0, -0.4}, {0.29641, 0.48394, 0.64399, 0.44038, 0.57823}},
          // Bar 1: s = 0.72111 98.1 / (283.5 5.37) = 0.04647.
          //   X: l 2.88444, lambda 142.904, x 5.58812, (10) 0.23412: 0.19848; 142.904 / 180 =
          //   0.79391
          //   Y: l 3.60555, lambda 178.630, x 6.98515, (10) 0.15459: 0.30058; 178.630 / 180 =
          //   0.99239
          {ElementGroup::Raskos,
           {-0.2 * diagonal, 0.2 * diagonal},
           {0.04647, 0.19848, 0.30058, 0.79391, 0.99239}},
          // Bar 1: 6.50538 98.1 / (283.5 6.88) = 0.32719; l 2.82843: 109.496 / 250 = 0.43798.
          {ElementGroup::OpornRaskos, {4.6 * r2, 3.4 * r2}, {0.32719, 0, 0, 0.43798, 0.43798}},
      }};
}

}  // namespace

std::vector<HandWorkedDesign> HandWorkedDesigns() {
  return {ParallelChords(), TrianglesWithVerticals(), HeldAbove()};
}

}  // namespace trelonit::test
