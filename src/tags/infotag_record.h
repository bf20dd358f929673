// The record behind Infotag: what the readers of whole file heads find out.
#ifndef SONOTIK_TAGS_INFOTAG_RECORD_H_
#define SONOTIK_TAGS_INFOTAG_RECORD_H_

#include <cstdint>
#include <string>

namespace sonotik {

struct InfotagRecord {
  std::string Mode;       // "Stereo", "Mono", "Joint Stereo", "Dual Channel"
  std::string Header;     // the raw header text of a WMA
  int16_t Layer = 0;      // no reader sets it
  int32_t Frequency = 0;  // Hz
  int64_t FileSize = 0;   // bytes
  std::string artist;
  std::string album;
  std::string Title;
  std::string Year;
  std::string Comments;
  bool IsProtected = false;
  int64_t Bitrate = 0;  // kbit/s
  bool IsCopyright = false;
  int64_t Length = 0;  // seconds
  bool IsLicensed = false;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_INFOTAG_RECORD_H_
