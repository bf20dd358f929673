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
  // The blocks here are all the buffer that is needed.
  file_.pubsetbuf(nullptr, 0);
  if (!file_.open(native, std::ios::in | std::ios::binary)) return;
  size_ = std::max<int64_t>(0, file_.pubseekoff(0, std::ios::end, std::ios::in));
}

void MediaFile::Fetch(int64_t offset, std::span<uint8_t> bytes) {
  if (static_cast<int64_t>(bytes.size()) > kBlockSize) {
    ReadFromDisk(offset, bytes);
    return;
  }
  while (!bytes.empty()) {
    const Block& block = BlockWith(offset);
    const auto at = static_cast<size_t>(offset % kBlockSize);
    const size_t count = std::min(bytes.size(), static_cast<size_t>(kBlockSize) - at);
    std::copy_n(block.bytes.begin() + static_cast<std::ptrdiff_t>(at), count, bytes.begin());
    bytes = bytes.subspan(count);
    offset += static_cast<int64_t>(count);
  }
}

// A file that another program has cut meanwhile reads as zeros, like one that was short from the
// start.
void MediaFile::ReadFromDisk(int64_t offset, std::span<uint8_t> bytes) {
  std::streamsize got = 0;
  if (file_.pubseekpos(offset, std::ios::in) == std::streampos(offset)) {
    got = file_.sgetn(reinterpret_cast<char*>(bytes.data()),
                      static_cast<std::streamsize>(bytes.size()));
  }
  std::fill(bytes.begin() + got, bytes.end(), uint8_t{0});
}

const MediaFile::Block& MediaFile::BlockWith(int64_t offset) {
  const int64_t number = offset / kBlockSize;
  for (const Block& block : blocks_) {
    if (block.number == number) return block;
  }
  Block& block = blocks_[next_block_];
  next_block_ = (next_block_ + 1) % blocks_.size();
  block.number = number;
  const int64_t there = std::min(kBlockSize, size_ - number * kBlockSize);
  ReadFromDisk(number * kBlockSize, std::span(block.bytes).first(static_cast<size_t>(there)));
  return block;
}

}  // namespace sonotik
