#include "tags/byte_source.h"

#include <algorithm>

namespace sonotik {

void ByteSource::ReadInto(int64_t offset, std::span<uint8_t> bytes) {
  size_t there = 0;
  if (offset >= 0 && offset < size()) {
    there = static_cast<size_t>(std::min(static_cast<int64_t>(bytes.size()), size() - offset));
    Fetch(offset, bytes.first(there));
  }
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(there), bytes.end(), uint8_t{0});
}

std::vector<uint8_t> ByteSource::ReadAtMost(int64_t offset, int64_t count) {
  std::vector<uint8_t> bytes;
  if (offset < 0 || offset >= size() || count <= 0) return bytes;
  bytes.resize(static_cast<size_t>(std::min(count, size() - offset)));
  Fetch(offset, bytes);
  return bytes;
}

void MemorySource::Fetch(int64_t offset, std::span<uint8_t> bytes) {
  const auto from = bytes_.subspan(static_cast<size_t>(offset), bytes.size());
  std::copy(from.begin(), from.end(), bytes.begin());
}

bool BeginsWith(std::span<const uint8_t> bytes, std::string_view mark) {
  return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

uint32_t BigEndian(std::span<const uint8_t> bytes) {
  uint32_t number = 0;
  for (const uint8_t byte : bytes) number = number << 8 | byte;
  return number;
}

std::string BigEndianBytes(int64_t number, int bits) {
  std::string bytes;
  for (int i = 3; i >= 0; --i) bytes += static_cast<char>(number >> (i * bits) & ((1 << bits) - 1));
  return bytes;
}

}  // namespace sonotik
