#include "files/text_box.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "files/paths.h"

namespace sonotik {
namespace {

int OpenFolder(std::string_view folder) {
  return ::open(NativePath(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// An address holds some hundred bytes, a folder's path may be longer: the way leads through the
// open folder. False if even the name alone is too long.
bool AddressOf(int folder, const std::string& name, sockaddr_un& address) {
  const std::string path = "/proc/self/fd/" + std::to_string(folder) + "/" + name;
  address = {};
  address.sun_family = AF_UNIX;
  if (folder < 0 || path.size() >= sizeof address.sun_path) return false;
  std::memcpy(address.sun_path, path.data(), path.size());
  return true;
}

const sockaddr* Generic(const sockaddr_un& address) {
  return reinterpret_cast<const sockaddr*>(&address);
}

}  // namespace

TextBox::~TextBox() {
  if (socket_ >= 0) {
    ::unlinkat(folder_, name_.c_str(), 0);
    ::close(socket_);
  }
  if (folder_ >= 0) ::close(folder_);
}

bool TextBox::Open(std::string_view folder, const std::string& name) {
  folder_ = OpenFolder(folder);
  name_ = name;
  sockaddr_un address;
  if (!AddressOf(folder_, name, address)) return false;
  const int made = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (made < 0) return false;
  ::unlinkat(folder_, name.c_str(), 0);
  // Closed to others from its first moment on, not only after a change of mode.
  const mode_t mask = ::umask(0177);
  const bool bound = ::bind(made, Generic(address), sizeof address) == 0;
  ::umask(mask);
  if (!bound) {
    ::close(made);
    return false;
  }
  socket_ = made;
  return true;
}

std::optional<std::string> TextBox::Take() {
  char text[kLongestText];
  const ssize_t length = ::recv(socket_, text, sizeof text, 0);
  if (length < 0) return {};
  return std::string(text, static_cast<size_t>(length));
}

BoxAnswer PutIntoTextBox(std::string_view folder, const std::string& name, std::string_view text,
                         bool wait) {
  const int open_folder = OpenFolder(folder);
  const int sender = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  sockaddr_un address;
  BoxAnswer answer = BoxAnswer::kNobody;
  if (AddressOf(open_folder, name, address) &&
      ::connect(sender, Generic(address), sizeof address) == 0) {
    const int flags = MSG_NOSIGNAL | (wait ? 0 : MSG_DONTWAIT);
    const bool sent = ::send(sender, text.data(), text.size(), flags) >= 0;
    answer = sent ? BoxAnswer::kTaken : BoxAnswer::kGone;
  }
  if (sender >= 0) ::close(sender);
  if (open_folder >= 0) ::close(open_folder);
  return answer;
}

}  // namespace sonotik
