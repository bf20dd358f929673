#include "forms/AlbumScreen.h"

namespace sonotik {
namespace {

using namespace design;

constexpr float kSide = 64;   // the paging buttons at both edges
constexpr float kCell = 190;  // six cells a row between them
constexpr float kCover = 166;
constexpr float kGridTop = 68;
constexpr float kRowHeight = 240;

void AddCover(Panel& panel, CoverPosition& position, int index) {
  const float left = kSide + 6 + kCell * static_cast<float>(index % 6) + (kCell - kCover) / 2;
  const float top = kGridTop + kRowHeight * static_cast<float>(index / 6);
  AddPicture(panel, position.cover, {left, top, kCover, kCover});
  AddPicture(panel, position.reflection, {left, top + kCover, kCover, 24}, PictureFit::kReflection);
  AddPicture(panel, position.frame, {left - 4, top - 4, kCover + 8, kCover + 8},
             PictureFit::kStretch);
  AddLabel(panel, position.new_badge, {left + kCover - 46, top - 6, 50, 22}, 9, kText,
           Align::kCenter, true);
  position.new_badge.SetCaption("NEW");
  position.new_badge.SetBackColor(kBadge);
  position.new_badge.SetHighlighted(true);
  AddLabel(panel, position.album, {left - 8, top + kCover + 6, kCover + 16, 22}, 11, kText,
           Align::kCenter, true);
  AddLabel(panel, position.artist, {left - 8, top + kCover + 28, kCover + 16, 20}, 10, kMuted,
           Align::kCenter);
}

}  // namespace

AlbumScreen::AlbumScreen(Panel& screen) : panel(screen) {
  static constexpr const char* kTabs[] = {"Audio",       "Video",     "Karaoke",
                                          "Most Played", "New Songs", "SPIN on THIS"};
  // "Most Played" has no page of its own and stands last.
  static constexpr float kTabPlaces[] = {0, 1, 2, 5, 3, 4};
  for (size_t i = 0; i < tabs.size(); ++i) {
    AddButton(panel, tabs[i], {kSide + 6 + 136 * kTabPlaces[i], 8, 130, 46}, kTabs[i], 11);
  }
  AddButton(panel, jump_to_letter, {888, 8, 150, 46}, "Jump To Letter", 11);
  AddLabel(panel, page_caption, {1046, 8, 164, 46}, 10, kMuted, Align::kRight);
  AddButton(panel, previous, {6, kGridTop, 52, 478}, "<", 24);
  AddButton(panel, next, {kWidth - 58, kGridTop, 52, 478}, ">", 24);

  AddPanel(panel, left_scroll, {6, kGridTop, 52, 478});
  AddPanel(panel, right_scroll, {kWidth - 58, kGridTop, 52, 478});
  AddButton(left_scroll, scroll_back, {0, 0, 52, 478}, "<", 24);
  AddButton(right_scroll, scroll_forward, {0, 0, 52, 478}, ">", 24);
  for (Panel* scroll : {&left_scroll, &right_scroll}) {
    scroll->SetTransparent(true);
    scroll->SetVisible(false);
  }

  for (int i = 0; i < kMostCovers; ++i) {
    CoverPosition& position = covers[static_cast<size_t>(i)];
    // Positions beyond the design wait, unseen, for a cover layout to place them.
    AddCover(panel, position, i < kDesignCovers ? i : 0);
    const std::initializer_list<Control*> items = {&position.cover,      &position.frame,
                                                   &position.reflection, &position.new_badge,
                                                   &position.album,      &position.artist};
    for (Control* item : items) {
      item->SetVisible(false);
    }
  }

  AddPanel(panel, letters, {kSide + 6, 554, 1140, 48});
  for (size_t i = 0; i < letter_buttons.size(); ++i) {
    const bool start = i == 26;
    AddButton(
        letters, letter_buttons[i], {39.5F * static_cast<float>(i), 2, start ? 113.0F : 36.0F, 44},
        start ? "Jump To Start" : std::string(1, static_cast<char>('A' + i)), start ? 10 : 12);
  }
  AddPanel(panel, strip, {kSide + 6, 608, 1140, 26}, kRaised);
  AddPanel(strip, strip_thumb, {0, 2, 42, 22}, kAmber);
}

JumpToLetterScreen::JumpToLetterScreen(Panel& parent) {
  AddPanel(parent, panel, {330, 150, 620, 440}, kRaised);
  AddLabel(panel, heading, {24, 14, 572, 36}, 15, kText, Align::kCenter, true);
  heading.SetCaption("Jump To Letter");
  for (size_t i = 0; i < letter_buttons.size(); ++i) {
    AddButton(panel, letter_buttons[i],
              {24 + 82 * static_cast<float>(i % 7), 62 + 74 * static_cast<float>(i / 7), 74, 66},
              std::string(1, static_cast<char>('A' + i)), 18);
  }
  AddButton(panel, jump_to_start, {434, 284, 156, 66}, "Jump To Start");
  AddMainButton(panel, done, {24, 366, 572, 58}, "Done");
  panel.SetVisible(false);
}

}  // namespace sonotik
