// Names, year and bit rate of a WMA, searched for in the text of its ASF header. Object ids and the
// layout of the content description: Advanced Systems Format (ASF) 01.20.05, 3.10 and 3.11.
//
// The objects aren't walked by their sizes. The head of the file is taken as text without its NUL
// bytes, which makes plain text of UTF-16 strings, and the text is searched.
#ifndef SONOTIK_TAGS_CLSWMAHEADREADER_H_
#define SONOTIK_TAGS_CLSWMAHEADREADER_H_

#include <string>
#include <string_view>

#include "tags/byte_source.h"
#include "tags/infotag_record.h"

namespace sonotik {

class clsWMAHeadReader {
 public:
  // The record must live as long as the reader.
  explicit clsWMAHeadReader(InfotagRecord& record) : record_(record) {}

  // Fills the record, which the caller has emptied. Throws RuntimeFailure if the file can't be
  // opened, if it holds fewer than 5,000 bytes other than NUL behind its first ten, and if a length
  // or a figure isn't where it is looked for. Nothing else gets a turn meanwhile: two blocks of the
  // file are soon read, and another reader would write into the same record.
  void Get_WMA_Header(ByteSource& file);
  void Get_WMA_Header(std::string_view path);

  // Hours, minutes and seconds, two digits each. An hour counts 360 seconds here, and that stays:
  // 3600 seconds read "10:00:00".
  static std::string fTime(long seconds);
  static std::string Double_digits(long number);

 private:
  void ReadNames();
  void ReadStreamDescription();
  std::string ExtendedValue(std::string_view name) const;

  InfotagRecord& record_;
  std::string upper_;  // the header text in upper case
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_CLSWMAHEADREADER_H_
