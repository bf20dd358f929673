// Files that lie: the readers may fail in words, but never crash, hang or take memory that the file
// doesn't back.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <random>

#include "files/runtime_failure.h"
#include "tags/tag_bytes.h"
#include "tags/tag_reader.h"

namespace {
size_t largest_allocation = 0;
}

// Kept out of line: inlined, the compiler takes the pair for a mismatch.
[[gnu::noinline]] void* operator new(size_t size) {
  largest_allocation = std::max(largest_allocation, size);
  if (void* memory = std::malloc(size ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, size_t) noexcept { std::free(memory); }

namespace sonotik {
namespace {

class HostileBytes : public testing::Test {
 protected:
  // All readers take the same bytes, whatever they were meant to be.
  void ReadAll(std::string_view bytes) {
    const std::string path = scratch.Put("a.wma", bytes);
    scratch.Put("a.wma.tag", bytes);
    for (const auto read : {&TagReader::Readtag, &TagReader::Readtag2, &TagReader::Readtag3,
                            &TagReader::ReadTagSidecar}) {
      try {
        (reader.*read)(path);
      } catch (const RuntimeFailure&) {
        ++failures;
      }
    }
    ++files;
  }

  Scratch scratch;
  TagFields fields;
  TagReader reader{fields, [] { return true; }};
  int failures = 0;
  int files = 0;
};

TEST_F(HostileBytes, EveryCutAndEveryTurnedByteIsSurvived) {
  const std::string frames =
      Frame4("TIT2", Bytes("\1\xFF\xFE") + Wide("Song"), 2) + Frame4("COMM", Bytes("\0eng\0a")) +
      Frame4("WXXX", Bytes("\2d\0\0\0u")) + Frame4("TCON", Latin("(17)")) + Frame4("SEEK", Big(0));
  const std::string file = Tag(4, 0xC0, Sync(6) + Bytes("\1\x40") + frames) +
                           Tag(3, 0xC0, Big(6) + Zeros(6) + Frame3("TPE1", Latin("Band"), 0x20)) +
                           "\xFF\xFB\x90\x64" + Zeros(32) + "Xing" + Big(3) + Big(7) + Big(9) +
                           Id3v1("Old", Bytes("\0\1\2"));
  for (size_t at = 0; at < file.size(); ++at) {
    ReadAll(file.substr(0, at));
    for (const char byte : {'\0', '\x7F', '\x80', '\xFF'}) {
      std::string turned = file;
      turned[at] = byte;
      ReadAll(turned);
    }
  }
  EXPECT_GT(failures, files);
}

TEST_F(HostileBytes, RandomBytesAreSurvived) {
  std::mt19937 random(20);
  for (int round = 0; round < 600; ++round) {
    std::string bytes(random() % 7000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() >> 8);
    const char version = static_cast<char>(2 + round % 5);
    if (round % 3 == 0) bytes = Tag(version, static_cast<int>(random() & 0xFF), bytes);
    ReadAll(bytes);
  }
  EXPECT_GT(failures, files);
}

TEST_F(HostileBytes, NoSizeFieldTakesMoreMemoryThanTheFileBacks) {
  const std::string most = "\x7F\xFF\xFF\xFF";
  const std::string paths[] = {
      scratch.Put("a.mp3", "ID3" + Bytes("\3\0\0") + most + Frame3("TIT2", Latin("Song"))),
      scratch.Put("b.mp3", "ID3" + Bytes("\4\0\x10\x7F\x7F\x7F\x7F")),
      scratch.Put("c.mp3", Tag(3, 0, "TIT2" + most + Zeros(30))),
      scratch.Put("d.mp3", Tag(4, 0, Frame4("SEEK", most))),
      scratch.Put("e.mp3", std::string(200, 'x') + "3DI" + Bytes("\4\0\0") + most)};
  largest_allocation = 0;
  for (const std::string& path : paths) reader.Readtag(path);
  EXPECT_LE(largest_allocation, 70000u);
  reader.Readtag(paths[0]);
  EXPECT_EQ(fields.txtTitle, "Song");
}

TEST_F(HostileBytes, FoldersAndPipesAreNoFiles) {
  std::filesystem::create_directory(scratch.Native("folder.mp3"));
  ASSERT_EQ(::mkfifo(scratch.Native("pipe.mp3").c_str(), 0600), 0);
  for (const char* name : {"folder.mp3", "pipe.mp3"}) {
    reader.Readtag(scratch.Path(name));
    EXPECT_EQ(fields.txtTitle + fields.txtmp3time, "0:00");
    EXPECT_THROW(reader.Readtag2(scratch.Path(name)), RuntimeFailure);
  }
}

}  // namespace
}  // namespace sonotik
