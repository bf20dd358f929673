// Which genres random play may take from: those of the folder genres, or as random.dat keeps them.
#ifndef SONOTIK_PLAYBACK_GENRE_LISTS_H_
#define SONOTIK_PLAYBACK_GENRE_LISTS_H_

#include <string>

#include "config/option_lists.h"

namespace sonotik {

// Makes all genres that have a file available, and none selected.
void ListGenres(const std::string& app_path, OptionLists& lists);
// Fills the available and the selected genres from the file; without one both stay as they are.
// Throws RuntimeFailure for a file cut short, after the names read so far.
void LoadGenreLists(const std::string& app_path, OptionLists& lists);
void SaveGenreLists(const std::string& app_path, const OptionLists& lists);

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_GENRE_LISTS_H_
