#include "playback/queue.h"

#include <algorithm>

#include "files/files.h"
#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

const std::string kNone;

}  // namespace

Queue::Queue(const std::string& app_path, RandomSource& random, TagReader& tags,
             const TagFields& fields)
    : app_path_(app_path), random_(random), tags_(tags), fields_(fields) {}

const std::string& Queue::path(int index) const {
  return index < 0 || index >= count() ? kNone : paths_[static_cast<size_t>(index)];
}

const std::string& Queue::cover(int index) const {
  return index < 0 || index >= count() ? kNone : covers_[static_cast<size_t>(index)];
}

void Queue::Append(std::string path, std::string cover) {
  paths_.push_back(std::move(path));
  covers_.push_back(std::move(cover));
}

void Queue::InsertFirst(std::string path, std::string cover) {
  paths_.insert(paths_.begin(), std::move(path));
  covers_.insert(covers_.begin(), std::move(cover));
}

int Queue::IndexOf(const std::string& path, int guess) const {
  if (this->path(guess) == path) return guess;
  const auto found = std::find(paths_.begin(), paths_.end(), path);
  return found == paths_.end() ? -1 : static_cast<int>(found - paths_.begin());
}

void Queue::RemoveAt(int index) {
  if (index < 0 || index >= count()) return;
  paths_.erase(paths_.begin() + index);
  covers_.erase(covers_.begin() + index);
}

void Queue::Move(int from, int to) {
  if (from < 0 || from >= count() || to < 0 || to >= count()) return;
  const std::string path = paths_[static_cast<size_t>(from)];
  const std::string cover = covers_[static_cast<size_t>(from)];
  RemoveAt(from);
  paths_.insert(paths_.begin() + to, path);
  covers_.insert(covers_.begin() + to, cover);
}

void Queue::Clear() {
  paths_.clear();
  covers_.clear();
}

void Queue::shuffle_queue() {
  if (count() < 2) return;
  for (int round = 0; round < 10; ++round) {
    Move(static_cast<int>(random_.Below(count())), count() - 1);
  }
}

bool Queue::Contains(const std::string& path) const {
  for (const std::string& queued : paths_) {
    if (ContainsIgnoringCase(queued, path)) return true;
  }
  return false;
}

void Queue::Load() {
  Clear();
  const std::string file = app_path_ + "\\queue.dat";
  loaded_ = !FileExists(file);
  if (loaded_) return;
  // Whole lines: a comma in a path is part of it.
  LineReader reader(ReadWholeFile(file));
  loaded_ = true;
  const double entries = NumberOrZero(reader.Next());
  // One pair more than there are entries; the last one is empty.
  for (double i = 0; entries > 0 && i <= entries; ++i) {
    std::string path = reader.Next();
    std::string cover = reader.Next();
    if (!TrimBlanks(path).empty()) Append(std::move(path), std::move(cover));
  }
}

void Queue::Save() const {
  LineWriter writer;
  writer.Number(static_cast<long>(count()));
  // One step beyond the last entry: the file closes with a pair of empty lines.
  for (int i = 0; i <= count(); ++i) {
    writer.Text(path(i));
    writer.Text(cover(i));
  }
  ReplaceFile(app_path_ + "\\queue.dat", writer.text());
}

void Queue::DeleteSaved() const { DeleteFileIfThere(app_path_ + "\\queue.dat"); }

const Queue::Names& Queue::NamesOf(const std::string& path, std::map<std::string, Names>& known) {
  const auto [entry, is_new] = known.try_emplace(path);
  Names& names = entry->second;
  if (!is_new) return names;
  names.file = StampOf(path);
  names.sidecar = StampOf(path + ".tag");
  names.by_filename = tags_.UsesFilenameIfNoTagFound();
  const auto before = exported_.find(path);
  if (before != exported_.end() && !before->second.failed && before->second.file == names.file &&
      before->second.sidecar == names.sidecar && before->second.by_filename == names.by_filename) {
    names.lines = before->second.lines;
    return names;
  }
  LineWriter writer;
  try {
    tags_.ReadFor(TagCaller::kQueueUpl, path);
    for (std::string text : {fields_.txtArtist, fields_.txtTitle, fields_.txtAlbum}) {
      // A line each, whatever a tag holds.
      std::replace_if(
          text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
      writer.Text(text);
    }
    names.lines = writer.text();
  } catch (const RuntimeFailure&) {
    // One damaged file must not keep the others out of the list. It is looked at again next time:
    // perhaps only its disk was away.
    names.lines = "\r\n\r\n\r\n";
    names.failed = true;
  }
  return names;
}

void Queue::Export() {
  std::map<std::string, Names> known;
  std::string text = NumberField(static_cast<long>(count())) + "\r\n";
  // One step beyond the last entry, as in queue.dat.
  for (int i = 0; i <= count(); ++i) {
    text += path(i) + "\r\n" + cover(i) + "\r\n";
    if (!path(i).empty()) text += NamesOf(path(i), known).lines;
  }
  exported_ = std::move(known);
  ReplaceFile(app_path_ + "\\queue.upl", text);
}

}  // namespace sonotik
