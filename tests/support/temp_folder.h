// A folder of its own for a test, gone with it.
#ifndef SONOTIK_TESTS_SUPPORT_TEMP_FOLDER_H_
#define SONOTIK_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "files/paths.h"

namespace sonotik {

class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "sonotik.XXXXXX").string();
    native_ = ::mkdtemp(name.data());
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::remove_all(native_, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& native() const { return native_; }
  // As the program writes it.
  std::string path() const { return ProgramPath(native_); }

  // Names are relative, with "/"; folders on the way are made.
  void Write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((native_ / name).parent_path());
    std::ofstream(native_ / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(native_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Without their line feeds.
  std::vector<std::string> Lines(const std::string& name) const {
    std::ifstream file(native_ / name, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
  }
  bool Has(const std::string& name) const { return std::filesystem::exists(native_ / name); }
  void Remove(const std::string& name) const { std::filesystem::remove_all(native_ / name); }

 private:
  std::filesystem::path native_;
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_TEMP_FOLDER_H_
