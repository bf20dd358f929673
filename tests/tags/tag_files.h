// A folder to put media files in, and tables of files with what is to be read of each.
#ifndef SONOTIK_TESTS_TAGS_TAG_FILES_H_
#define SONOTIK_TESTS_TAGS_TAG_FILES_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/tag_bytes.h"
#include "support/temp_folder.h"

namespace sonotik {

class Scratch : public TempFolder {
 public:
  std::filesystem::path Native(const std::string& name) const { return native() / name; }
  std::string Path(const std::string& name) const { return ProgramPath(Native(name)); }
  std::string Put(const std::string& name, std::string_view bytes) const {
    Write(name, bytes);
    return Path(name);
  }
};

// What a row is about, a whole file, and what `read` is to make of it.
struct Row {
  const char* what;
  std::string file;
  std::string expected;
};
template <typename Read>
void Check(const std::vector<Row>& rows, Read read) {
  for (const Row& row : rows) EXPECT_EQ(read(row.file), row.expected) << row.what;
}

// "a|b|c|"
inline std::string Joined(std::initializer_list<std::string> texts) {
  std::string joined;
  for (const std::string& text : texts) joined += text + "|";
  return joined;
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_TAGS_TAG_FILES_H_
