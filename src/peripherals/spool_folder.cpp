#include "peripherals/spool_folder.h"

#include <algorithm>

#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "text/text.h"

namespace sonotik {
namespace {

// Two flags and a path; whatever is larger is no selection.
constexpr int64_t kLongestSpool = 65536;

SpooledSelection Parse(const std::string& text) {
  // The path is a whole line: a comma in it is part of it.
  LineReader reader(text);
  SpooledSelection selection;
  selection.play_now_flag = FieldReader(reader.Next() + "\r\n").Int16();
  selection.play_next_flag = FieldReader(reader.Next() + "\r\n").Int16();
  selection.path = reader.Next();
  // Queued, an empty path would stand at the head and never be taken.
  if (TrimBlanks(selection.path).empty()) throw RuntimeFailure("a spool file without a path");
  return selection;
}

}  // namespace

std::optional<SpooledSelection> SpoolFolder::Read() {
  spool_files_.SetFolder(folder_);
  ForgetGoneFiles();
  for (int i = 0; i < spool_files_.count(); ++i) {
    served_ = spool_files_.PathAt(i);
    const FileStamp stamp = served_stamp_ = StampOf(served_);
    if (!FileExists(served_)) continue;
    const auto waits = waiting_.find(served_);
    if (waits != waiting_.end() && waits->second.served && waits->second.stamp == stamp) continue;
    std::string text;
    try {
      // Something without a size may be a pipe, whose reading would not return.
      if (stamp.size > 0 && stamp.size <= kLongestSpool) text = ReadWholeFile(served_);
    } catch (const RuntimeFailure&) {
      // A share may be away for a moment: it counts as one that isn't whole yet.
    }
    if (StillWritten(stamp, text)) continue;
    try {
      return Parse(text);
    } catch (const RuntimeFailure&) {
      TakeAway([this] { RenameFile(served_, served_ + ".bad"); });
      throw;
    }
  }
  return {};
}

bool SpoolFolder::StillWritten(const FileStamp& stamp, const std::string& text) {
  if (std::count(text.begin(), text.end(), '\n') >= 3) return false;
  Waiting& waiting = waiting_[served_];
  if (!(stamp == waiting.stamp)) waiting = {stamp};
  // Whoever writes by hand may leave the last line open for good.
  return ++waiting.looks < kPatience;
}

void SpoolFolder::Remove() {
  TakeAway([this] { DeleteFileIfThere(served_); });
}

template <typename Take>
void SpoolFolder::TakeAway(Take take) {
  waiting_[served_] = {served_stamp_, 0, true};
  take();
  waiting_.erase(served_);
}

void SpoolFolder::ForgetGoneFiles() {
  std::erase_if(waiting_, [](const auto& entry) { return !FileExists(entry.first); });
}

}  // namespace sonotik
