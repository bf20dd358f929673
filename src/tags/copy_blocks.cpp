#include "tags/copy_blocks.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "files/paths.h"

namespace sonotik {

void WriteBeside(std::string_view beside, std::string_view path,
                 const std::function<void(std::ostream&)>& write) {
  const std::filesystem::path native = NativePath(beside);
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(native, std::ios::binary | std::ios::trunc);
  try {
    write(file);
    file.close();
    std::filesystem::rename(native, NativePath(path));
  } catch (const std::runtime_error&) {
    std::error_code error;
    std::filesystem::remove(native, error);
    throw;
  }
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
