// A media file under the readers' hands: opened read-only, so that it can be read while it plays,
// and addressed by byte offset, also beyond 2 GB.
#ifndef SONOTIK_TAGS_MEDIA_FILE_H_
#define SONOTIK_TAGS_MEDIA_FILE_H_

#include <cstdint>
#include <fstream>
#include <span>
#include <string_view>
#include <vector>

namespace sonotik {

class MediaFile {
 public:
  // A file that isn't there, or is no plain file, is not open and has the size 0.
  explicit MediaFile(std::string_view path);

  bool open() const { return stream_.is_open(); }
  int64_t size() const { return size_; }

  // Exactly `count` bytes, zeros where the file has none (behind its end, before its start). The
  // caller keeps `count` within reason: it is allocated.
  std::vector<uint8_t> Read(int64_t offset, int64_t count);

 private:
  std::ifstream stream_;
  int64_t size_ = 0;
};

bool BeginsWith(std::span<const uint8_t> bytes, std::string_view mark);

// An unsigned big-endian number of all the bytes, at most four.
uint32_t BigEndian(std::span<const uint8_t> bytes);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MEDIA_FILE_H_
