// The queue: two parallel lists of paths and covers, and their files.
#ifndef SONOTIK_PLAYBACK_QUEUE_H_
#define SONOTIK_PLAYBACK_QUEUE_H_

#include <map>
#include <string>
#include <vector>

#include "files/files.h"
#include "platform/random_source.h"
#include "tags/tag_fields.h"
#include "tags/tag_reader.h"

namespace sonotik {

// As long as guests make it: no setting limits it, whatever the options page offers.
class Queue {
 public:
  Queue(const std::string& app_path, RandomSource& random, TagReader& tags,
        const TagFields& fields);

  int count() const { return static_cast<int>(paths_.size()); }
  bool empty() const { return paths_.empty(); }
  // Empty texts outside the queue.
  const std::string& path(int index) const;
  const std::string& cover(int index) const;

  void Append(std::string path, std::string cover);
  void InsertFirst(std::string path, std::string cover);
  // The entry of this path, `guess` if that is one, else the first; -1 if there is none.
  int IndexOf(const std::string& path, int guess) const;
  // Both ignore an index outside the queue.
  void RemoveAt(int index);
  void Move(int from, int to);
  void Clear();
  // Ten times: take any one out and put it behind the others. No full shuffle, and that is meant.
  void shuffle_queue();
  // True if an entry's path contains this one, whatever the case: part of a longer path counts.
  bool Contains(const std::string& path) const;

  // queue.dat. Paths are not checked; a missing file or a count of 0 or below clears the queue. A
  // file cut short keeps the entries that are whole, and the failure is thrown on.
  void Load();
  // Whatever queue.dat held was read: saving loses nothing.
  bool loaded() const { return loaded_; }
  void Save() const;
  void DeleteSaved() const;
  // queue.upl, for outside use: the same with artist, title and album of each entry.
  void Export();

 private:
  // What queue.upl says of an entry, and the files it was read from as they were then.
  struct Names {
    FileStamp file;
    FileStamp sidecar;
    bool by_filename = false;  // as the option was
    bool failed = false;
    std::string lines;
  };
  const Names& NamesOf(const std::string& path, std::map<std::string, Names>& known);

  const std::string& app_path_;
  RandomSource& random_;
  TagReader& tags_;
  const TagFields& fields_;
  std::vector<std::string> paths_;
  std::vector<std::string> covers_;
  bool loaded_ = false;
  // Of the last rewrite of queue.upl; a file that hasn't changed since isn't read again.
  std::map<std::string, Names> exported_;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_QUEUE_H_
