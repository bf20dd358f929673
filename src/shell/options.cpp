#include "shell/options.h"

#include <algorithm>

#include "access/key_names.h"
#include "shell/save_settings.h"

namespace sonotik {
namespace {

constexpr size_t kSignSection = 7;

// Codes of keys stand in their list as characters, and some of these are no letters.
std::string Printable(std::string text) {
  for (char& character : text) {
    if (static_cast<unsigned char>(character) < ' ' || character == 127) character = ' ';
  }
  return text;
}

std::string Joined(const ItemList& items) {
  std::string text;
  for (const std::string& item : items) text += (text.empty() ? "" : ", ") + item;
  return text;
}

int IndexOf(const ItemList& items, const std::string& item) {
  const auto found = std::find(items.begin(), items.end(), item);
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

}  // namespace

Options::Options(Assembly& house, SettingsEffects& effects)
    : house_(house),
      effects_(effects),
      screen_(house.form1.options),
      entry_(screen_, house.boundary),
      month_(house.form1, house.boundary, [this](const Date& day) { SelectDay(day); }) {
  state_.monitor_uses = {"Videos Only", "All"};
  FillCommands();
  Build();
  Wire();
  screen_.LayOut();
}

void Options::FillCommands() {
  commands_.calendar = &screen_.calendar.panel;
  commands_.apply_skin = [this] { effects_.ApplySelectedSkin(); };
  commands_.refresh_skins = [this] { house_.skins.UpdateSkinList(); };
  OptionLists& lists = house_.lists;
  commands_.add_genre = [this, &lists] {
    MoveGenre(lists.available_genres, lists.selected_genres, ">>");
  };
  commands_.remove_genre = [this, &lists] {
    MoveGenre(lists.selected_genres, lists.available_genres, "<<");
  };
  // Anew from the folder, where files may have come or gone since.
  commands_.reset_genres = [this, &lists] { ListGenres(house_.app_path, lists); };
  commands_.holiday_skin = [this] {
    const int skin = state_.holiday_skin;
    state_.of_day.skin = skin < 0 ? "" : house_.lists.calendar_skins[static_cast<size_t>(skin)];
  };
  house_.calendar.show_page = [this](const DaySettings& page) {
    state_.of_day = page;
    Refresh();
  };
  commands_.save_day = [this] { house_.calendar.Save(state_.day, state_.of_day); };
  commands_.commit_sign = [this] { commit_sign(); };
  commands_.role_changed = [this] {
    house_.network.SetSharedFolder(state_.shared_folder);
    house_.network.SetRole(state_.master, state_.terminal);
    house_.playback.random_play_available = !state_.terminal;
  };
  commands_.prompt_changed = [this] { ShowPinBoxes(!house_.settings.prompt_for_pin); };
}

void Options::Build() {
  OptionSections sections = MakeOptionSections(house_, effects_, state_, commands_);
  for (size_t section = 0; section < sections.size(); ++section) {
    OptionPage& page = screen_.settings[section];
    for (OptionFrame& frame : sections[section]) {
      Label& heading = page.AddFrame(frame.caption, frame.new_column);
      for (OptionRow& row : frame.rows) {
        if (row.control != nullptr) {
          page.Add(*row.control, row.height);
          if (row.control == commands_.calendar) calendar_heading_ = &heading;
          continue;
        }
        auto item = std::make_unique<Shown>();
        item->section = section;
        item->frame = &heading;
        item->row = std::move(row);
        item->field = std::make_unique<OptionField>(item->row.kind, item->row.caption);
        if (item->row.kind == OptionKind::kSlider) {
          item->slider = std::make_unique<Slider>();
          item->slider->SetRange(item->row.least, item->row.most);
        }
        page.Add(*item->field, OptionField::HeightOf(item->row.kind), item->slider.get());
        shown_.push_back(std::move(item));
      }
    }
  }
}

void Options::Wire() {
  for (const auto& item : shown_) {
    Shown& shown = *item;
    if (shown.slider != nullptr) {
      shown.slider->on_scroll = house_.boundary.Guarded(shown.row.caption, [this, &shown](int at) {
        *std::get<int*>(shown.row.value) = at;
        Changed(shown);
      });
    } else {
      shown.field->on_click =
          house_.boundary.Guarded(shown.row.caption, [this, &shown] { Press(shown); });
    }
  }
  for (size_t i = 0; i < kOptionSections; ++i) {
    screen_.sections[i].on_click =
        house_.boundary.Guarded("section", [this, i] { OpenSection(i); });
  }
  screen_.save_settings.on_click =
      house_.boundary.Guarded("Save Settings", [this] { SaveSettings(house_); });
  const auto turn = [this](int by) {
    const size_t front = screen_.front();
    if (front == kOptionSections) return;
    OptionPage& page = screen_.settings[front];
    page.ShowPage(page.page() + by);
    screen_.ShowFront();
  };
  screen_.page_back.on_click = [turn] { turn(-1); };
  screen_.page_forward.on_click = [turn] { turn(1); };

  house_.pin.show_pin_boxes = [this](bool visible) { ShowPinBoxes(visible); };
  house_.pin.restrict_pages = [this](bool admin) { RestrictPages(admin); };
  house_.pin.pages_shown = [this] { Opened(); };
}

OptionField* Options::Find(size_t section, std::string_view frame, std::string_view caption,
                           OptionKind kind) const {
  for (const auto& item : shown_) {
    if (item->section == section && item->row.kind == kind && caption == item->row.caption &&
        frame == item->frame->caption()) {
      return item->field.get();
    }
  }
  return nullptr;
}

Slider* Options::SliderOn(const OptionField& field) const {
  for (const auto& item : shown_) {
    if (item->field.get() == &field) return item->slider.get();
  }
  return nullptr;
}

OptionField& Options::FieldOf(const void* value) const {
  const auto holds = [value](const auto& item) {
    return std::visit(
        [value](auto member) {
          if constexpr (std::is_same_v<decltype(member), std::monostate>) {
            return false;
          } else {
            return static_cast<const void*>(member) == value;
          }
        },
        item->row.value);
  };
  return *(*std::find_if(shown_.begin(), shown_.end(), holds))->field;
}

void Options::Opened() {
  entry_.Close();
  SelectDay(house_.machine.clock.Now().date);
}

void Options::Refresh() {
  state_.master = house_.network.master();
  state_.terminal = house_.network.terminal();
  state_.shared_folder = house_.network.shared_folder();
  state_.shown_skin = IndexOf(house_.lists.skins, house_.skins.selected());
  state_.holiday_skin = IndexOf(house_.lists.calendar_skins, state_.of_day.skin);
  for (const auto& item : shown_) Show(*item);
  // A Terminal plays nothing, so it can't choose by itself.
  FieldOf(&house_.settings.enable_random_play).SetEnabled(!state_.terminal);
  screen_.ShowFront();
}

void Options::Show(const Shown& item) const {
  const OptionRow& row = item.row;
  switch (row.kind) {
    case OptionKind::kCheck:
    case OptionKind::kChoice: {
      const auto* truth = std::get_if<bool*>(&row.value);
      item.field->SetChecked(truth != nullptr ? **truth : *std::get<int*>(row.value) != 0);
      break;
    }
    case OptionKind::kList:
      item.field->SetValue(ListValue(row));
      break;
    case OptionKind::kSlider:
      item.slider->SetValue(*std::get<int*>(row.value));
      item.field->SetValue(std::to_string(*std::get<int*>(row.value)));
      break;
    case OptionKind::kCommand:
    case OptionKind::kKey:
      break;
    default:
      item.field->SetValue(*std::get<std::string*>(row.value));
  }
}

std::string Options::ItemText(const ItemList& items, size_t index) const {
  const std::string text = Printable(items[index]);
  if (&items != &house_.lists.key_codes) return text;
  // Beside the code its name, so that nobody needs a table.
  const std::string name = KeyName(static_cast<int>(index));
  return name.empty() ? text : text + " (" + name + ")";
}

int Options::SelectedOf(const OptionRow& row) {
  if (const auto* truth = std::get_if<bool*>(&row.value)) return **truth ? 0 : 1;
  return *std::get<int*>(row.value);
}

std::string Options::ListValue(const OptionRow& row) const {
  if (std::holds_alternative<std::monostate>(row.value)) return Joined(*row.items);
  const int selected = SelectedOf(row);
  const bool there = selected >= 0 && selected < static_cast<int>(row.items->size());
  return there ? ItemText(*row.items, static_cast<size_t>(selected)) : "";
}

void Options::Press(Shown& item) {
  OptionRow& row = item.row;
  switch (row.kind) {
    case OptionKind::kCheck:
      if (auto* truth = std::get_if<bool*>(&row.value)) {
        **truth = !**truth;
      } else {
        int& number = *std::get<int*>(row.value);
        number = number == 0 ? 1 : 0;
      }
      return Changed(item);
    case OptionKind::kChoice:
      for (const auto& other : shown_) {
        if (other->frame == item.frame && other->row.kind == OptionKind::kChoice) {
          *std::get<bool*>(other->row.value) = other.get() == &item;
        }
      }
      return Changed(item);
    case OptionKind::kList:
      return std::holds_alternative<std::monostate>(row.value) ? row.changed() : PickFrom(item);
    case OptionKind::kFolder:
      return entry_.PickFolder(*std::get<std::string*>(row.value), TakeText(item));
    case OptionKind::kCommand:
      return Changed(item);
    default:
      return Type(item);
  }
}

void Options::Changed(const Shown& item) {
  // The field shows what stands, also where the effect fails.
  house_.boundary.Run(item.row.caption, item.row.changed);
  Refresh();
}

void Options::PickFrom(const Shown& item) {
  std::vector<std::string> texts;
  for (size_t i = 0; i < item.row.items->size(); ++i) {
    texts.push_back(ItemText(*item.row.items, i));
  }
  const auto take = [this, &item](int index) {
    if (auto* truth = std::get_if<bool*>(&item.row.value)) {
      **truth = index == 0;
    } else {
      *std::get<int*>(item.row.value) = index;
    }
    Changed(item);
  };
  entry_.Pick(item.row.caption, std::move(texts), SelectedOf(item.row), take, item.row.may_be_none);
}

std::function<void(const std::string&)> Options::TakeText(const Shown& item) {
  return [this, &item](const std::string& text) {
    *std::get<std::string*>(item.row.value) = text;
    Changed(item);
  };
}

void Options::Type(const Shown& item) {
  const auto check = [this, pin = item.row.kind == OptionKind::kPin](const std::string& text) {
    // Said at each key, and the text stays as it is typed: so it was always done.
    if (pin && !text.empty() && (text.back() < '1' || text.back() > '9')) {
      house_.machine.messages.Show("Only use numbers 1 - 9");
    }
  };
  entry_.Type(item.row.caption, *std::get<std::string*>(item.row.value), check, TakeText(item));
}

void Options::OpenSection(size_t section) {
  entry_.Close();
  OptionPage& settings = screen_.settings[section];
  // Pressed once more, a section turns its pages.
  const int page = screen_.front() == section ? (settings.page() + 1) % settings.pages() : 0;
  for (Panel& panel : screen_.section_panels) panel.SetVisible(false);
  screen_.section_panels[section].SetVisible(true);
  settings.ShowPage(page);
  // Takes back what wasn't saved, in all sections, and lists every skin once more; that is meant.
  if (section == kSignSection) effects_.LoadConfig();
  Refresh();
}

void Options::ShowPinBoxes(bool visible) {
  OptionPage& page = screen_.settings[0];
  page.SetShown(FieldOf(&house_.settings.admin_pin), visible);
  page.SetShown(FieldOf(&house_.settings.delegate_pin), visible);
  screen_.LayOut();
}

void Options::RestrictPages(bool admin) {
  for (size_t i = 0; i < kPermissions; ++i) {
    FieldOf(&house_.permissions.box(i)).SetEnabled(admin);
  }
  Settings& settings = house_.settings;
  for (const bool* choice :
       {&settings.power_shutdown, &settings.power_reboot, &settings.power_log_off,
        &settings.power_down_atx, &settings.power_exit}) {
    FieldOf(choice).SetEnabled(admin);
  }
  screen_.settings[0].SetShown(FieldOf(&settings.prompt_for_pin), admin);
  screen_.LayOut();
}

void Options::MoveGenre(ItemList& from, ItemList& to, const char* heading) {
  // Stays open for the next one.
  entry_.Pick(heading, from, -1, [this, &from, &to, heading](int index) {
    to.push_back(from[static_cast<size_t>(index)]);
    from.erase(from.begin() + index);
    Refresh();
    if (!from.empty()) MoveGenre(from, to, heading);
  });
}

void Options::SelectDay(const Date& day) {
  state_.day = day;
  calendar_heading_->SetCaption("Calendar Settings For: " + DateText(day));
  month_.Show(day);
  // A day without a file, or with a damaged one, leaves the page as it is.
  house_.boundary.Run("calendar", [&] { house_.calendar.Load(day, state_.of_day); });
  Refresh();
}

}  // namespace sonotik
