#include "playback/random_play.h"

#include <algorithm>
#include <memory>

#include "catalogue/records.h"
#include "files/files.h"
#include "files/paths.h"
#include "files/record_file.h"
#include "text/text.h"

namespace sonotik {
namespace {

// The machine is choosing, until the choice is started or has failed.
class MachineChooses {
 public:
  explicit MachineChooses(PlaybackState& state) : state_(state) {
    state_.random_in_progress = true;
  }
  ~MachineChooses() {
    state_.play_now_flag = 0;
    state_.random_in_progress = false;
  }
  MachineChooses(const MachineChooses&) = delete;
  MachineChooses& operator=(const MachineChooses&) = delete;

 private:
  PlaybackState& state_;
};

}  // namespace

RandomPlay::RandomPlay(const std::string& app_path, const Clock& clock, RandomSource& random,
                       const Settings& settings, const OptionLists& lists, PlaybackState& state,
                       TrackSequence& tracks)
    : app_path_(app_path),
      clock_(clock),
      random_(random),
      settings_(settings),
      lists_(lists),
      state_(state),
      tracks_(tracks) {}

void RandomPlay::Random_Play() {
  const MachineChooses choosing(state_);
  random_.Seed(static_cast<uint64_t>(clock_.Milliseconds()));
  const bool by_genre = settings_.random_from_genres && !lists_.selected_genres.empty();
  const Pick pick = by_genre ? GenrePicks() : DatabasePicks();
  if (!pick) return;
  // Without the memory a track that is gone goes to its start too, and costs a round.
  tracks_.Play_track3(settings_.do_not_repeat ? NotRecent(pick) : pick());
}

RandomPlay::Pick RandomPlay::GenrePicks() {
  const auto genres = static_cast<int64_t>(lists_.selected_genres.size());
  const std::string& name =
      lists_.selected_genres[static_cast<size_t>(genres > 1 ? random_.Below(genres) : 0)];
  const std::string path = app_path_ + "\\genres\\" + name + ".cvr";
  // Not opened if it isn't there, or it would come into being.
  std::shared_ptr<RecordFile> albums;
  if (FileExists(path)) albums = std::make_shared<RecordFile>(path, AlbumRecord::kSize);
  return [this, albums] {
    AlbumRecord record;
    if (albums) {
      const int64_t count = albums->count();
      albums->Read(count == 1 ? 1 : random_.Below(count) + 1, record.bytes);
    }
    std::string folder = record.Trimmed(AlbumRecord::kPath);
    if (FolderExists(folder)) files_.SetFolder(folder);
    if (!folder.empty() && folder.back() == '\\') folder.pop_back();
    return folder + "\\" + files_.NameAt(static_cast<int>(random_.Below(files_.count())));
  };
}

RandomPlay::Pick RandomPlay::DatabasePicks() {
  const struct {
    bool ticked;
    const char* file;
  } databases[] = {{settings_.random_from_audio, "\\Records.rec"},
                   {settings_.random_from_video, "\\videos.rec"},
                   {settings_.random_from_karaoke, "\\karaoke.rec"}};
  const auto ticked = [](const auto& database) { return database.ticked; };
  if (std::none_of(std::begin(databases), std::end(databases), ticked)) return {};
  size_t chosen = 0;
  do {
    chosen = static_cast<size_t>(random_.Below(3));
  } while (!databases[chosen].ticked);
  const auto tracks =
      std::make_shared<RecordFile>(app_path_ + databases[chosen].file, TrackRecord::kSize);
  return [this, tracks] {
    // A record of its own: an empty file leaves it blank.
    TrackRecord record;
    const int64_t count = tracks->count();
    tracks->Read(count <= 1 ? 1 : random_.Below(count) + 1, record.bytes);
    return record.Trimmed(TrackRecord::kPath);
  };
}

std::string RandomPlay::Existing(const Pick& pick, std::string candidate) {
  for (int picks = 1; !FileExists(candidate); ++picks) {
    if (picks == kMostPicks) return {};
    candidate = pick();
  }
  return candidate;
}

std::string RandomPlay::NotRecent(const Pick& pick) {
  const int remembered =
      std::clamp(settings_.do_not_repeat_count + 1, 0, static_cast<int>(kRecentSongs) - 1);
  std::string candidate = pick();
  bool repeated = true;
  // At most so many rounds: a small collection repeats in the end, and must.
  for (int round = 0; repeated && round < remembered; ++round) {
    candidate = Existing(pick, round == 0 ? candidate : pick());
    if (candidate.empty()) return {};
    // One more than are to be remembered is looked at; that is meant.
    const auto end = recent_songs_.begin() + remembered + 1;
    repeated = std::find(recent_songs_.begin(), end, candidate) != end;
  }
  for (int i = remembered - 1; i >= 0; --i) {
    recent_songs_[static_cast<size_t>(i) + 1] = recent_songs_[static_cast<size_t>(i)];
  }
  recent_songs_[0] = candidate;
  return candidate;
}

void Jingles::Play() {
  if (!FolderExists(settings_.jingle_path)) return;
  const MachineChooses choosing(state_);
  files_.SetFolder(settings_.jingle_path);
  const int chosen = static_cast<int>(random_.Below(files_.count()));
  state_.play_now_flag = 1;
  selection_.add_queue4(files_.folder() + "\\" + files_.NameAt(chosen));
}

}  // namespace sonotik
