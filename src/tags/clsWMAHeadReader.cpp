#include "tags/clsWMAHeadReader.h"

#include <algorithm>

#include "files/runtime_failure.h"
#include "tags/media_file.h"
#include "tags/tag_record.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int64_t kSkipped = 10;
constexpr size_t kHeaderLength = 5000;
constexpr int64_t kBlock = 8192;
// What an ASF header is taken to occupy, in bits: 27,185 bytes. The length goes by it.
constexpr double kAssumedHeaderBits = 217480;

// The ids of the content description object and, its start, of the extended one, without their
// NULs.
constexpr std::string_view kContentDescription =
    "\x33\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\xAA\x62\xCE\x6C";
constexpr std::string_view kExtendedDescription = "\x40\xA4\xD0\xD2";

std::string TextWithoutNuls(ByteSource& file) {
  std::string text;
  for (int64_t at = kSkipped; text.size() < kHeaderLength; at += kBlock) {
    if (at >= file.size()) throw RuntimeFailure("a WMA ends within its header");
    for (const uint8_t byte : file.ReadAtMost(at, kBlock)) {
      if (byte != 0 && text.size() < kHeaderLength) text += static_cast<char>(byte);
    }
  }
  return text;
}

// A part of a text, cut where the text ends.
std::string_view Part(std::string_view text, size_t at, size_t length) {
  return text.substr(std::min(at, text.size()), length);
}

// The low byte of a length, which is all that is left of it; half of it counts characters of
// UTF-16. Like all that is looked for at a fixed distance, it has to be there.
double HalvedLengthAt(std::string_view text, size_t at) {
  if (at >= text.size()) throw RuntimeFailure("a length is missing in a WMA's header");
  return static_cast<unsigned char>(text[at]) / 2.0;
}

// `length` characters that stand `distance` before position `at`.
std::string_view PartBefore(std::string_view text, size_t at, size_t distance, size_t length) {
  if (at < distance) throw RuntimeFailure("a WMA's header begins within its figures");
  return text.substr(at - distance, length);
}

}  // namespace

void clsWMAHeadReader::Get_WMA_Header(std::string_view path) {
  MediaFile file(path);
  if (!file.open()) throw RuntimeFailure("cannot open " + std::string(path));
  Get_WMA_Header(file);
}

void clsWMAHeadReader::Get_WMA_Header(ByteSource& file) {
  record_.Header = TextWithoutNuls(file);
  record_.FileSize = file.size();
  upper_ = UpperCase(record_.Header);
  ReadNames();
  ReadStreamDescription();
  record_.Year = ExtendedValue("WM/YEAR");
  record_.album = ExtendedValue("WM/ALBUMTITLE");
}

// Between the two objects stand the length bytes of title, author and copyright and then the
// strings. The lengths are trusted only if they fill that stretch exactly.
void clsWMAHeadReader::ReadNames() {
  const std::string_view text = record_.Header;
  const size_t object = text.find(kContentDescription);
  // Behind the id and the low byte of the object's size. Without the object the same distance
  // counts from the start of the text.
  const size_t start =
      object == text.npos ? kContentDescription.size() : object + kContentDescription.size() + 1;
  const size_t end = text.find(kExtendedDescription, start + 1);
  if (end == text.npos) return;
  const std::string_view stretch = text.substr(start, end - start);

  // The second byte of the object's size, if it isn't 0. From 768 bytes on it isn't known as such,
  // and such a file stays without names.
  const size_t first = stretch[0] == 1 || stretch[0] == 2 ? 1 : 0;
  const auto characters = [&](size_t i) {
    return static_cast<size_t>(RoundHalfEven(HalvedLengthAt(stretch, first + i) - 1));
  };
  const size_t title = characters(0);
  const size_t author = characters(1);
  const size_t copyright = characters(2);
  const auto take_names = [&](size_t from) {
    record_.Title = Part(stretch, from, title);
    record_.artist = Part(stretch, from + title, author);
  };
  if (title + author + 2 == stretch.size()) take_names(first + 2);
  if (title + author + copyright + first + 3 == stretch.size()) {
    take_names(first + 3);
    record_.IsCopyright = true;
  }
}

void clsWMAHeadReader::ReadStreamDescription() {
  const size_t kbps = upper_.find("KBPS");
  if (kbps != upper_.npos) {
    const auto figure = TagNumber(PartBefore(record_.Header, kbps, 4, 3));
    if (figure) record_.Bitrate = static_cast<int64_t>(RoundHalfEven(*figure));
  }
  if (record_.Bitrate > 0) {
    const double bits = static_cast<double>(record_.FileSize) * 8 - kAssumedHeaderBits;
    record_.Length =
        static_cast<int64_t>(RoundHalfEven(bits / (static_cast<double>(record_.Bitrate) * 1000)));
  }
  // The description also names the sample rate ("44 kHz"). It has to be in its place, but it isn't
  // taken: Frequency stays 0, and that is meant.
  const size_t khz = upper_.find("KHZ");
  if (khz != upper_.npos) PartBefore(record_.Header, khz, 5, 4);
  if (upper_.find("STEREO") != upper_.npos) record_.Mode = "Stereo";
  if (upper_.find("MONO") != upper_.npos) record_.Mode = "Mono";
  if (upper_.find("SIGNATURE") != upper_.npos) record_.IsLicensed = true;
}

// Behind the name stands the low byte of the value's length, then the value.
std::string clsWMAHeadReader::ExtendedValue(std::string_view name) const {
  const size_t at = upper_.find(name);
  if (at == upper_.npos) return "";
  const size_t length_at = at + name.size();
  const double length = RoundHalfEven(HalvedLengthAt(record_.Header, length_at)) - 1;
  if (length < 0) throw RuntimeFailure("a value in a WMA's header has a negative length");
  return std::string(Part(record_.Header, length_at + 1, static_cast<size_t>(length)));
}

std::string clsWMAHeadReader::fTime(long seconds) {
  return Double_digits(seconds / 360) + ":" + Double_digits(seconds % 360 / 60) + ":" +
         Double_digits(seconds % 60);
}

std::string clsWMAHeadReader::Double_digits(long number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 2 ? "0" + digits : digits;
}

}  // namespace sonotik
