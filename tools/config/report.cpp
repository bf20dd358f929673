#include "tools/config/report.h"

#include "text/dates.h"
#include "tools/config/catalogue_files.h"
#include "tools/config/names.h"

namespace sonotik {
namespace {

constexpr int64_t kTerminalStep = 100;  // milliseconds between two lines
constexpr int64_t kLogStep = 5000;

std::string Count(size_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string KindText(const KindReport& kind) {
  std::string text = std::string(KindName(kind.kind)) + ": ";
  if (!kind.written) return text + "no media files, nothing written\n";
  text += Count(kind.albums, "album") + " (" + std::to_string(kind.new_albums) + " new), " +
          Count(kind.tracks, "track") + " (" + std::to_string(kind.new_tracks) + " new)";
  if (kind.kept_tracks > 0) {
    text += ", " + Count(kind.kept_tracks, "track") + " kept from folders out of reach";
  }
  return text + "\n";
}

}  // namespace

void ProgressLine::Show(const BuildProgress& progress) {
  const int64_t now = clock_.Milliseconds();
  if (progress.phase == BuildProgress::Phase::kReading && reading_since_ < 0) reading_since_ = now;
  if (now - last_ < (terminal_ ? kTerminalStep : kLogStep)) return;
  last_ = now;
  std::string text = Text(progress, now);
  if (!terminal_) {
    out_ << text << std::endl;
    return;
  }
  const size_t width = text.size();
  if (width < shown_) text.append(shown_ - width, ' ');
  shown_ = width;
  out_ << '\r' << text << std::flush;
}

void ProgressLine::End() {
  if (shown_ > 0) out_ << '\r' << std::string(shown_, ' ') << '\r' << std::flush;
  shown_ = 0;
}

std::string ProgressLine::Text(const BuildProgress& progress, int64_t now) {
  switch (progress.phase) {
    case BuildProgress::Phase::kLooking:
      return "Looking for " + std::string(KindName(progress.kind)) + ": " +
             Count(static_cast<size_t>(progress.done), "file");
    case BuildProgress::Phase::kWriting:
      return "Writing the catalogue";
    case BuildProgress::Phase::kReading:
      break;
  }
  std::string text = "Reading " + std::string(KindName(progress.kind)) + ": " +
                     std::to_string(progress.done) + " of " +
                     Count(static_cast<size_t>(progress.total), "file");
  if (progress.done > 0 && progress.total >= progress.done) {
    const double seconds = static_cast<double>(now - reading_since_) / 1000.0;
    text += ", " +
            MinutesSeconds(seconds * static_cast<double>(progress.total - progress.done) /
                           static_cast<double>(progress.done)) +
            " left";
  }
  return text;
}

std::string SummaryText(const BuildReport& report) {
  std::string text;
  for (const Problem& problem : report.problems) {
    text += CleanText(problem.path) + ": " + CleanText(problem.reason) + "\n";
  }
  if (!report.stopped) {
    for (const KindReport& kind : report.kinds) text += KindText(kind);
    text += Count(static_cast<size_t>(report.genres), "genre") + ", ";
  }
  text += Count(static_cast<size_t>(report.sidecars), "sidecar") + " written, " +
          Count(report.problems.size(), "problem") + "\n";
  if (report.stopped) text += "Stopped; the catalogue stands as it was.\n";
  return text;
}

}  // namespace sonotik
