#include "tags/media_file.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "files/paths.h"

namespace sonotik {

MediaFile::MediaFile(std::string_view path) {
  const std::filesystem::path native = NativePath(path);
  std::error_code error;
  // A pipe would block at the opening, and a folder has no bytes.
  if (!std::filesystem::is_regular_file(native, error)) return;
  stream_.open(native, std::ios::binary | std::ios::ate);
  if (stream_.is_open()) size_ = std::max<int64_t>(0, stream_.tellg());
}

std::vector<uint8_t> MediaFile::Read(int64_t offset, int64_t count) {
  std::vector<uint8_t> bytes(static_cast<size_t>(count));
  if (offset < 0 || offset >= size_) return bytes;
  stream_.clear();
  stream_.seekg(offset);
  stream_.read(reinterpret_cast<char*>(bytes.data()), std::min(count, size_ - offset));
  return bytes;
}

bool BeginsWith(std::span<const uint8_t> bytes, std::string_view mark) {
  return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

uint32_t BigEndian(std::span<const uint8_t> bytes) {
  uint32_t number = 0;
  for (const uint8_t byte : bytes) number = number << 8 | byte;
  return number;
}

}  // namespace sonotik
