// From quantised coefficients to the bits of a scan: Huffman coding of ITU-T T.81, F.1.2.
#ifndef SONOTIK_IMAGING_JPEG_ENTROPY_H_
#define SONOTIK_IMAGING_JPEG_ENTROPY_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "imaging/jpeg_tables.h"

namespace sonotik {

// Writes one scan behind what is in `out`, which has all of it after Finish.
class ScanWriter {
 public:
  explicit ScanWriter(std::string& out);

  // Coefficients in zigzag order. `last_dc` is the first one of the component's block before, and
  // becomes this block's.
  void WriteBlock(const int16_t* coefficients, int& last_dc, const HuffmanCodes& dc,
                  const HuffmanCodes& ac);
  // Fills the last byte with 1s.
  void Finish();

 private:
  // Bits go in at the low end of a word and out at its high end. A copy on the stack lies in
  // registers.
  struct Bits {
    void Put(uint32_t bits, unsigned count);
    void PutByte(uint8_t byte);

    uint64_t word = 0;
    unsigned filled = 0;  // never more than 31 between two calls
    uint8_t* to = nullptr;
  };

  void Drain();

  std::string& out_;
  std::vector<uint8_t> buffer_;
  Bits bits_;
};

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_JPEG_ENTROPY_H_
