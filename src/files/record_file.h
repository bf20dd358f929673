// Files of fixed-length records without a header, addressed by number from 1.
#ifndef SONOTIK_FILES_RECORD_FILE_H_
#define SONOTIK_FILES_RECORD_FILE_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sonotik {

class RecordFile {
 public:
  // Opens for reading. Opening a file that isn't there creates it empty, as record access always
  // did here. Throws RuntimeFailure if it can't be opened.
  RecordFile(std::string_view path, size_t record_size);
  ~RecordFile();
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;

  // Length divided by the record size, whole: a partial record at the end doesn't count. 0 stays 0.
  int64_t whole_records() const { return records_; }
  // The count that scans go by: 0 becomes 1, so an empty file is one record of whatever the buffer
  // held.
  int64_t count() const { return records_ == 0 ? 1 : records_; }

  // Reads record n. Records asked for one behind the other are fetched in blocks. Past the end of
  // the file the buffer keeps what it holds. Throws RuntimeFailure for a number below 1 and for a
  // read that fails.
  void Read(int64_t n, std::span<char> record);
  // The same without a copy, for a scan that looks at a part of each record: the bytes where they
  // lie, until the next call. Empty past the end of the file.
  std::string_view View(int64_t n);

 private:
  std::string path_;
  size_t record_size_;
  int64_t records_ = 0;
  int fd_ = -1;
  // What was read last: held_ whole records from record first_ on.
  std::vector<char> block_;
  int64_t first_ = 0;
  int64_t held_ = 0;
  int64_t last_asked_ = 0;
};

// Adds a record behind the last whole one. A torn record at the end (a power cut) is overwritten.
void AppendRecord(std::string_view path, std::span<const char> record);

// A text field of a record: `width` characters, padded with blanks on the right, longer text cut.
void PutField(std::span<char> record, size_t offset, size_t width, std::string_view text);

}  // namespace sonotik

#endif  // SONOTIK_FILES_RECORD_FILE_H_
