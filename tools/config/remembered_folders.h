// The folders that the operator chose last, kept beside the catalogue that was built from them.
#ifndef SONOTIK_TOOLS_CONFIG_REMEMBERED_FOLDERS_H_
#define SONOTIK_TOOLS_CONFIG_REMEMBERED_FOLDERS_H_

#include <filesystem>

#include "tools/config/catalogue_builder.h"

namespace sonotik {

using KindFolders = std::map<CatalogueKind, std::vector<std::filesystem::path>>;

// config.dat in the jukebox's folder: for each of the three kinds a count and that many lines.
// A file that is missing or damaged gives the folders that it still tells.
KindFolders LoadFolders(const std::filesystem::path& app);
// Throws RuntimeFailure.
void SaveFolders(const std::filesystem::path& app, const KindFolders& folders);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_REMEMBERED_FOLDERS_H_
