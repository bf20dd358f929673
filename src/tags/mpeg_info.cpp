#include "tags/mpeg_info.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "files/runtime_failure.h"
#include "tags/id3v1.h"
#include "tags/mdlID3.h"
#include "tags/media_file.h"
#include "tags/mpeg_tables.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

constexpr int64_t kSearchBlock = 65536;

// By the two version bits and the two layer bits; an empty name marks a reserved value.
struct Version {
  std::string_view name;
  int rate_divisor;
};
constexpr Version kVersions[] = {{"version 2.5", 4}, {"", 1}, {"version 2", 2}, {"version 1", 1}};

struct Layer {
  size_t number;  // 0 is reserved
  int samples_version1;
  int samples_version2;
};
constexpr Layer kLayers[] = {{0, 0, 0}, {3, 1152, 576}, {2, 1152, 1152}, {1, 384, 384}};

constexpr int kSampleRates[] = {44100, 48000, 32000, 0};
constexpr std::string_view kChannelModes[] = {"Stereo", "Joint stereo", "Dual channel", "Mono"};
constexpr int kMono = 3;

// The eleven set bits are all that is looked at: a false sync in a picture or in padding is taken
// as it comes.
std::optional<int64_t> FindFrame(ByteSource& file, int64_t at) {
  const int64_t last = file.size() - 4;
  // Mostly a frame stands right at the start.
  for (int64_t length = 2; at <= last; length = kSearchBlock) {
    const auto block = file.ReadAtMost(at, std::min(length, last - at + 2));
    const uint8_t* const end = block.data() + block.size() - 1;
    for (const uint8_t* byte = block.data(); byte < end; ++byte) {
      byte = static_cast<const uint8_t*>(std::memchr(byte, 0xFF, static_cast<size_t>(end - byte)));
      if (byte == nullptr) break;
      if (byte[1] >= 0xE0) return at + (byte - block.data());
    }
    at += static_cast<int64_t>(block.size()) - 1;
  }
  return {};
}

struct Counts {
  double frames = 0;
  double bytes = 0;
};

Counts ReadCounts(ByteSource& file, int64_t xing_position, int64_t vbri_position) {
  Counts counts;
  const auto xing = file.Read<16>(xing_position);
  if (BeginsWith(xing, "Xing") || BeginsWith(xing, "Info")) {
    if (xing[7] & 1) {
      counts.frames = BigEndian(std::span(xing).subspan(8, 4));
      // The byte count of a header without a frame count is not looked at.
      if (xing[7] & 2) counts.bytes = BigEndian(std::span(xing).subspan(12, 4));
    }
  }
  const auto vbri = file.Read<18>(vbri_position);
  if (BeginsWith(vbri, "VBRI")) {
    counts.bytes = BigEndian(std::span(vbri).subspan(10, 4));
    counts.frames = BigEndian(std::span(vbri).subspan(14, 4));
  }
  return counts;
}

int64_t Rounded(double value) { return static_cast<int64_t>(RoundHalfEven(value)); }

// A reserved version or layer ends the analysis: the search isn't taken up again behind it.
bool ReadFrame(ByteSource& file, int64_t at, MpegInfo& info) {
  const auto head = file.Read<4>(at);
  const Version& version = kVersions[head[1] >> 3 & 3];
  const Layer& layer = kLayers[head[1] >> 1 & 3];
  if (version.name.empty() || layer.number == 0) return false;
  const bool version1 = version.rate_divisor == 1;
  const int mode = head[3] >> 6;
  const double samples = version1 ? layer.samples_version1 : layer.samples_version2;

  info.Version = std::string(version.name) + " layer " + std::to_string(layer.number);
  info.HasCrc = (head[1] & 1) == 0;
  info.ChannelMode = kChannelModes[mode];
  info.SampleRate = kSampleRates[head[2] >> 2 & 3] / version.rate_divisor;

  const int side_information = mode == kMono ? (version1 ? 17 : 9) : (version1 ? 32 : 17);
  const Counts counts = ReadCounts(file, at + 4 + side_information, at + 36);
  info.IsVbr = counts.frames != 0 && counts.bytes != 0;
  if (info.IsVbr) {
    const double rate = static_cast<double>(info.SampleRate);
    if (rate == 0) throw RuntimeFailure("an MPEG header with frame counts has no sample rate");
    info.Bitrate = Rounded(counts.bytes / counts.frames / samples / 125 * rate);
    info.Seconds = Rounded(counts.frames / rate * samples);
  } else {
    info.Bitrate =
        (version1 ? kBitRatesOfVersion1 : kBitRatesOfVersion2)[layer.number][head[2] >> 4];
    if (info.Bitrate > 0) {
      // All that follows counts as audio, a tag at the end included.
      info.Seconds =
          Rounded(static_cast<double>(file.size() - at) / static_cast<double>(info.Bitrate * 125));
    }
  }

  info.Copyright = head[3] & 8;
  info.Original = head[3] & 4;
  info.Emphasis = head[3] & 3;
  return true;
}

}  // namespace

bool ReadMpegInfo(ByteSource& file, MpegInfo& info) {
  const int64_t start = ID3v2DataStart(file, 0);
  if (file.size() < 4) return false;
  const auto frame = FindFrame(file, start);
  const bool usable = frame && ReadFrame(file, *frame, info);

  info.ID3v1Kind = -1;
  if (HasID3v1Tag(file)) {
    const auto end = file.Read<2>(file.size() - kID3v1Size + 125);
    info.ID3v1Kind = end[0] == 0 && end[1] != 0 ? 1 : 0;
  }
  const auto header = file.Read<10>(0);
  info.ID3v2Version = BeginsWith(header, "ID3") ? header[3] : -1;
  info.FileSize = file.size();
  return usable;
}

bool ReadMpegInfo(std::string_view path, MpegInfo& info) {
  MediaFile file(path);
  return ReadMpegInfo(file, info);
}

}  // namespace sonotik
