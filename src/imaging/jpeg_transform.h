// From samples to quantised coefficients: the forward DCT of ITU-T T.81, A.3.3, by the fast method
// of Arai, Agui and Nakajima (1988).
#ifndef SONOTIK_IMAGING_JPEG_TRANSFORM_H_
#define SONOTIK_IMAGING_JPEG_TRANSFORM_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include "imaging/jpeg_tables.h"

namespace sonotik {

// A quantisation table folded with the factors that the fast DCT leaves out; column by column.
using FoldedTable = std::array<float, kBlockSize>;
FoldedTable Fold(const QuantizationTable& table);

// A block of samples, whose rows are `width` apart, to coefficients in zigzag order.
void TransformBlock(const float* samples, size_t width, const FoldedTable& table,
                    int16_t* coefficients);

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_JPEG_TRANSFORM_H_
