// What the tag readers read from: bytes with a size, by offset. A file is one, and so is a piece of
// memory, so that every reader runs on either.
#ifndef SONOTIK_TAGS_BYTE_SOURCE_H_
#define SONOTIK_TAGS_BYTE_SOURCE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sonotik {

// Offsets count from 0. Zeros stand for all that a source doesn't have, before its start or behind
// its end; reading never fails.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  virtual int64_t size() const = 0;

  void ReadInto(int64_t offset, std::span<uint8_t> bytes);

  // A head of fixed length.
  template <size_t kCount>
  std::array<uint8_t, kCount> Read(int64_t offset) {
    std::array<uint8_t, kCount> bytes;
    ReadInto(offset, bytes);
    return bytes;
  }

  // The bytes that are there, at most `count`: no claim of a file allocates more than it holds.
  std::vector<uint8_t> ReadAtMost(int64_t offset, int64_t count);

 private:
  // `bytes` lie within the source.
  virtual void Fetch(int64_t offset, std::span<uint8_t> bytes) = 0;
};

// Bytes in memory, which must live as long as the source.
class MemorySource : public ByteSource {
 public:
  explicit MemorySource(std::span<const uint8_t> bytes) : bytes_(bytes) {}

  int64_t size() const override { return static_cast<int64_t>(bytes_.size()); }

 private:
  void Fetch(int64_t offset, std::span<uint8_t> bytes) override;

  std::span<const uint8_t> bytes_;
};

bool BeginsWith(std::span<const uint8_t> bytes, std::string_view mark);

// An unsigned big-endian number of all the bytes, at most four.
uint32_t BigEndian(std::span<const uint8_t> bytes);

// The other way, four bytes of 8 bits each, or of 7 as sizes in ID3 tags have them.
std::string BigEndianBytes(int64_t number, int bits = 8);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_BYTE_SOURCE_H_
