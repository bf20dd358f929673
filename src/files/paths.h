// Paths as the data files write them, and the one place that turns them into the machine's own.
//
// Inside the program a path is text with "\" between its parts: "\music\Ada - Dawn\01.mp3". Such
// texts are stored, compared and cut as they stand, doubled separators and odd case included.
#ifndef SONOTIK_FILES_PATHS_H_
#define SONOTIK_FILES_PATHS_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace sonotik {

// The machine's path for a program path: "\" becomes the machine's separator, doubled separators
// become one, and each part that isn't there as spelled is looked up without regard to case. Where
// nothing fits, the part stays as spelled, so that a new file gets the name asked for.
std::filesystem::path NativePath(std::string_view path);

// The other way: the machine's path as the data files write it.
std::string ProgramPath(const std::filesystem::path& native);

// The text up to and including the last "\"; empty where there is none.
std::string FolderOf(std::string_view path);
// What stands behind the last "\".
std::string NameOf(std::string_view path);
// The last three characters in upper case: the system's test for the kind of a file.
std::string KindOf(std::string_view path);

// Removes ".tag" wherever it stands: a path may name a sidecar in place of its media file.
std::string WithoutTagMark(std::string_view path);

// "\\" becomes "\", everywhere.
std::string WithSingleSeparators(std::string_view path);

}  // namespace sonotik

#endif  // SONOTIK_FILES_PATHS_H_
