// Recipes for the bytes of tags, out of which the fuzzers, the tests and the benchmarks make their
// files.
#ifndef SONOTIK_FUZZ_TAG_BYTES_H_
#define SONOTIK_FUZZ_TAG_BYTES_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sonotik {

// A text with its NULs.
template <size_t kSize>
std::string Bytes(const char (&literal)[kSize]) {
  return std::string(literal, kSize - 1);
}
inline std::string Zeros(size_t count) { return std::string(count, '\0'); }
inline std::string Big(uint64_t number, int width = 4, int bits = 8) {
  std::string bytes;
  for (int i = width - 1; i >= 0; --i) {
    bytes += static_cast<char>(number >> (i * bits) & ((1u << bits) - 1));
  }
  return bytes;
}
inline std::string Sync(uint64_t number) { return Big(number, 4, 7); }
inline std::string Latin(const std::string& text) { return '\0' + text; }
// Each character with a NUL behind, as in UTF-16.
inline std::string Wide(const std::string& text) {
  std::string wide;
  for (const char c : text) wide += {c, '\0'};
  return wide;
}

// Frames of ID3v2.2, 2.3 and 2.4.
inline std::string Frame2(const std::string& id, const std::string& data) {
  return id + Big(data.size(), 3) + data;
}
inline std::string Frame3(const std::string& id, const std::string& data, char flags = 0) {
  return id + Big(data.size()) + '\0' + flags + data;
}
inline std::string Frame4(const std::string& id, const std::string& data, char flags = 0) {
  return id + Sync(data.size()) + '\0' + flags + data;
}
inline std::string Tag(char version, int flags, const std::string& body) {
  return std::string("ID3") + version + '\0' + static_cast<char>(flags) + Sync(body.size()) + body;
}
inline std::string Id3v1(const std::string& title, const std::string& end) {
  return "TAG" + title + Zeros(122 - title.size()) + end;
}

inline const std::string kSidecar =
    "<song>\n  <artist>A & B</artist> \n<title>T&</title>\n<album>Al</album>\n<comp>Co</comp>\n"
    "<track>3/12</track>\n<year>1984</year>\n<genre>Soul</genre>\n<originalname></originalname>\n"
    "<description>Fine</description>\n\n<duration>3:07</duration>\n</song>\n";

// A WMA: the content description with its strings, then what is left of the header.
inline std::string Wma(const std::string& object_size, const std::vector<std::string>& strings) {
  std::string file = std::string(30, 'h') + "\x33\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9" +
                     Bytes("\0\xAA\0\x62\xCE\x6C") + object_size + Zeros(6);
  for (const std::string& text : strings) file += {static_cast<char>(2 * text.size() + 2), '\0'};
  for (const std::string& text : strings) file += Wide(text + '\0');
  return file + "\x40\xA4\xD0\xD2" +
         Wide("128 kbps, 44 kHz, stereo WM/Year\n1999WM/AlbumTitle\6Al") + std::string(5100, '.');
}

inline std::string Atom(const std::string& name, const std::string& value) {
  return name + Big(16 + value.size()) + "data" + Big(1) + Big(0) + value + '\0';
}
inline std::string M4a(const std::string& atoms, size_t at = 30000) {
  return Zeros(4) + "ftypM4A " + Zeros(4) + "mpM4A mp42" + Zeros(at - 26) + atoms;
}

inline std::span<const uint8_t> AsBytes(std::string_view text) {
  return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

}  // namespace sonotik

#endif  // SONOTIK_FUZZ_TAG_BYTES_H_
