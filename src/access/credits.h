// Credits: the count, the price grid, and what a selection costs.
#ifndef SONOTIK_ACCESS_CREDITS_H_
#define SONOTIK_ACCESS_CREDITS_H_

#include <array>
#include <optional>
#include <string>

#include "config/option_lists.h"
#include "config/settings.h"
#include "forms/Form1.h"

namespace sonotik {

// How a guest asked for a track: the rows of the price grid.
enum class PlayWay { kAddToQueue, kPlayNext, kPlayNow };

class Credits {
 public:
  Credits(const std::string& app_path, const Settings& settings, const OptionLists& lists,
          Form1& form);

  // In memory only: a restart begins at 0.
  int count() const { return count_; }
  // Coins. Text that is no number counts as 0, a fraction is rounded to the nearest whole; the
  // count stops at the end of its 16 bits and never wraps.
  void Receive(const std::string& text);

  // cost.dat: nine selected indexes (price minus 1). Without the file no price is chosen, and
  // everything costs nothing.
  void LoadCost();
  void SaveCost() const;
  // The selected index of a cell, for the options page.
  int& price_selection(size_t list, size_t index) { return price_grid_[list][index]; }

  // Takes the price of an add and says what it took; nothing said: too few credits, and nothing may
  // be added. 0 is taken while credit mode is off, for the machine's own selections, on a page that
  // is neither audio, video nor karaoke, and when both flags are set, since that is no row of the
  // grid.
  std::optional<int> ChargeForSelection(int media_kind, bool play_now, bool play_next,
                                        bool machine_chose);
  // A price back into the guest's hand: the add came to nothing.
  void GiveBack(int price);

  // The price of a way as the play options show it. Shown and taken cells are transposed: the sum
  // shown may differ from the sum taken, and that is meant.
  int ShownPrice(int media_kind, PlayWay way) const;
  // Too few credits for the cell that the play options test for this kind.
  bool InsertCoins(int media_kind) const;

  // The credit label: "CREDITS: " and the count in credit mode.
  void ShowCreditState();
  // Also sets the labels of free play while credit mode is off.
  void ShowCreditMode();

 private:
  int PriceAt(size_t list, size_t index) const;

  const std::string& app_path_;
  const Settings& settings_;
  const OptionLists& lists_;
  Form1& form_;
  int count_ = 0;
  // Selected indexes by list and place in it, -1 for none.
  std::array<std::array<int, 3>, 3> price_grid_;
};

}  // namespace sonotik

#endif  // SONOTIK_ACCESS_CREDITS_H_
