#include "tags/clsMP3HeadReader.h"

#include <algorithm>
#include <optional>

#include "tags/clsID3V111Reader.h"
#include "tags/clsID3V230Reader.h"
#include "tags/media_file.h"
#include "tags/mpeg_tables.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

constexpr int64_t kBlock = 4096;

constexpr size_t kLayers[] = {0, 3, 2, 1};
constexpr int kSampleRatesOfVersion1[] = {44100, 48000, 32000, 0};
constexpr int kSampleRatesOfVersion2[] = {22050, 24000, 16000, 0};
constexpr std::string_view kModes[] = {"Stereo", "Joint Stereo", "Dual Channel", "Mono"};

// kbit/s of version 2 for layers 1, 2 and 3, by what stands in the record before.
constexpr int kVersion2BitRates[][3] = {
    {32, 32, 8},     {64, 48, 16},    {96, 56, 24},    {128, 64, 32},   {160, 80, 64},
    {192, 96, 80},   {224, 112, 56},  {256, 128, 64},  {288, 160, 128}, {320, 192, 160},
    {352, 224, 112}, {384, 256, 128}, {416, 320, 256}, {448, 384, 320}};

std::optional<int64_t> FindByteFF(ByteSource& file, int64_t at) {
  for (; at < file.size(); at += kBlock) {
    const auto block = file.ReadAtMost(at, kBlock);
    const auto found = std::find(block.begin(), block.end(), 0xFF);
    if (found != block.end()) return at + (found - block.begin());
  }
  return {};
}

template <typename Reader>
void TakeNames(const Reader& reader, InfotagRecord& record) {
  if (!reader.TagPresent) return;
  record.artist = reader.artist;
  record.album = reader.album;
  record.Year = reader.Year;
  record.Comments = reader.Comment;
  record.Title = reader.SongTitle;
}

}  // namespace

void clsMP3HeadReader::ReadMP3Header(ByteSource& file) {
  record_.FileSize = file.size();
  int64_t skipped = 0;
  if (const auto tag = file.Read<10>(0); BeginsWith(tag, "ID3")) {
    skipped = WeighedSize(std::span(tag).subspan<6, 4>()) + 10;
  }
  const auto frame = FindByteFF(file, skipped);
  if (!frame || *frame + 4 > file.size()) return;

  const auto head = file.Read<4>(*frame);
  const bool version1 = head[1] & 8;
  const size_t layer = kLayers[head[1] >> 1 & 3];
  const size_t rate = head[2] >> 2 & 3;
  record_.Frequency = version1 ? kSampleRatesOfVersion1[rate] : kSampleRatesOfVersion2[rate];
  record_.Bitrate = BitRate(version1, layer, head[2] >> 4);
  record_.IsProtected = head[1] & 1;
  record_.Mode = kModes[head[3] >> 6];
  record_.IsCopyright = head[3] & 8;
  record_.Length = 0;
  if (record_.Bitrate != 0) {
    const double bits = static_cast<double>(file.size() - skipped) * 8;
    record_.Length =
        static_cast<int64_t>(RoundHalfEven(bits / (static_cast<double>(record_.Bitrate) * 1000)));
  }
}

// For version 2 it is the record that is asked and not the index. The record was emptied before, so
// that such a file has no bit rate and no length here; that is meant.
int64_t clsMP3HeadReader::BitRate(bool version1, size_t layer, size_t index) const {
  if (version1) return kBitRatesOfVersion1[layer][index];
  if (layer == 0 || record_.Bitrate < 1 || record_.Bitrate > 14) return 0;
  return kVersion2BitRates[record_.Bitrate - 1][layer - 1];
}

void clsMP3HeadReader::LoadID3Info(ByteSource& file) {
  clsID3V111Reader version1;
  clsID3V230Reader version2(message_);
  version1.ReadID3V111Tag(file, false);
  version2.ReadID3V230Tag(file, false);
  if (version1.TagPresent && !version2.TagPresent) {
    TakeNames(version1, record_);
  } else {
    TakeNames(version2, record_);
  }
}

void clsMP3HeadReader::ReadMP3Header(std::string_view path) {
  MediaFile file(path);
  if (file.open()) ReadMP3Header(file);
}

void clsMP3HeadReader::LoadID3Info(std::string_view path) {
  MediaFile file(path);
  if (file.open()) LoadID3Info(file);
}

}  // namespace sonotik
