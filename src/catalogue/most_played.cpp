#include "catalogue/most_played.h"

#include <algorithm>
#include <numeric>

#include "text/numbers.h"

namespace sonotik {
namespace {

std::string OneMore(const std::string& played) {
  const long value = static_cast<long>(LeadingNumber(played));
  return value < 9 ? "0" + std::to_string(value + 1) : std::to_string(value + 1);
}

}  // namespace

bool MostPlayed::StandsBefore(uint32_t a, uint32_t b) const {
  const RankedRow& x = rows_[a];
  const RankedRow& y = rows_[b];
  return x.row.played != y.row.played ? x.row.played > y.row.played : x.rank < y.rank;
}

void MostPlayed::CountUnsorted(const std::string& path, const TagFields& names) {
  const auto [known, is_new] = by_path_.try_emplace(path, static_cast<uint32_t>(rows_.size()));
  ++plays_;
  if (is_new) {
    rows_.push_back({{path, names.txtArtist, names.txtTitle, names.txtAlbum, "01"}, plays_});
    return;
  }
  RankedRow& row = rows_[known->second];
  std::string played = OneMore(row.row.played);
  row.rank = played > row.row.played ? plays_ : -plays_;
  row.row.played = std::move(played);
}

void MostPlayed::Sort() {
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  std::sort(order_.begin(), order_.end(),
            [this](uint32_t a, uint32_t b) { return StandsBefore(a, b); });
}

void MostPlayed::Count(const std::string& path, const TagFields& names) {
  const auto before = [this](uint32_t a, uint32_t b) { return StandsBefore(a, b); };
  const auto known = by_path_.find(path);
  const auto at = known == by_path_.end() ? static_cast<uint32_t>(rows_.size()) : known->second;
  if (known != by_path_.end()) {
    order_.erase(std::lower_bound(order_.begin(), order_.end(), at, before));
  }
  CountUnsorted(path, names);
  order_.insert(std::upper_bound(order_.begin(), order_.end(), at, before), at);
}

}  // namespace sonotik
