#include "imaging/jpeg_transform.h"

#include <cmath>
#include <numbers>

namespace sonotik {
namespace {

// By how much too large coefficient k comes out of Dct, which leaves it to the quantisation.
double Excess(size_t k) {
  const double factor = std::cos(static_cast<double>(k) * std::numbers::pi / 16);
  return k == 0 ? std::sqrt(8.0) : 4 * factor;
}

// Eight one-dimensional transforms at once, one a column. `in` has rows that are `width` apart.
void Dct(const float* in, size_t width, float* out) {
  constexpr float kC4 = 0.707106781F;    // cos(4 pi / 16)
  constexpr float kC6 = 0.382683433F;    // cos(6 pi / 16)
  constexpr float kDiff = 0.541196100F;  // cos(2 pi / 16) - cos(6 pi / 16)
  constexpr float kSum = 1.306562965F;   // cos(2 pi / 16) + cos(6 pi / 16)
  for (size_t i = 0; i < kBlockSide; ++i) {
    const auto at = [=](size_t row) { return in[width * row + i]; };
    const float sum07 = at(0) + at(7), less07 = at(0) - at(7);
    const float sum16 = at(1) + at(6), less16 = at(1) - at(6);
    const float sum25 = at(2) + at(5), less25 = at(2) - at(5);
    const float sum34 = at(3) + at(4), less34 = at(3) - at(4);

    const float outer = sum07 + sum34, inner = sum16 + sum25;
    const float outer_less = sum07 - sum34;
    const float turned = (sum16 - sum25 + outer_less) * kC4;
    const float low = less34 + less25, high = less16 + less07;
    const float shared = (low - high) * kC6;
    const float left = kDiff * low + shared, right = kSum * high + shared;
    const float middle = (less25 + less16) * kC4;
    const float above = less07 + middle, below = less07 - middle;

    float* to = out + i;
    to[0] = outer + inner;
    to[8] = above + right;
    to[16] = outer_less + turned;
    to[24] = below - left;
    to[32] = outer - inner;
    to[40] = below + left;
    to[48] = outer_less - turned;
    to[56] = above - right;
  }
}

// The order of a file for a block that lies column by column.
constexpr std::array<uint8_t, kBlockSize> Turned(const std::array<uint8_t, kBlockSize>& order) {
  std::array<uint8_t, kBlockSize> turned{};
  for (size_t k = 0; k < kBlockSize; ++k) {
    turned[k] = static_cast<uint8_t>(order[k] % kBlockSide * kBlockSide + order[k] / kBlockSide);
  }
  return turned;
}

}  // namespace

FoldedTable Fold(const QuantizationTable& table) {
  FoldedTable folded{};
  for (size_t row = 0; row < kBlockSide; ++row) {
    for (size_t column = 0; column < kBlockSide; ++column) {
      const double entry = table.entries()[kBlockSide * row + column];
      folded[kBlockSide * column + row] =
          static_cast<float>(1 / (entry * Excess(row) * Excess(column)));
    }
  }
  return folded;
}

void TransformBlock(const float* samples, size_t width, const FoldedTable& table,
                    int16_t* coefficients) {
  static const std::array<uint8_t, kBlockSize> order = Turned(kZigzag);
  float down[kBlockSize];
  float block[kBlockSize];
  Dct(samples, width, down);
  for (size_t y = 0; y < kBlockSide; ++y) {
    for (size_t x = 0; x < kBlockSide; ++x) block[kBlockSide * x + y] = down[kBlockSide * y + x];
  }
  Dct(block, kBlockSide, down);
  int16_t rounded[kBlockSize];
  for (size_t k = 0; k < kBlockSize; ++k) {
    const float value = down[k] * table[k];
    rounded[k] = static_cast<int16_t>(static_cast<int>(value + std::copysign(0.5F, value)));
  }
  for (size_t k = 0; k < kBlockSize; ++k) coefficients[k] = rounded[order[k]];
}

}  // namespace sonotik
