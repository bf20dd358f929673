// MostPlayedList: what was played most.
#ifndef SONOTIK_CATALOGUE_MOST_PLAYED_H_
#define SONOTIK_CATALOGUE_MOST_PLAYED_H_

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "tags/tag_fields.h"

namespace sonotik {

// A table keyed on the path and sorted on "Played" by its text, highest first. The sorting is
// stable and runs after each play: a row that has risen stands last among its equals, one that has
// sunk ("99" is above "100") stands first.
class MostPlayed {
 public:
  struct Row {
    std::string path;
    std::string artist;
    std::string track;
    std::string album;
    std::string played;  // "01" to "09", then plain, so "100" stands between "10" and "11"
  };

  // One more play of a path; the names count for a new row only.
  void Count(const std::string& path, const TagFields& names);
  // The same for many plays, in their order: Sort has to follow the last of them.
  void CountUnsorted(const std::string& path, const TagFields& names);
  void Sort();

  int count() const { return static_cast<int>(order_.size()); }
  // By its place in the order, from 0.
  const Row& row(int place) const { return rows_[order_[static_cast<size_t>(place)]].row; }

 private:
  struct RankedRow {
    Row row;
    // Among rows of one text the lower one stands before: the play that brought the row among
    // them, below 0 if it came from above.
    int64_t rank = 0;
  };
  bool StandsBefore(uint32_t a, uint32_t b) const;

  std::unordered_map<std::string, uint32_t> by_path_;
  std::vector<RankedRow> rows_;  // as they came
  std::vector<uint32_t> order_;  // of rows_
  int64_t plays_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_MOST_PLAYED_H_
