// Copying stretches of media files, which may be larger than memory.
#ifndef SONOTIK_TAGS_COPY_BLOCKS_H_
#define SONOTIK_TAGS_COPY_BLOCKS_H_

#include <cstdint>
#include <fstream>
#include <functional>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

inline constexpr int64_t kCopyBlock = 2097152;

// A new file in the place of any old one. It throws std::runtime_error where it can't be made, and
// later where it can't be written or closed.
std::ofstream NewFile(std::string_view path);

// Writes what there is of the bytes from `from` up to `to`; `yield`, if any, runs behind each
// block.
void CopyBlocks(ByteSource& source, int64_t from, int64_t to, std::ostream& out,
                const std::function<void()>& yield);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_COPY_BLOCKS_H_
