// The log of plays, and the table of what was played most that is counted from it.
#ifndef SONOTIK_CATALOGUE_HISTORY_H_
#define SONOTIK_CATALOGUE_HISTORY_H_

#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/most_played.h"
#include "platform/clock.h"
#include "tags/tag_fields.h"

namespace sonotik {

// The screens write the first as "user_history.dat": whatever the case, it is one file.
inline constexpr char kUserHistory[] = "User_history.dat";
inline constexpr char kRandomHistory[] = "Random_history.dat";

class History {
 public:
  // Reads and writes `fields` as the slot of the file that plays.
  History(const std::string& app_path, const Clock& clock, Catalogue& catalogue, TagFields& fields)
      : app_path_(app_path), clock_(clock), catalogue_(catalogue), fields_(fields) {}

  // Told behind each entry of either log, while the tag fields still name the track.
  std::function<void()> on_added = [] {};

  // Adds the play of a path, named by the tag fields as they stand, to one of the two logs. The
  // table counts both: the machine's own choices are in it until the next start.
  void AddToHistory(const std::string& path, const std::string& file_name);
  // Builds the table from the log of the guests' plays. The tag fields hold its last record
  // afterwards.
  void LoadMostPlayed();

  const MostPlayed& most_played() const { return most_played_; }

 private:
  const std::string& app_path_;
  const Clock& clock_;
  Catalogue& catalogue_;
  TagFields& fields_;
  MostPlayed most_played_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_HISTORY_H_
