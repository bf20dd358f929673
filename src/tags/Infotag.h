// The way to the readers of whole file heads, by the file's extension.
#ifndef SONOTIK_TAGS_INFOTAG_H_
#define SONOTIK_TAGS_INFOTAG_H_

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "tags/infotag_record.h"

namespace sonotik {

class Infotag {
 public:
  // The record must outlive the object. All that are given the same one see the same values.
  // `message` shows a text to the user; it may be left out.
  explicit Infotag(InfotagRecord& record, std::function<void(const std::string&)> message = {})
      : record_(record), message_(std::move(message)) {}

  // Empties the record and fills it. True for the extensions "MP3" and "WMA" whatever the file
  // holds; false for any other and for a WMA that isn't there. Blanks around the path do not count
  // for the extension. Throws RuntimeFailure as clsWMAHeadReader does.
  bool Find_Header_Tags(std::string_view path);

  const std::string& Mode() const { return record_.Mode; }
  const std::string& Header() const { return record_.Header; }
  int16_t Layer() const { return record_.Layer; }
  std::string Frequency() const { return std::to_string(record_.Frequency); }
  std::string FileSize() const { return std::to_string(record_.FileSize); }
  const std::string& artist() const { return record_.artist; }
  const std::string& album() const { return record_.album; }
  const std::string& Title() const { return record_.Title; }
  const std::string& Year() const { return record_.Year; }
  const std::string& Comments() const { return record_.Comments; }
  bool IsProtected() const { return record_.IsProtected; }
  int64_t Bitrate() const { return record_.Bitrate; }
  bool IsCopyright() const { return record_.IsCopyright; }
  int64_t Length() const { return record_.Length; }
  bool IsLicensed() const { return record_.IsLicensed; }

 private:
  InfotagRecord& record_;
  std::function<void(const std::string&)> message_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_INFOTAG_H_
