// Copying stretches of media files, which may be larger than memory.
#ifndef SONOTIK_TAGS_COPY_BLOCKS_H_
#define SONOTIK_TAGS_COPY_BLOCKS_H_

#include <cstdint>
#include <functional>
#include <ostream>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

inline constexpr int64_t kCopyBlock = 2097152;

// Has a new file written under the name `beside` and then renamed to `path`, in the place of any
// file of that name. Throws std::runtime_error where that can't be done, and nothing of the new
// file is left then.
void WriteBeside(std::string_view beside, std::string_view path,
                 const std::function<void(std::ostream&)>& write);

// Writes what there is of the bytes from `from` up to `to`; `yield`, if any, runs behind each
// block.
void CopyBlocks(ByteSource& source, int64_t from, int64_t to, std::ostream& out,
                const std::function<void()>& yield);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_COPY_BLOCKS_H_
