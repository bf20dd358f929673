// Real GIFs, made by ImageMagick and ffmpeg.
#ifndef SONOTIK_TESTS_SUPPORT_GIF_FILES_H_
#define SONOTIK_TESTS_SUPPORT_GIF_FILES_H_

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace sonotik {

inline constexpr char kImageMagick[] = "convert-im6.q16 ";

// Runs a command in the folder.
inline void RunIn(const TempFolder& folder, const std::string& command) {
  const std::string line = "cd '" + folder.native().string() + "' && " + command;
  if (std::system(line.c_str()) != 0) throw std::runtime_error(command);
}

// Gives the names of the files made: photo-like noise, few colours, interlaced rows, all disposals
// with holes, frames off the corner, local tables, a code table that fills up.
inline std::vector<std::string> MakeGifs(const TempFolder& folder) {
  std::vector<std::string> names;
  const auto make = [&](const std::string& name, const std::string& options) {
    RunIn(folder, kImageMagick + options + " " + name);
    names.push_back(name);
  };
  make("photo.gif", "-size 97x61 plasma:red-blue -interlace none");
  make("interlaced.gif", "-size 33x70 plasma: -interlace GIF");
  make("tiny.gif", "-size 5x3 plasma: -interlace GIF");
  make("noise.gif", "-size 300x200 xc: +noise Random -colors 256");
  make("plain.gif", "-size 400x300 xc:navy -colors 2");
  for (const std::string disposal : {"none", "background", "previous"}) {
    // A first frame has nothing to go back to; another decoder would empty the picture.
    const std::string first = disposal == "previous" ? "none" : disposal;
    make(disposal + ".gif",
         "-delay 7 -loop 3 -dispose " + first + " \\( -size 40x40 plasma:yellow-red \\) -dispose " +
             disposal +
             " \\( -size 20x10 xc:none -fill lime -draw 'rectangle 3,2 12,8' -repage 40x40+5+7 \\)"
             " \\( -size 11x30 gradient:red-blue -repage 40x40+29+2 \\)"
             " \\( -size 15x15 xc:none -fill white -draw 'circle 7,7 7,1' -repage 40x40+0+25 \\)");
  }
  RunIn(folder,
        "ffmpeg -v error -nostdin -f lavfi -i testsrc2=s=64x48:d=0.5:r=10 -loop 0 moving.gif");
  names.push_back("moving.gif");
  return names;
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_GIF_FILES_H_
