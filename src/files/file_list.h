// A folder's files by pattern, in the order of their names: the working list behind track lists,
// covers and spool files. Track numbers in tags play no part in the order.
#ifndef SONOTIK_FILES_FILE_LIST_H_
#define SONOTIK_FILES_FILE_LIST_H_

#include <string>
#include <string_view>
#include <vector>

namespace sonotik {

// All that the media engine is offered, whatever the catalogue: the patterns of a track list.
inline constexpr char kMediaPattern[] =
    "*.mp3;*.mpg;*.mpeg;*.avi;*.wmv;*.wma;*.wav;*.aac;*.m4a;*.m4p";
inline constexpr char kPicturePattern[] = "*.jpg";

class FileList {
 public:
  // Patterns of the form "*.ext", joined by ";", matched without regard to case.
  explicit FileList(std::string pattern) : pattern_(std::move(pattern)) {}

  // Points the list at a folder and reads it. A folder that can't be read gives an empty list.
  void SetFolder(std::string_view folder);
  void Refresh();

  // The folder as it was set, without a closing "\".
  const std::string& folder() const { return folder_; }
  int count() const { return static_cast<int>(names_.size()); }
  const std::vector<std::string>& names() const { return names_; }
  // Folder, "\" and the name of file `index`; empty outside the list.
  std::string PathAt(int index) const;
  // Just the name; empty outside the list.
  std::string NameAt(int index) const;

 private:
  std::string pattern_;
  std::string folder_;
  std::vector<std::string> names_;
};

// The names of the folders in a folder, in the same order.
std::vector<std::string> FoldersIn(std::string_view folder);

}  // namespace sonotik

#endif  // SONOTIK_FILES_FILE_LIST_H_
