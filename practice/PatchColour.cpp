#include "practice/PatchColour.h"

#include <algorithm>
#include <cmath>

static double bell(double x, double centre, double left, double right) {
  const double t = (x - centre) / (x < centre ? left : right);
  return std::exp(-0.5 * t * t);
}

// Transmittance of a solid ink film: absorption around a main and a side band, and a little everywhere.
struct Film {
  double centre, width, strength, sideCentre, sideWidth, sideStrength, grey;
};

static constexpr Film Cyan{640, 62, 1.40, 400, 40, 0.16, 0.03};
static constexpr Film Magenta{545, 40, 1.30, 435, 48, 0.50, 0.02};
static constexpr Film Yellow{430, 42, 1.45, 480, 18, 0.30, 0.01};

static double through(const Film& film, double nm) {
  return std::pow(10.0, -(film.strength * bell(nm, film.centre, film.width, film.width) +
                          film.sideStrength * bell(nm, film.sideCentre, film.sideWidth, film.sideWidth) + film.grey));
}

static double paperAt(double nm) { return 0.89 - 0.35 * bell(nm, 360, 30, 32) + 0.02 * bell(nm, 440, 20, 25); }

// Printed dots grow: about 16 percent in the middle of the scale.
static double grown(double percent) {
  const double a = std::clamp(percent / 100, 0.0, 1.0);
  return a + 0.64 * a * (1 - a);
}

static double nextNoise(unsigned& seed) {
  seed = seed * 1664525u + 1013904223u;
  return static_cast<double>(seed >> 8) / static_cast<double>(1u << 24) - 0.5;
}

Spectrum spectrumOf(const Ink& ink, double noise, unsigned& seed) {
  Spectrum spectrum{};
  const double c = grown(ink.c), m = grown(ink.m), y = grown(ink.y), k = grown(ink.k);
  const double drift = 1 + noise * nextNoise(seed);
  for (int band = 0; band < Bands; ++band) {
    const double nm = FirstBand + band * BandStep;
    double r = paperAt(nm);
    r *= 1 - c * (1 - through(Cyan, nm));
    r *= 1 - m * (1 - through(Magenta, nm));
    r *= 1 - y * (1 - through(Yellow, nm));
    r *= 1 - k * (1 - std::pow(10.0, -1.62));
    spectrum[static_cast<size_t>(band)] = std::clamp(r * drift * (1 + 0.2 * noise * nextNoise(seed)), 0.0, 1.2);
  }
  return spectrum;
}

// Colour matching functions as sums of lobes (Wyman, Sloan and Shirley, 2013).
static double xBar(double nm) {
  return 1.056 * bell(nm, 599.8, 37.9, 31.0) + 0.362 * bell(nm, 442.0, 16.0, 26.7) -
         0.065 * bell(nm, 501.1, 20.4, 26.2);
}
static double yBar(double nm) { return 0.821 * bell(nm, 568.8, 46.9, 40.5) + 0.286 * bell(nm, 530.9, 16.3, 31.1); }
static double zBar(double nm) { return 1.217 * bell(nm, 437.0, 11.8, 36.0) + 0.681 * bell(nm, 459.0, 26.0, 13.8); }

// Daylight of 5000 K taken as a black body of that temperature.
static double daylight(double nm) {
  const double metres = nm * 1e-9;
  return 1e-12 / (std::pow(metres, 5) * (std::exp(1.4388e-2 / (metres * 5000)) - 1)) * 1e-20;
}

static double curve(double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; }

Lab labOf(const Spectrum& spectrum) {
  double x = 0, y = 0, z = 0, xWhite = 0, yWhite = 0, zWhite = 0;
  for (int band = 0; band < Bands; ++band) {
    const double nm = FirstBand + band * BandStep, light = daylight(nm), r = spectrum[static_cast<size_t>(band)];
    x += light * xBar(nm) * r;
    y += light * yBar(nm) * r;
    z += light * zBar(nm) * r;
    xWhite += light * xBar(nm);
    yWhite += light * yBar(nm);
    zWhite += light * zBar(nm);
  }
  const double fx = curve(x / xWhite), fy = curve(y / yWhite), fz = curve(z / zWhite);
  return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

std::vector<Patch> measure(const std::vector<Ink>& inks, unsigned seed) {
  std::vector<Patch> patches;
  int number = 0;
  for (const Ink& ink : inks) {
    Patch patch;
    const int row = number / 26;
    patch.name = std::string(1, static_cast<char>('A' + number % 26)) + std::to_string(row + 1);
    patch.ink = ink;
    patch.spectrum = spectrumOf(ink, 0.012, seed);
    patch.lab = labOf(patch.spectrum);
    patches.push_back(patch);
    ++number;
  }
  return patches;
}

std::vector<Ink> controlStrip(int count) {
  static const std::vector<Ink> Group = {
      {0, 0, 0, 0},     {100, 0, 0, 0},     {0, 100, 0, 0},  {0, 0, 100, 0}, {0, 0, 0, 100},  {100, 100, 0, 0},
      {100, 0, 100, 0}, {0, 100, 100, 0},   {40, 0, 0, 0},   {0, 40, 0, 0},  {0, 0, 40, 0},   {0, 0, 0, 40},
      {80, 0, 0, 0},    {0, 80, 0, 0},      {0, 0, 80, 0},   {0, 0, 0, 80},  {50, 40, 40, 0}, {25, 19, 19, 0},
      {75, 66, 66, 0},  {100, 100, 100, 0}, {70, 60, 60, 95}};
  std::vector<Ink> inks;
  for (int i = 0; i < count; ++i) inks.push_back(Group[static_cast<size_t>(i) % Group.size()]);
  return inks;
}

std::vector<Ink> testChart(int count) {
  static const std::vector<double> Steps = {0, 10, 20, 40, 70, 100}, Blacks = {0, 20, 40, 60, 80};
  std::vector<Ink> inks;
  for (const double k : Blacks)
    for (const double c : Steps)
      for (const double m : Steps)
        for (const double y : Steps)
          if (c + m + y + k <= 330) inks.push_back({c, m, y, k});
  inks.resize(std::min(inks.size(), static_cast<size_t>(count)));
  return inks;
}
