// The folder of the program as it was started.
#ifndef SONOTIK_FILES_PROGRAM_FOLDER_H_
#define SONOTIK_FILES_PROGRAM_FOLDER_H_

#include <filesystem>

namespace sonotik {

// A link counts where it stands, so that a link to the program in any folder makes that folder a
// jukebox. A name without a folder is looked up as the shell did.
std::filesystem::path ProgramFolder(const char* started_as, const char* search_path);

}  // namespace sonotik

#endif  // SONOTIK_FILES_PROGRAM_FOLDER_H_
