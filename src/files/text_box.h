// A box in a folder into which other programs of the same user put texts: a local datagram socket,
// so that each text arrives whole and alone and nobody has to stay connected.
#ifndef SONOTIK_FILES_TEXT_BOX_H_
#define SONOTIK_FILES_TEXT_BOX_H_

#include <optional>
#include <string>
#include <string_view>

namespace sonotik {

class TextBox {
 public:
  // A longer text is cut to this.
  static constexpr size_t kLongestText = 255;

  TextBox() = default;
  ~TextBox();
  TextBox(const TextBox&) = delete;
  TextBox& operator=(const TextBox&) = delete;

  // Opens the box of this name in a folder (a program path), in the place of one that was left
  // behind; only the same user can write into it. The folder's path may be of any length. False if
  // it can't be opened.
  bool Open(std::string_view folder, const std::string& name);
  // What waits next; nothing if none does.
  std::optional<std::string> Take();
  // For whoever waits until something comes; -1 while closed.
  int descriptor() const { return socket_; }

 private:
  int socket_ = -1;
  int folder_ = -1;
  std::string name_;
};

enum class BoxAnswer {
  kTaken,
  kNobody,  // there is no such box, or nobody who keeps it
  kGone,    // somebody kept it a moment ago, and takes nothing now
};

// Puts a text into a box. A full one is waited for, unless `wait` is false: then it counts as gone.
BoxAnswer PutIntoTextBox(std::string_view folder, const std::string& name, std::string_view text,
                         bool wait = true);

// Where coins arrive, and where the program that feeds them is asked to end.
inline constexpr char kCoinBox[] = "Invisible Window to Receive a String";
inline constexpr char kCreditModuleBox[] = "Credit Module";

}  // namespace sonotik

#endif  // SONOTIK_FILES_TEXT_BOX_H_
