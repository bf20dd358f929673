#include "access/credits.h"

#include <algorithm>
#include <limits>

#include "files/files.h"
#include "files/line_format.h"
#include "text/numbers.h"

namespace sonotik {

Credits::Credits(const std::string& app_path, const Settings& settings, const OptionLists& lists,
                 Form1& form)
    : app_path_(app_path), settings_(settings), lists_(lists), form_(form) {
  for (auto& list : price_grid_) list.fill(-1);
}

void Credits::Receive(const std::string& text) {
  // Each text is a change of its own; that the box is emptied behind it would add 0 and is no call.
  using Limits = std::numeric_limits<int16_t>;
  // A script's line end belongs to the line, not to the number.
  const size_t end = text.find_last_not_of(std::string_view("\r\n\0", 3));
  const std::string_view number = std::string_view(text).substr(0, end + 1);
  const double sum = count_ + RoundHalfEven(NumberOrZero(number));
  count_ = static_cast<int>(std::clamp<double>(sum, Limits::min(), Limits::max()));
}

void Credits::LoadCost() {
  const std::string path = app_path_ + "\\cost.dat";
  if (!FileExists(path)) return;
  FieldReader reader(ReadWholeFile(path));
  for (size_t index = 0; index < 3; ++index) {
    for (size_t list = 0; list < 3; ++list) {
      const int selected = reader.Int16();
      price_grid_[list][index] =
          std::clamp(selected, -1, static_cast<int>(lists_.prices.size()) - 1);
    }
  }
}

void Credits::SaveCost() const {
  LineWriter writer;
  for (size_t index = 0; index < 3; ++index) {
    for (size_t list = 0; list < 3; ++list) {
      writer.Number(static_cast<long>(price_grid_[list][index]));
    }
  }
  ReplaceFile(app_path_ + "\\cost.dat", writer.text());
}

int Credits::PriceAt(size_t list, size_t index) const { return price_grid_[list][index] + 1; }

std::optional<int> Credits::ChargeForSelection(int media_kind, bool play_now, bool play_next,
                                               bool machine_chose) {
  if (!settings_.enable_credit_mode || machine_chose) return 0;
  if (media_kind < 0 || media_kind > 2 || (play_now && play_next)) return 0;
  const PlayWay way = play_now    ? PlayWay::kPlayNow
                      : play_next ? PlayWay::kPlayNext
                                  : PlayWay::kAddToQueue;
  const int price = PriceAt(static_cast<size_t>(way), static_cast<size_t>(media_kind));
  if (count_ < price) return {};
  count_ -= price;
  ShowCreditState();
  return price;
}

void Credits::GiveBack(int price) {
  // A coin may have come meanwhile.
  count_ = std::min<int>(count_ + price, std::numeric_limits<int16_t>::max());
  ShowCreditState();
}

int Credits::ShownPrice(int media_kind, PlayWay way) const {
  if (media_kind < 0 || media_kind > 2) return 0;
  return PriceAt(static_cast<size_t>(media_kind), static_cast<size_t>(way));
}

bool Credits::InsertCoins(int media_kind) const {
  // One way's price stands for all three, so another may be too dear behind a button that shows;
  // that is meant, and the charge refuses it.
  return settings_.enable_credit_mode && media_kind >= 0 && media_kind <= 2 &&
         ShownPrice(media_kind, PlayWay::kAddToQueue) > count_;
}

void Credits::ShowCreditState() {
  if (settings_.enable_credit_mode) {
    form_.credits.SetCaption("CREDITS: " + NumberCaption(count_));
  }
}

void Credits::ShowCreditMode() {
  ShowCreditState();
  // The count stays in memory, unseen, until the mode is on again.
  if (settings_.enable_credit_mode) return;
  form_.play_caption.SetCaption("Play NOW");
  form_.credits.SetCaption("FREEPLAY");
}

}  // namespace sonotik
