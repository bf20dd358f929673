#include "tags/mp4_atoms.h"

#include <algorithm>

#include "files/runtime_failure.h"

namespace sonotik {
namespace {

constexpr size_t kFrameLength = 65536;
constexpr size_t kSearchFrom = 30000;
// From the name to the value: the name (3), then size, type, flags and locale of the "data" atom.
constexpr size_t kNameToValue = 3 + 4 * 4;

}  // namespace

AtomFrame::AtomFrame(ByteSource& file) : text_(kFrameLength, ' ') {
  const auto bytes = file.ReadAtMost(0, kFrameLength);
  std::copy(bytes.begin(), bytes.end(), text_.begin());
}

size_t AtomFrame::Find(std::string_view name) const {
  // The three NULs begin the size of the "data" atom, which is far below 16 MiB.
  const size_t at = text_.find(std::string(name) + std::string(3, '\0'), kSearchFrom - 1);
  return at == text_.npos ? 0 : at + 1;
}

std::string AtomFrame::getItemData(size_t position) const {
  const size_t start = position + kNameToValue - 1;
  const size_t end = text_.find('\0', start);
  if (end == text_.npos) throw RuntimeFailure("the value of an atom doesn't end");
  return text_.substr(start, end - start);
}

}  // namespace sonotik
