// Places and sizes as the files of a skin give them.
#ifndef SONOTIK_SKINS_COORDINATES_H_
#define SONOTIK_SKINS_COORDINATES_H_

#include <algorithm>

#include "files/line_format.h"

namespace sonotik {

// Farther out lies no screen; what a file says beyond is taken for this.
inline constexpr double kFarthest = 100000;

inline float ReadCoordinate(FieldReader& reader) {
  return static_cast<float>(std::clamp(reader.Float(), -kFarthest, kFarthest));
}
inline float ReadLength(FieldReader& reader) {
  return static_cast<float>(std::clamp(reader.Float(), 0.0, kFarthest));
}

}  // namespace sonotik

#endif  // SONOTIK_SKINS_COORDINATES_H_
