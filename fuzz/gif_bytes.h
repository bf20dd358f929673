// GIFs as bytes, sound ones and such as lie. The fuzzer begins with them, and the tests hold each
// to what is to be read of it.
#ifndef SONOTIK_FUZZ_GIF_BYTES_H_
#define SONOTIK_FUZZ_GIF_BYTES_H_

#include <cstddef>
#include <string>
#include <vector>

namespace sonotik::gif {

inline std::string Word(int value) {
  return {static_cast<char>(value & 255), static_cast<char>(value >> 8 & 255)};
}
// A screen of 4 x 4; with a table, of red and blue.
inline std::string Head(const std::string& signature = "GIF89a", bool table = true) {
  return signature + Word(4) + Word(4) + (table ? "\x80" : std::string(1, '\0')) +
         std::string(2, '\0') + (table ? std::string("\xff\0\0\0\0\xff", 6) : "");
}
inline std::string Control(int packed, int delay, int transparent = 0) {
  return std::string("\x21\xf9\x04") + static_cast<char>(packed) + Word(delay) +
         static_cast<char>(transparent) + '\0';
}
inline std::string Loops(int count) {
  return "\x21\xff\x0bNETSCAPE2.0\x03\x01" + Word(count) + '\0';
}
inline std::string Block(const std::string& bytes) {
  return static_cast<char>(bytes.size()) + bytes;
}
inline std::string Image(int left, int top, int width, int height, int code_size,
                         const std::string& codes, int flags = 0) {
  return ',' + Word(left) + Word(top) + Word(width) + Word(height) + static_cast<char>(flags) +
         static_cast<char>(code_size) + Block(codes) + '\0';
}
// Four pixels of colours 0, 1, 1, 0: clear, 0, 1, 1, 0, end in three bits each.
inline const std::string kFour("\x44\x12\x05", 3);
inline std::string Dot(int code_size = 2) { return Image(0, 0, 2, 2, code_size, kFour); }

struct Recipe {
  const char* name;
  std::string bytes;
  size_t frames;  // 0: no picture at all
  size_t drawn;   // pixels of the first frame
};

inline std::vector<Recipe> Recipes() {
  const auto framed = [](int width, int height) { return Image(0, 0, width, height, 2, kFour); };
  const auto coded = [](const std::string& codes) { return Head() + Image(0, 0, 2, 2, 2, codes); };
  std::string many = Head();
  for (int i = 0; i < 2000; ++i) many += Dot();
  return {
      {"animation", Head() + Loops(2) + Control(4, 10) + Dot() + Control(12, 20) + Dot() + ';', 2,
       4},
      {"interlaced", Head() + Image(0, 0, 1, 4, 2, kFour, 0x40), 1, 4},
      {"holes", Head() + Control(9, 0, 1) + Dot() + Control(5, 0) + Image(1, 1, 2, 2, 2, kFour), 2,
       4},
      {"delay_0", Head() + Control(0, 0) + Dot() + Control(0, 0) + Dot(), 2, 4},
      {"code_size_0", Head() + Dot(0), 1, 0},
      {"code_size_1", Head() + Dot(1), 1, 0},
      {"code_size_9", Head() + Dot(9), 1, 0},
      {"code_size_255", Head() + Dot(255), 1, 0},
      {"no_clear_code_first", coded({"\x48\x02", 2}), 1, 4},
      // Clear, 0, then 7: the next free code is 6.
      {"a_code_beyond_the_next", coded({"\xc4\x01", 2}), 1, 1},
      {"a_string_code_first", coded({"\x34\x01", 2}), 1, 0},
      {"more_pixels_than_the_frame", Head() + framed(1, 1), 1, 1},
      {"fewer_pixels_than_the_frame", Head() + framed(4, 4), 1, 4},
      {"zero_width", Head() + framed(0, 9), 1, 0},
      {"zero_height", Head() + framed(9, 0), 1, 0},
      {"zero_width_beside_a_frame", Head() + Control(8, 0) + framed(0, 9) + Dot(), 2, 0},
      {"a_large_frame", Head() + framed(4096, 4096), 1, 4},
      {"a_huge_frame", Head() + framed(65535, 65535), 0, 0},
      {"a_frame_far_off", Head() + Image(65535, 65535, 2, 2, 2, kFour), 0, 0},
      {"a_frame_outside_the_others", Head() + Dot() + Image(90, 70, 2, 2, 2, kFour), 2, 4},
      {"no_colour_table", Head("GIF89a", false) + Dot(), 0, 0},
      {"an_unknown_block", Head() + Dot() + '!' + Block("x") + '\0' + "?" + Dot(), 1, 4},
      {"another_signature", "GIF90a" + Head().substr(6) + Dot(), 0, 0},
      {"small_letters", "gif87A" + Head().substr(6) + Dot(), 1, 4},
      {"empty_data", Head() + Image(0, 0, 2, 2, 2, "") + Dot(), 1, 4},
      {"a_sub_block_that_claims_more", Head() + Dot() + Dot().substr(0, 11) + '\xff' + kFour, 1, 4},
      {"zeros_between_blocks", Head() + std::string(1000, '\0') + Dot(), 1, 4},
      {"endless_extensions", Head() + std::string(20000, '!') + Dot(), 0, 0},
      {"thousands_of_frames", many, 2000, 4}};
}

}  // namespace sonotik::gif

#endif  // SONOTIK_FUZZ_GIF_BYTES_H_
