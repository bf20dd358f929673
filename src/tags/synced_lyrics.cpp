#include "tags/synced_lyrics.h"

#include <cstdint>
#include <span>

#include "tags/byte_source.h"
#include "tags/tag_record.h"
#include "text/dates.h"
#include "text/text.h"

namespace sonotik {
namespace {

// Language, form of the times, kind of text; then a description.
constexpr size_t kHead = 5;
constexpr std::string_view kMillisecondsAndLyrics = "\2\1";

std::string TimeMark(uint32_t milliseconds) {
  const std::string time = MinutesSeconds(milliseconds / 1000);
  return "[" + std::string(time.size() < 5 ? "0" : "") + time + "]";
}

}  // namespace

std::string LinesOfLyrics(std::string_view text) {
  std::string lines;
  if (text.size() < kHead) return lines;
  for (size_t end = text.find('\0', kHead); end != text.npos;) {
    const size_t from = end + 1;
    end = text.find('\0', from);
    if (end == text.npos || text.size() - end < 5) break;
    const auto* const stamp = reinterpret_cast<const uint8_t*>(text.data()) + end + 1;
    lines += TimeMark(BigEndian(std::span(stamp, 4)));
    lines += ReplaceAll(text.substr(from, end - from), "\n", "\r\n");
    end += 4;
  }
  return lines;
}

// The line end goes with the text, so that the lines come back as they were.
std::string TextOfLyrics(std::string_view lines, std::string_view language) {
  std::string body;
  while (!lines.empty()) {
    const size_t end = lines.find("\r\n");
    const std::string_view line = lines.substr(0, end);
    lines.remove_prefix(end == lines.npos ? lines.size() : end + 2);
    const size_t colon = line.find(':');
    const size_t bracket = line.find(']');
    if (!line.starts_with('[') || colon == line.npos || bracket == line.npos || bracket < colon) {
      continue;
    }
    const auto minutes = TagNumber(line.substr(1, colon - 1));
    const auto seconds = TagNumber(line.substr(colon + 1, bracket - colon - 1));
    if (!minutes || !seconds) continue;
    const double milliseconds = (*minutes * 60 + *seconds) * 1000;
    if (milliseconds < 0 || milliseconds > 0xFFFFFFFFu) continue;
    body += line.substr(bracket + 1);
    if (!lines.empty()) body += '\n';
    body += '\0' + BigEndianBytes(static_cast<int64_t>(milliseconds));
  }
  if (body.empty()) return body;
  // No description.
  return std::string(language).append(kMillisecondsAndLyrics) + '\0' + body;
}

}  // namespace sonotik
