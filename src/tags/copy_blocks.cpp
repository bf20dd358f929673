#include "tags/copy_blocks.h"

#include <algorithm>

#include "files/paths.h"

namespace sonotik {

std::ofstream NewFile(std::string_view path) {
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(NativePath(path), std::ios::binary | std::ios::trunc);
  return file;
}

void CopyBlocks(ByteSource& source, int64_t from, int64_t to, std::ostream& out,
                const std::function<void()>& yield) {
  while (from < to) {
    const auto block = source.ReadAtMost(from, std::min(kCopyBlock, to - from));
    if (block.empty()) return;
    out.write(reinterpret_cast<const char*>(block.data()),
              static_cast<std::streamsize>(block.size()));
    from += static_cast<int64_t>(block.size());
    if (yield) yield();
  }
}

}  // namespace sonotik
