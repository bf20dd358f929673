// The log of plays, and the table of what was played most.
#ifndef SONOTIK_CATALOGUE_HISTORY_H_
#define SONOTIK_CATALOGUE_HISTORY_H_

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "tags/tag_fields.h"

namespace sonotik {

inline constexpr char kUserHistory[] = "User_history.dat";
inline constexpr char kRandomHistory[] = "Random_history.dat";

// MostPlayedList, keyed on the path and sorted on "Played" by its text, highest first.
class MostPlayed {
 public:
  struct Row {
    std::string path;
    std::string artist;
    std::string track;
    std::string album;
    std::string played;  // "01" to "09", then plain, so "100" stands between "10" and "11"
    int64_t order;       // rows of one text stand in the order in which they came
  };

  // One more play of a path; the names count for a new row only.
  void Count(const std::string& path, const TagFields& names);
  // The same for many at once: the rows are sorted when the last one is in.
  void CountAll(
      const std::function<
          void(const std::function<void(const std::string& path, const TagFields& names)>&)>& feed);

  const std::vector<Row>& rows() const { return rows_; }

 private:
  std::vector<Row> rows_;
};

class History {
 public:
  // Reads and writes `fields` as the slot of the file that plays.
  History(const std::string& app_path, const Clock& clock, TagFields& fields)
      : app_path_(app_path), clock_(clock), fields_(fields) {}

  // Adds the play of a path, named by the tag fields as they stand, to one of the two logs.
  void AddToHistory(const std::string& path, const std::string& file_name);
  // Builds the table from the log of the guests' plays. The tag fields hold its last record
  // afterwards.
  void LoadMostPlayed();

  const MostPlayed& most_played() const { return most_played_; }

 private:
  const std::string& app_path_;
  const Clock& clock_;
  TagFields& fields_;
  MostPlayed most_played_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_HISTORY_H_
