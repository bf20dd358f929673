// The system's line format: plain 8-bit text, CR LF, one value a line, read by counting.
//
// The writer writes lines. The reader takes fields, not lines: a field ends at a comma or at the
// end of its line, leading blanks are dropped, and one that begins with a double quote runs to the
// next double quote. A comma inside a value thus makes two fields of one line, and all that stands
// behind slips by one; that is accepted.
#ifndef SONOTIK_FILES_LINE_FORMAT_H_
#define SONOTIK_FILES_LINE_FORMAT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonotik {

// Every reading member throws RuntimeFailure at the end of the text or for a value of another kind.
class FieldReader {
 public:
  explicit FieldReader(std::string text);

  std::string Text();
  void Skip() { Text(); }
  // A whole number, a fraction rounded half to even; an empty field is 0.
  int16_t Int16();
  int32_t Int32();
  double Float();
  // A check box: 0 or 1.
  bool Check();
  // "True" or "False" without regard to case; a number counts by not being 0.
  bool Truth();
  // The rest of the current line, commas and quotes included.
  std::string WholeLine();

  bool AtEnd() const { return at_ >= text_.size(); }

 private:
  [[noreturn]] void Fail(std::string_view why) const;
  void EndLine();
  long Whole(long least, long most);

  std::string text_;
  size_t at_ = 0;
  int fields_ = 0;
};

class LineWriter {
 public:
  void Text(std::string_view text);
  void Number(long number);
  void Number(double number);
  void Check(bool on) { Number(on ? 1L : 0L); }
  void Truth(bool on) { Text(on ? "True" : "False"); }

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// Takes a text line by line, whatever the line end (CR LF or LF).
class LineReader {
 public:
  explicit LineReader(std::string text) : text_(std::move(text)) {}
  bool AtEnd() const { return at_ >= text_.size(); }
  // The next line without its end; throws RuntimeFailure behind the last.
  std::string Next();

 private:
  std::string text_;
  size_t at_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_LINE_FORMAT_H_
