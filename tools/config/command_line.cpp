#include "tools/config/command_line.h"

namespace sonotik {

const char kUsage[] =
    "usage: sonotik-config --app FOLDER [--audio FOLDER...] [--video FOLDER...]\n"
    "                      [--karaoke FOLDER...]\n"
    "\n"
    "Builds the jukebox's catalogue from folders of media files.\n"
    "\n"
    "  --app FOLDER         the jukebox's own folder, where the catalogue goes\n"
    "  --audio FOLDER...    folders of music\n"
    "  --video FOLDER...    folders of films and clips\n"
    "  --karaoke FOLDER...  folders of karaoke: MP3 files with a CDG file beside each\n"
    "  --help               this text\n"
    "\n"
    "Each album is one folder. A kind without a folder keeps its catalogue as it is, and so does "
    "a\n"
    "folder that can't be reached. Files of kinds whose tags the jukebox doesn't read get a text\n"
    "file with the ending .tag beside them; media files themselves are never changed.\n"
    "\n"
    "Ends with 0 if a catalogue was written, 1 if none could be, 2 for a wrong command line, and\n"
    "130 if it was stopped.\n";

CommandLine ParseCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  const auto wrong = [&line](std::string why) {
    line.error = std::move(why);
    return line;
  };
  std::string option;
  bool has_folder = true;  // behind the option just read
  for (const std::string& word : words) {
    if (word == "--help") {
      line.help = true;
      return line;
    }
    if (word.starts_with('-')) {
      if (!has_folder) return wrong(option + " needs a folder");
      if (word != "--app" && word != "--audio" && word != "--video" && word != "--karaoke") {
        return wrong("unknown option " + word);
      }
      option = word;
      has_folder = false;
      continue;
    }
    if (word.empty()) return wrong("a folder's name is empty");
    if (option.empty()) return wrong("a folder without an option: " + word);
    has_folder = true;
    if (option == "--app") {
      if (!line.request.app.empty()) return wrong("--app takes one folder");
      line.request.app = word;
    } else {
      const CatalogueKind kind = option == "--audio"   ? CatalogueKind::kAudio
                                 : option == "--video" ? CatalogueKind::kVideo
                                                       : CatalogueKind::kKaraoke;
      line.request.folders[kind].push_back(word);
    }
  }
  if (!has_folder) return wrong(option + " needs a folder");
  if (line.request.app.empty()) return wrong("--app is missing");
  if (line.request.folders.empty()) return wrong("there is no folder of media");
  return line;
}

}  // namespace sonotik
