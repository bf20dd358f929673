#include "tools/skin-check/place_check.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <utility>

#include "files/file_list.h"
#include "files/runtime_failure.h"
#include "skins/cover_layout.h"
#include "skins/screen_skin.h"
#include "tools/skin-check/ports.h"

namespace sonotik {
namespace {

// Less than this is a rounded number.
constexpr float kSlack = 0.5F;

// What is touched beside the buttons. Parts with the same name and index do the same.
struct TouchPart {
  const char* target;
  const char* area;
};
constexpr TouchPart kTouchParts[] = {
    {"player.volume", "volume slider"}, {"player.status", "playing track"},
    {"player.cover", "playing cover"},  {"album.titleStrip", "letter strip"},
    {"trackList.title", "track row"},   {"trackList.time", "track row"},
    {"trackList.stripCover", "strip"},  {"history.cover", "history cover"},
    {"history.row", "history row"},     {"top20.cover", "top 20 row"},
    {"top20.number", "top 20 row"},     {"top20.artist", "top 20 row"},
    {"top20.track", "top 20 row"},      {"top20.played", "top 20 row"},
    {"results.cover", "result row"},    {"results.number", "result row"},
    {"results.artist", "result row"},   {"results.track", "result row"},
    {"results.blank", "result row"},    {"decades.heading", "heading"},
    {"genre.label", "genre"},           {"search.suggestion", "suggestion"},
    {"options.pages", "settings"},
};
// Artist and title; position, length and "PAUSED" are only read.
constexpr int kTouchedStatusLabels = 2;

// Their being hidden is the skin's choice, so another may have the place.
constexpr const char* kHiddenByChoice[] = {"album.pageButton", "player.button", "player.volume",
                                           "genre.unused"};

bool HasPlace(BlockKind kind) {
  for (const FieldKind field : FieldsOf(kind)) {
    if (field == FieldKind::kTop) return true;
  }
  return false;
}

std::string Words(const Rect& place) {
  const auto number = [](float value) { return std::to_string(std::lround(value)); };
  return "left " + number(place.left) + ", top " + number(place.top) + ", " + number(place.width) +
         " x " + number(place.height);
}

bool Overlap(const Rect& a, const Rect& b) {
  const Rect both = a.Intersected(b);
  return both.width > kSlack && both.height > kSlack;
}

// A place to touch, on the panel behind it that can be seen.
struct Touch {
  const Control* control;
  std::string area;
  Rect place;  // on the form
};

class PlaceCheck {
 public:
  PlaceCheck(std::string folder, Findings& findings)
      : folder_(std::move(folder)),
        findings_(findings),
        skin_(settings_, form_, events_, displays_, messages_) {
    skin_.ReadFiles(folder_);
    skin_.LoadFixedPictures(folder_);
    NameControls();
    NameTouches();
  }

  void Run() {
    for (const auto& [control, name] : placed_) CheckInside(*control, name);
    CheckBars();
    CheckSurface(form_.form);
    CheckCoverLayouts();
  }

 private:
  void NameControls() {
    for (const LayoutFile& file : LayoutFiles()) {
      const auto fields = FieldsOf(file, HeadOf(folder_, file));
      for (const LayoutField& field : fields) {
        if (!HasPlace(field.block->kind)) continue;
        const auto controls = skin_.targets().At(field.block->target, field.index);
        // A list of screens has one place; each of them is as large as the others.
        if (controls.empty()) continue;
        NameControl(*controls.front(), file, field);
      }
    }
    for (const char* target : kHiddenByChoice) {
      for (int i = 0; const Control* control = First(target, i); ++i) by_choice_.push_back(control);
    }
  }

  // The later file names it, since that has placed it.
  void NameControl(const Control& control, const LayoutFile& file, const LayoutField& field) {
    std::string name = std::string(file.name) + ", " + field.block->target;
    if (field.block->count > 1) {
      name += " " + std::to_string(field.index - field.block->first + 1) + " of " +
              std::to_string(field.block->count);
    }
    name += " (" + std::string(field.block->words) + ")";
    const auto at = std::find_if(placed_.begin(), placed_.end(),
                                 [&](const auto& entry) { return entry.first == &control; });
    if (at == placed_.end()) {
      placed_.emplace_back(&control, name);
    } else {
      at->second = name;
    }
  }

  const Control* First(const char* target, int index) const {
    const auto controls = skin_.targets().At(target, index);
    return controls.empty() ? nullptr : controls.front();
  }

  std::string NameOf(const Control& control) const {
    for (const auto& [placed, name] : placed_) {
      if (placed == &control) return name;
    }
    const auto area = areas_.find(&control);
    if (area != areas_.end()) return area->second;
    const auto* const button = dynamic_cast<const lvButtons_H*>(&control);
    return "the button \"" + (button == nullptr ? "" : button->caption()) +
           "\", which no file places";
  }

  void NameTouches() {
    for (const TouchPart& part : kTouchParts) {
      for (int i = 0; const Control* control = First(part.target, i); ++i) {
        if (std::string_view(part.target) == "player.status" && i >= kTouchedStatusLabels) break;
        areas_[control] = std::string(part.area) + " " + std::to_string(i + 1);
      }
    }
    for (size_t i = 0; i < form_.queue.rows.size(); ++i) {
      areas_[&form_.queue.rows[i].touch] = "queue row " + std::to_string(i + 1);
    }
  }

  void CheckInside(const Control& control, const std::string& name) {
    const Rect place = control.place();
    // What has no size is hidden for good, which a skin may want.
    if (place.empty() || control.parent() == nullptr) return;
    const Rect around = control.parent()->place();
    const Rect inner{-kSlack, -kSlack, around.width + 2 * kSlack, around.height + 2 * kSlack};
    if (inner.Contains(place)) return;
    findings_.push_back(name + ": lies outside its panel of " +
                        std::to_string(std::lround(around.width)) + " x " +
                        std::to_string(std::lround(around.height)) + ": " + Words(place));
  }

  // The menu bar and the player stay on every screen.
  void CheckBars() {
    for (const auto& [bar, name] : {std::pair<const Panel*, const char*>{&form_.menu, "menu bar"},
                                    {&form_.player, "player panel"}}) {
      if (Overlap(bar->place(), form_.panels[0].place())) {
        findings_.push_back(std::string("main.ini: the main screens lie on the ") + name);
      }
    }
  }

  void Gather(const Panel& panel, std::vector<Touch>& touches) const {
    for (const Control* child : panel.children()) {
      if (child->place().empty()) continue;
      const bool hidden = !child->visible() && std::find(by_choice_.begin(), by_choice_.end(),
                                                         child) != by_choice_.end();
      const auto area = areas_.find(child);
      if (area != areas_.end() && !hidden) {
        touches.push_back({child, area->second, child->AbsolutePlace()});
      } else if (dynamic_cast<const lvButtons_H*>(child) != nullptr && !hidden) {
        touches.push_back({child, "", child->AbsolutePlace()});
      }
      const auto* const inner = dynamic_cast<const Panel*>(child);
      // What is seen through lies on the same surface.
      if (inner != nullptr && inner->visible() && inner->transparent()) Gather(*inner, touches);
    }
  }

  void Compare(const std::vector<Touch>& touches) {
    for (size_t i = 0; i < touches.size(); ++i) {
      for (size_t k = i + 1; k < touches.size(); ++k) {
        const Touch& a = touches[i];
        const Touch& b = touches[k];
        if ((!a.area.empty() && a.area == b.area) || !Overlap(a.place, b.place)) continue;
        findings_.push_back(NameOf(*a.control) + ": overlaps " + NameOf(*b.control));
      }
    }
  }

  // A surface is a panel that can be seen, with all that is touched on it.
  void CheckSurface(const Panel& panel) {
    // The album view is compared with each of its cover layouts.
    if (&panel != &form_.album.panel && !panel.transparent()) {
      std::vector<Touch> touches;
      Gather(panel, touches);
      Compare(touches);
    }
    for (const Control* child : panel.children()) {
      if (const auto* inner = dynamic_cast<const Panel*>(child)) CheckSurface(*inner);
    }
  }

  void CheckCoverLayouts() {
    FileList files("*.cov");
    files.SetFolder(folder_);
    if (files.count() == 0) findings_.push_back("*.cov: there is no cover layout");
    for (int i = 0; i < files.count(); ++i) CheckCoverLayout(files.NameAt(i), files.PathAt(i));
  }

  void CheckCoverLayout(const std::string& name, const std::string& path) {
    CoverLayout layout;
    try {
      LoadCoverLayout(path, layout, form_.album);
    } catch (const RuntimeFailure& failure) {
      findings_.push_back(name + ": " + failure.what());
      return;
    }
    std::vector<Touch> touches;
    Gather(form_.album.panel, touches);
    for (int i = 0; i < layout.covers_per_page; ++i) {
      const CoverPosition& position = form_.album.covers[static_cast<size_t>(i)];
      const std::string area = name + ", cover " + std::to_string(i + 1);
      for (const Control* part : std::initializer_list<const Control*>{
               &position.cover, &position.album, &position.artist}) {
        areas_[part] = area;
        CheckInside(*part, area);
        if (!part->place().empty()) touches.push_back({part, area, part->AbsolutePlace()});
      }
    }
    Compare(touches);
    for (const Touch& touch : touches) {
      if (touch.area.starts_with(name)) areas_.erase(touch.control);
    }
  }

  std::string folder_;
  Findings& findings_;
  Settings settings_;
  Form1 form_;
  NoEvents events_;
  NoDisplays displays_;
  NoMessages messages_;
  ScreenSkin skin_;
  // In the order of the files.
  std::vector<std::pair<const Control*, std::string>> placed_;
  std::map<const Control*, std::string> areas_;
  std::vector<const Control*> by_choice_;
};

}  // namespace

void CheckPlaces(const std::string& folder, Findings& findings) {
  PlaceCheck(folder, findings).Run();
}

}  // namespace sonotik
