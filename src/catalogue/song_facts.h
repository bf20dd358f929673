// Short facts about songs, loaded whole at start-up.
#ifndef SONOTIK_CATALOGUE_SONG_FACTS_H_
#define SONOTIK_CATALOGUE_SONG_FACTS_H_

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "files/milestone_log.h"

namespace sonotik {

struct SongFacts {
  std::string artist;
  std::string track;
  std::array<std::string, 5> facts;
};

class FactTable {
 public:
  FactTable(const std::string& app_path, const MilestoneLog& log)
      : app_path_(app_path), log_(log) {}

  // songfacts.dat into the table, rows in file order. Tells debug.log whether the file was there.
  void load_facts();
  const std::vector<SongFacts>& rows() const { return rows_; }
  // The rows of an artist, whatever the case, in file order.
  const std::vector<size_t>& RowsOf(const std::string& artist) const;

 private:
  const std::string& app_path_;
  const MilestoneLog& log_;
  std::vector<SongFacts> rows_;
  std::unordered_map<std::string, std::vector<size_t>> rows_of_;  // by the artist in upper case
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_SONG_FACTS_H_
