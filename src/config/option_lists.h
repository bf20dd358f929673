// The lists that the operator picks from. Start-up fills them; a setting is an index in one.
#ifndef SONOTIK_CONFIG_OPTION_LISTS_H_
#define SONOTIK_CONFIG_OPTION_LISTS_H_

#include <string>
#include <vector>

namespace sonotik {

using ItemList = std::vector<std::string>;

struct OptionLists {
  ItemList startup_databases;  // "Database to use on startup..."
  ItemList sign_types;
  ItemList sign_ports;
  ItemList monitors;  // "Second Monitor ID:"
  ItemList double_click_actions;
  ItemList exit_times;          // "Exit Program at:", each half hour of the day
  ItemList jingle_song_counts;  // "Song Count:"
  ItemList no_repeat_counts;    // "Do Not Repeat song for:"
  ItemList prices;              // each of the nine price lists
  ItemList key_codes;           // each of the 35 key lists: the index is the virtual-key code
  ItemList cover_animations;    // "Animation Style:" and "Attract AnimationStyle:"
  ItemList cover_layouts;       // "Resolution:", the skin's *.cov files
  ItemList skins;               // "Selected Skin:"
  ItemList calendar_skins;      // the same names on the calendar page
  ItemList available_genres;
  ItemList selected_genres;

  // Fills the lists whose items never change. `monitor_count` is at least 1.
  void FillFixed(int monitor_count);
};

}  // namespace sonotik

#endif  // SONOTIK_CONFIG_OPTION_LISTS_H_
