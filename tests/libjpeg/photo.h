// Pictures that have what photographs have: soft light, detail of all sizes, edges and grain.
#ifndef SONOTIK_TESTS_LIBJPEG_PHOTO_H_
#define SONOTIK_TESTS_LIBJPEG_PHOTO_H_

#include <algorithm>
#include <cstdint>

#include "imaging/cImage.h"

namespace sonotik {

// Evenly spread from 0 to 1, the same for the same place.
inline float Chance(int x, int y, unsigned salt) {
  uint32_t mixed = static_cast<uint32_t>(x) * 0x9E3779B1U ^ static_cast<uint32_t>(y) * 0x85EBCA77U ^
                   salt * 0xC2B2AE3DU;
  mixed = (mixed ^ mixed >> 15) * 0x2C1B3C6DU;
  mixed = (mixed ^ mixed >> 12) * 0x297A2D39U;
  return static_cast<float>((mixed ^ mixed >> 15) >> 8) / 16777216.0F;
}

// Chance at the corners of squares, and smoothly between them.
inline float Cloud(int x, int y, int square, unsigned salt) {
  const int left = x / square, top = y / square;
  const auto smooth = [square](int at) {
    const float t = static_cast<float>(at % square) / static_cast<float>(square);
    return t * t * (3 - 2 * t);
  };
  const auto along = [&](int row) {
    const float from = Chance(left, row, salt), to = Chance(left + 1, row, salt);
    return from + (to - from) * smooth(x);
  };
  return along(top) + (along(top + 1) - along(top)) * smooth(y);
}

inline cImage Photo(int width, int height) {
  cImage image;
  image.Create(width, height, 24);
  for (int y = 0; y < height; ++y) {
    uint8_t* row = image.DIBitsPtr() + image.BytesPerScanLine() * static_cast<size_t>(y);
    for (int x = 0; x < width; ++x) {
      float light = 10 + 80 * Cloud(x, y, 331, 1) + 60 * Cloud(x, y, 83, 2) +
                    44 * Cloud(x, y, 17, 3) + 40 * Cloud(x, y, 3, 4) + 24 * Chance(x, y, 5);
      // Things in front, with hard edges.
      if (Cloud(x, y, 140, 6) > 0.62F) light = 0.55F * light + 20;
      for (unsigned c = 0; c < 3; ++c) {
        const float color =
            light + 50 * (Cloud(x, y, 211, 10 + c) - 0.5F) + 4 * Chance(x, y, 20 + c);
        row[3 * static_cast<size_t>(x) + c] = static_cast<uint8_t>(std::clamp(color, 0.0F, 255.0F));
      }
    }
  }
  return image;
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_LIBJPEG_PHOTO_H_
