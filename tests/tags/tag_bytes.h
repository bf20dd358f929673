// Recipes for the bytes of tags, and a folder to put files in.
#ifndef SONOTIK_TESTS_TAGS_TAG_BYTES_H_
#define SONOTIK_TESTS_TAGS_TAG_BYTES_H_

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "files/paths.h"

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

class Scratch {
 public:
  Scratch() {
    static int count = 0;
    folder_ = std::filesystem::temp_directory_path() /
              ("sonotik_tags_" + std::to_string(::getpid()) + "_" + std::to_string(++count));
    std::filesystem::create_directories(folder_);
  }
  ~Scratch() {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  std::filesystem::path Native(const std::string& name) const { return folder_ / name; }
  std::string Path(const std::string& name) const { return ProgramPath(Native(name)); }
  std::string Put(const std::string& name, std::string_view bytes) const {
    std::ofstream(Native(name), std::ios::binary) << bytes;
    return Path(name);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_TAGS_TAG_BYTES_H_
