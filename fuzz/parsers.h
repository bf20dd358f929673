// One function a parser: it takes any bytes and may end with fields or with the ordinary failure,
// but neither crash nor work out of proportion to its input.
#ifndef SONOTIK_FUZZ_PARSERS_H_
#define SONOTIK_FUZZ_PARSERS_H_

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "catalogue/chart_file.h"
#include "files/runtime_failure.h"
#include "tags/Infotag.h"
#include "tags/clsID3V111Reader.h"
#include "tags/clsID3V230Reader.h"
#include "tags/clsMP3HeadReader.h"
#include "tags/clsWMAHeadReader.h"
#include "tags/id3v1.h"
#include "tags/mdlID3.h"
#include "tags/mp4_atoms.h"
#include "tags/mpeg_info.h"
#include "tags/picture_frame.h"
#include "tags/sidecar.h"
#include "text/text.h"

namespace sonotik {

// Bytes in memory that count what is taken of them. A parser that reads a file over and over ends
// the run.
class CountingSource : public ByteSource {
 public:
  explicit CountingSource(std::span<const uint8_t> bytes) : memory_(bytes) {}
  int64_t size() const override { return memory_.size(); }

 private:
  void Fetch(int64_t offset, std::span<uint8_t> bytes) override {
    taken_ += static_cast<int64_t>(bytes.size());
    if (taken_ > 8 * size() + 65536) std::abort();
    memory_.ReadInto(offset, bytes);
  }

  MemorySource memory_;
  int64_t taken_ = 0;
};

inline void ParseId3v1(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  TagRecord record;
  ReadID3v1Tag(source, record);
}

inline void ParseId3v2(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  TagRecord record;
  ReadID3v2Tag(source, record);
}

inline void ParseMpeg(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  MpegInfo info;
  ReadMpegInfo(source, info);
}

inline void ParseClasses(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  InfotagRecord record;
  clsMP3HeadReader reader(record, [](const std::string&) {});
  reader.ReadMP3Header(source);
  reader.LoadID3Info(source);
  clsID3V230Reader tag;
  tag.ReadID3V230Tag(source, false);
  clsID3V111Reader().ReadID3V111Tag(source, true);
}

inline void ParseWma(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  InfotagRecord record;
  clsWMAHeadReader(record).Get_WMA_Header(source);
}

inline void ParseMp4(std::span<const uint8_t> bytes) {
  CountingSource source(bytes);
  const AtomFrame atoms(source);
  for (const char* name : {"nam", "ART", "alb", "day"}) atoms.getItemData(atoms.Find(name));
}

inline void ParseSidecar(std::span<const uint8_t> bytes) {
  TagFields fields;
  ReadSidecarText(std::string(bytes.begin(), bytes.end()), fields);
}

// As a plain chart and then as a resolved one; each line's key fits its own names.
inline void ParseChart(std::span<const uint8_t> bytes) {
  for (const ChartKind kind : {ChartKind::kPlain, ChartKind::kResolved}) {
    FieldReader reader(std::string(bytes.begin(), bytes.end()));
    for (int i = 0; i < kChartLines; ++i) {
      const ChartLine line = ReadChartLine(reader, kind);
      if (!ChartKey(line).Fits(UpperCase(line.artist), UpperCase(line.track))) std::abort();
    }
  }
}

struct Parser {
  const char* name;
  void (*parse)(std::span<const uint8_t> bytes);
};
inline constexpr Parser kParsers[] = {{"id3v1", ParseId3v1},     {"id3v2", ParseId3v2},
                                      {"mpeg", ParseMpeg},       {"classes", ParseClasses},
                                      {"wma", ParseWma},         {"mp4", ParseMp4},
                                      {"sidecar", ParseSidecar}, {"chart", ParseChart}};

// True if the parser gave fields, false if it ended with its failure.
inline bool Survives(const Parser& parser, std::span<const uint8_t> bytes) {
  try {
    parser.parse(bytes);
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

}  // namespace sonotik

#endif  // SONOTIK_FUZZ_PARSERS_H_
