// A media file under the readers' hands: opened read-only, so that it can be read while it plays,
// and addressed by byte offset, also beyond 2 GB.
#ifndef SONOTIK_TAGS_MEDIA_FILE_H_
#define SONOTIK_TAGS_MEDIA_FILE_H_

#include <array>
#include <cstdint>
#include <fstream>
#include <span>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

// The readers take bites of a few bytes from three places of a file: its start, the first frame of
// its sound and its end. A block around each is kept, so that every place is read once.
class MediaFile : public ByteSource {
 public:
  // A file that isn't there, or is no plain file, is not open and has the size 0.
  explicit MediaFile(std::string_view path);

  bool open() const { return file_.is_open(); }
  int64_t size() const override { return size_; }

 private:
  static constexpr int64_t kBlockSize = 4096;
  struct Block {
    int64_t number = -1;
    std::array<uint8_t, kBlockSize> bytes;
  };

  void Fetch(int64_t offset, std::span<uint8_t> bytes) override;
  void ReadFromDisk(int64_t offset, std::span<uint8_t> bytes);
  const Block& BlockWith(int64_t offset);

  std::filebuf file_;
  int64_t size_ = 0;
  std::array<Block, 4> blocks_;
  size_t next_block_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MEDIA_FILE_H_
