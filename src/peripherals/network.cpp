#include "peripherals/network.h"

#include <atomic>

#include "files/files.h"
#include "files/line_format.h"
#include "files/new_file.h"
#include "files/runtime_failure.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

// Whose word is the last: the writer's, who gives the file its name, or the guest's, who has waited
// long enough and got his credits back.
enum class Handing { kWriting, kNamed, kGivenUp };

void HandOver(const std::string& prefix, const std::string& text, std::atomic<Handing>& handing) {
  const NewFile file(prefix + "Queue", text);
  Handing writing = Handing::kWriting;
  if (!handing.compare_exchange_strong(writing, Handing::kNamed)) return;
  std::string name = prefix + "Queue.QUE";
  for (long counter = 1; !file.TakeName(name); ++counter) {
    // The counter's blank is part of the name; that is meant.
    name = prefix + "Queue" + NumberCaption(counter) + ".QUE";
  }
}

}  // namespace

void Network::LoadTerminal() {
  const std::string path = app_path_ + "\\terminal.ini";
  if (!FileExists(path)) return;
  FieldReader reader(ReadWholeFile(path));
  reader.Skip();
  std::string folder = reader.Text();
  const bool master = reader.Truth();
  SetRole(master, reader.Truth());
  shared_folder_ = std::move(folder);
}

void Network::SaveTerminal() const {
  LineWriter writer;
  writer.Text("Terminal \\ Master config");
  writer.Text(shared_folder_);
  writer.Truth(master_);
  writer.Truth(terminal_);
  ReplaceFile(app_path_ + "\\terminal.ini", writer.text());
}

void Network::SetRole(bool master, bool terminal) {
  terminal_ = terminal;
  // One of two options: a station that handed its selections to itself would never end.
  master_ = master && !terminal;
}

void Network::WriteSpool(const SpooledSelection& selection) {
  if (selection.path.find_first_of("\r\n") != std::string::npos) {
    throw RuntimeFailure("a path of two lines can't be handed over");
  }
  LineWriter writer;
  writer.Number(static_cast<long>(selection.play_now_flag));
  writer.Number(static_cast<long>(selection.play_next_flag));
  writer.Text(selection.path);
  const auto handing = std::make_shared<std::atomic<Handing>>(Handing::kWriting);
  const bool done = share_.Run([prefix = shared_folder_, text = writer.text(), handing] {
    HandOver(prefix, text, *handing);
  });
  Handing writing = Handing::kWriting;
  if (!done && handing->compare_exchange_strong(writing, Handing::kGivenUp)) {
    throw RuntimeFailure("the folder " + shared_folder_ + " doesn't answer");
  }
}

std::optional<SpooledSelection> Network::ReadSpool() {
  const auto found = std::make_shared<std::optional<SpooledSelection>>();
  if (!share_.Run([spool = spool_, found] { *found = spool->Read(); })) return {};
  return *found;
}

void Network::RemoveSpool() {
  share_.Run([spool = spool_] { spool->Remove(); });
}

}  // namespace sonotik
