// The tables of baseline JPEG: ITU-T T.81, annex K, and what is made of them.
#ifndef SONOTIK_IMAGING_JPEG_TABLES_H_
#define SONOTIK_IMAGING_JPEG_TABLES_H_

#include <array>
#include <cstdint>
#include <span>

namespace sonotik {

// Samples, and coefficients, of a block of 8 x 8.
inline constexpr int kBlockSide = 8;
inline constexpr size_t kBlockSize = 64;

// Where the coefficients of a file stand in the block, row by row.
extern const std::array<uint8_t, kBlockSize> kZigzag;

// By what each coefficient is divided, row by row.
class QuantizationTable {
 public:
  // A precision of 0 is for entries of 8 bits, 1 for 16; any other throws RuntimeFailure("Illegal
  // precission in Quantization Table"). An entry that is 0 or doesn't fit throws
  // RuntimeFailure("Bad Quantization Table").
  QuantizationTable(int precision, const std::array<uint16_t, kBlockSize>& entries);
  const std::array<uint16_t, kBlockSize>& entries() const { return entries_; }

 private:
  std::array<uint16_t, kBlockSize> entries_;
};

// The standard's two tables, which are those of quality 50.
extern const std::array<uint16_t, kBlockSize> kLuminanceBase;
extern const std::array<uint16_t, kBlockSize> kChrominanceBase;

// A base table for a quality of 1 to 100, where 100 leaves nothing but 1s.
QuantizationTable Scaled(const std::array<uint16_t, kBlockSize>& base, int quality);

// Codes as a file has them: how many there are of each length from 1 to 16 bits, and the symbols in
// the order of their codes.
struct HuffmanTable {
  std::array<uint8_t, 16> counts;
  std::span<const uint8_t> symbols;
};

// The standard's tables; for luminance and for chrominance.
extern const std::array<HuffmanTable, 2> kDcTables;
extern const std::array<HuffmanTable, 2> kAcTables;

// The code of each symbol; a symbol without one has length 0.
struct HuffmanCodes {
  // Throws RuntimeFailure("Bad Huffman Table") if there are more codes of a length than that length
  // can tell apart, or another number of symbols than of codes.
  explicit HuffmanCodes(const HuffmanTable& table);

  std::array<uint16_t, 256> code{};
  std::array<uint8_t, 256> length{};
};

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_JPEG_TABLES_H_
