#include "imaging/jpeg_entropy.h"

#include <bit>
#include <cstdlib>
#include <cstring>

namespace sonotik {
namespace {

constexpr size_t kBufferSize = size_t{64} << 10;
// 64 codes of 16 bits with up to 11 more, a zero byte behind every byte, and the word's rest.
constexpr size_t kMostBlockBytes = 2 * (kBlockSize * 27 / 8 + 8);

constexpr unsigned kEndOfBlock = 0x00;
constexpr unsigned kSixteenZeros = 0xF0;

// One bit for each coefficient that isn't 0, the first one lowest.
uint64_t NonZero(const int16_t* coefficients) {
  uint64_t mask = 0;
  // In parts for which a vector unit has room.
  for (unsigned first = 0; first < kBlockSize; first += 16) {
    unsigned part = 0;
    for (unsigned k = 0; k < 16; ++k) part |= unsigned{coefficients[first + k] != 0} << k;
    mask |= uint64_t{part} << first;
  }
  return mask;
}

unsigned SizeOf(int value) {
  return static_cast<unsigned>(std::bit_width(static_cast<unsigned>(std::abs(value))));
}

// The bits behind a code that say which value of a size it is.
uint32_t Rest(int value, unsigned size) {
  return static_cast<uint32_t>(value < 0 ? value - 1 : value) & ((1U << size) - 1);
}

}  // namespace

inline void ScanWriter::Bits::PutByte(uint8_t byte) {
  *to++ = byte;
  // In a scan FF begins a marker unless 0 follows.
  if (byte == 0xFF) *to++ = 0;
}

inline void ScanWriter::Bits::Put(uint32_t bits, unsigned count) {
  word = word << count | bits;
  filled += count;
  if (filled < 32) return;
  filled -= 32;
  const auto full = static_cast<uint32_t>(word >> filled);
  // True if one of the four bytes is FF.
  if ((full & 0x80808080U & (~full - 0x01010101U)) != 0) {
    for (int shift = 24; shift >= 0; shift -= 8) PutByte(static_cast<uint8_t>(full >> shift));
    return;
  }
  const uint8_t bytes[4] = {static_cast<uint8_t>(full >> 24), static_cast<uint8_t>(full >> 16),
                            static_cast<uint8_t>(full >> 8), static_cast<uint8_t>(full)};
  std::memcpy(to, bytes, sizeof bytes);
  to += sizeof bytes;
}

ScanWriter::ScanWriter(std::string& out) : out_(out), buffer_(kBufferSize) {
  bits_.to = buffer_.data();
}

void ScanWriter::WriteBlock(const int16_t* coefficients, int& last_dc, const HuffmanCodes& dc,
                            const HuffmanCodes& ac) {
  if (buffer_.data() + buffer_.size() - bits_.to < static_cast<ptrdiff_t>(kMostBlockBytes)) Drain();
  Bits bits = bits_;
  const auto put = [&bits](const HuffmanCodes& codes, unsigned symbol, unsigned size, int value) {
    bits.Put(uint32_t{codes.code[symbol]} << size | Rest(value, size), codes.length[symbol] + size);
  };
  const int step = coefficients[0] - last_dc;
  last_dc = coefficients[0];
  put(dc, SizeOf(step), SizeOf(step), step);

  unsigned place = 0;
  for (uint64_t left = NonZero(coefficients) >> 1; left != 0;) {
    auto zeros = static_cast<unsigned>(std::countr_zero(left));
    left = left >> zeros >> 1;
    place += zeros + 1;
    for (; zeros >= 16; zeros -= 16) put(ac, kSixteenZeros, 0, 0);
    const int value = coefficients[place];
    const unsigned size = SizeOf(value);
    put(ac, zeros << 4 | size, size, value);
  }
  if (place + 1 < kBlockSize) put(ac, kEndOfBlock, 0, 0);
  bits_ = bits;
}

void ScanWriter::Finish() {
  bits_.Put(0x7F, 7);
  for (; bits_.filled >= 8; bits_.filled -= 8) {
    bits_.PutByte(static_cast<uint8_t>(bits_.word >> (bits_.filled - 8)));
  }
  bits_.filled = 0;
  Drain();
}

void ScanWriter::Drain() {
  out_.append(reinterpret_cast<const char*>(buffer_.data()),
              static_cast<size_t>(bits_.to - buffer_.data()));
  bits_.to = buffer_.data();
}

}  // namespace sonotik
