// Bit rates of MPEG audio: ISO 11172-3, 2.4.2.3, and ISO 13818-3.
#ifndef SONOTIK_TAGS_MPEG_TABLES_H_
#define SONOTIK_TAGS_MPEG_TABLES_H_

#include <array>

namespace sonotik {

// kbit/s by the bit-rate index; the indices 0 (free format) and 15 (forbidden) have none.
using BitRates = std::array<int, 16>;

inline constexpr BitRates kNoBitRates{};

// By the layer, 1 to 3; layer 0 is none.
inline constexpr std::array<BitRates, 4> kBitRatesOfVersion1 = {
    kNoBitRates,
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0}};

// Layers 2 and 3 share their rates here. Version 2.5 has the same.
inline constexpr BitRates kLowBitRates = {0,  8,  16, 24,  32,  40,  48,  56,
                                          64, 80, 96, 112, 128, 144, 160, 0};
inline constexpr std::array<BitRates, 4> kBitRatesOfVersion2 = {
    kNoBitRates,
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},
    kLowBitRates,
    kLowBitRates};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MPEG_TABLES_H_
