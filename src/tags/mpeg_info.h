// The running time of an MPEG audio file, with what else its first frame header tells.
// Headers: ISO 11172-3 and ISO 13818-3; "version 2.5" and the Xing, Info and VBRI headers are
// customs of encoders.
#ifndef SONOTIK_TAGS_MPEG_INFO_H_
#define SONOTIK_TAGS_MPEG_INFO_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

struct MpegInfo {
  std::string Version;  // "version 1 layer 3"
  bool HasCrc = false;
  int64_t Bitrate = 0;     // kbit/s
  int64_t SampleRate = 0;  // Hz
  bool IsVbr = false;      // a Xing, Info or VBRI header gave the figures
  std::string ChannelMode;
  bool Copyright = false;
  bool Original = false;
  bool Emphasis = false;
  int64_t Seconds = 0;
  int ID3v1Kind = 0;     // -1 no tag, 0 a tag without a track, 1 with one
  int ID3v2Version = 0;  // -1 no tag at the start, else its version
  int64_t FileSize = 0;  // bytes
};

// True if the first frame header found is usable. The caller hands over a fresh `info`; it stays so
// if the file can't be opened or has fewer than 4 bytes. Without a usable header the tag kinds and
// the size are filled all the same. Throws RuntimeFailure for a size field of an ID3v2 tag that
// overflows, and for frame counts beside the reserved sample rate.
bool ReadMpegInfo(ByteSource& file, MpegInfo& info);
bool ReadMpegInfo(std::string_view path, MpegInfo& info);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MPEG_INFO_H_
