#pragma once
// A simple model of four inks on paper, good enough for sample files whose numbers a person finds plausible: every
// patch has a reflectance spectrum from 380 to 730 nm, and its colour values follow from that. Plain functions.

#include <array>
#include <string>
#include <vector>

struct Ink {
  double c = 0, m = 0, y = 0, k = 0;  // percent of area
};

struct Lab {
  double l = 0, a = 0, b = 0;
};

inline constexpr int Bands = 36;
inline constexpr int FirstBand = 380;
inline constexpr int BandStep = 10;
using Spectrum = std::array<double, Bands>;

/// Reflectance factors of a patch. `noise` stands for the spread of real measurements, in parts of one.
[[nodiscard]] Spectrum spectrumOf(const Ink& ink, double noise, unsigned& seed);
/// CIELAB (D50, 2 degrees, both approximated) of a spectrum.
[[nodiscard]] Lab labOf(const Spectrum& spectrum);

struct Patch {
  std::string name;
  Ink ink;
  Spectrum spectrum{};
  Lab lab;
};
/// Measures a list of inks.
[[nodiscard]] std::vector<Patch> measure(const std::vector<Ink>& inks, unsigned seed);
/// A control strip: solids, overprints, tints, grey balance.
[[nodiscard]] std::vector<Ink> controlStrip(int count);
/// A test chart: a regular grid through the ink space, `count` patches of it.
[[nodiscard]] std::vector<Ink> testChart(int count);
