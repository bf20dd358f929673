// A sound card of switches for machines without one: ALSA loads it as a control of the type
// "cabinet". Its state is a file, a switch a line: "1 Mic Playback Switch".
#include <alsa/asoundlib.h>
#include <alsa/control_external.h>

#include <fstream>
#include <string>
#include <vector>

namespace {

struct Switch {
  long on = 0;
  std::string name;
};

struct Card {
  snd_ctl_ext_t ext{};
  std::string file;
  std::vector<Switch> switches;

  void Load() {
    std::ifstream in(file);
    Switch next;
    while (in >> next.on && std::getline(in >> std::ws, next.name)) switches.push_back(next);
  }
  void Save() const {
    std::ofstream out(file);
    for (const Switch& each : switches) out << each.on << ' ' << each.name << '\n';
  }
};

Card& CardOf(snd_ctl_ext_t* ext) { return *static_cast<Card*>(ext->private_data); }

const snd_ctl_ext_callback_t kCalls = [] {
  snd_ctl_ext_callback_t calls{};
  calls.close = [](snd_ctl_ext_t* ext) { delete &CardOf(ext); };
  calls.elem_count = [](snd_ctl_ext_t* ext) {
    return static_cast<int>(CardOf(ext).switches.size());
  };
  calls.elem_list = [](snd_ctl_ext_t* ext, unsigned int offset, snd_ctl_elem_id_t* id) {
    snd_ctl_elem_id_set_interface(id, SND_CTL_ELEM_IFACE_MIXER);
    snd_ctl_elem_id_set_name(id, CardOf(ext).switches.at(offset).name.c_str());
    return 0;
  };
  calls.find_elem = [](snd_ctl_ext_t* ext, const snd_ctl_elem_id_t* id) -> snd_ctl_ext_key_t {
    const auto& switches = CardOf(ext).switches;
    for (size_t i = 0; i < switches.size(); ++i) {
      if (switches[i].name == snd_ctl_elem_id_get_name(id)) return i;
    }
    return SND_CTL_EXT_KEY_NOT_FOUND;
  };
  calls.get_attribute = [](snd_ctl_ext_t*, snd_ctl_ext_key_t, int* type, unsigned int* access,
                           unsigned int* count) {
    *type = SND_CTL_ELEM_TYPE_BOOLEAN;
    *access = SND_CTL_EXT_ACCESS_READWRITE;
    *count = 1;
    return 0;
  };
  calls.read_integer = [](snd_ctl_ext_t* ext, snd_ctl_ext_key_t key, long* value) {
    *value = CardOf(ext).switches.at(key).on;
    return 0;
  };
  calls.write_integer = [](snd_ctl_ext_t* ext, snd_ctl_ext_key_t key, long* value) {
    CardOf(ext).switches.at(key).on = *value;
    CardOf(ext).Save();
    return 1;
  };
  calls.read_event = [](snd_ctl_ext_t*, snd_ctl_elem_id_t*, unsigned int*) { return -EAGAIN; };
  return calls;
}();

}  // namespace

extern "C" {

SND_CTL_PLUGIN_DEFINE_FUNC(cabinet) {
  static_cast<void>(root);
  const char* file = nullptr;
  snd_config_t* entry = nullptr;
  if (snd_config_search(conf, "file", &entry) < 0) return -EINVAL;
  if (snd_config_get_string(entry, &file) < 0) return -EINVAL;
  auto* card = new Card;
  card->file = file;
  card->Load();
  card->ext.version = SND_CTL_EXT_VERSION;
  card->ext.poll_fd = -1;
  card->ext.callback = &kCalls;
  card->ext.private_data = card;
  const int result = snd_ctl_ext_create(&card->ext, name, mode);
  if (result < 0) {
    delete card;
    return result;
  }
  *handlep = card->ext.handle;
  return 0;
}

SND_CTL_PLUGIN_SYMBOL(cabinet)

}  // extern "C"
