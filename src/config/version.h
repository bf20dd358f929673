// The program's own number.
#ifndef SONOTIK_CONFIG_VERSION_H_
#define SONOTIK_CONFIG_VERSION_H_

#include <array>

namespace sonotik {

inline constexpr char kProgramTitle[] = "Sonotik";
// Major, minor, revision.
inline constexpr std::array<int, 3> kVersion = {0, 1, 0};
// "Version " and the three numbers, as the splash and the version label show it.
inline constexpr char kVersionCaption[] = "Version 0.1.0";

}  // namespace sonotik

#endif  // SONOTIK_CONFIG_VERSION_H_
