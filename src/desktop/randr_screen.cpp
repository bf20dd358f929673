#include "desktop/randr_screen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace sonotik {
namespace {

constexpr char kNote[] = "_SONOTIK_FOUND_MODE";
constexpr int kNoteFields = 4;
// A plugged cable brings several events, and the toolkit hears of them at its own time.
constexpr int kSettleMs = 100;

// Collects the server's refusals, which would end the program, for as long as it lives.
class Refusals {
 public:
  explicit Refusals(Display* display) : display_(display) {
    count_ = 0;
    before_ = XSetErrorHandler([](Display*, XErrorEvent*) { return ++count_; });
  }
  ~Refusals() {
    XSync(display_, False);
    XSetErrorHandler(before_);
  }
  bool any() const {
    XSync(display_, False);
    return count_ > 0;
  }

 private:
  static inline int count_ = 0;
  Display* display_;
  XErrorHandler before_;
};

// libXrandr's records, given back as it wants them.
template <auto Free, typename T>
auto Owned(T* record) {
  const auto free = [](T* owned) { Free(owned); };
  return std::unique_ptr<T, decltype(free)>(record, free);
}

auto ResourcesOf(Display* display) {
  return Owned<XRRFreeScreenResources>(
      XRRGetScreenResourcesCurrent(display, DefaultRootWindow(display)));
}

auto CrtcOf(Display* display, XRRScreenResources& resources, RRCrtc crtc) {
  return Owned<XRRFreeCrtcInfo>(XRRGetCrtcInfo(display, &resources, crtc));
}

auto OutputOf(Display* display, XRRScreenResources& resources, RROutput output) {
  return Owned<XRRFreeOutputInfo>(XRRGetOutputInfo(display, &resources, output));
}

double RateOf(const XRRModeInfo& mode) {
  const double dots = static_cast<double>(mode.hTotal) * mode.vTotal;
  return dots > 0 ? static_cast<double>(mode.dotClock) / dots : 0;
}

// The output of the first monitor that has a picture.
RROutput FirstOutput(Display* display, XRRScreenResources& resources) {
  const auto active = [&](RROutput output) {
    if (output == None) return false;
    const auto info = OutputOf(display, resources, output);
    return info && info->crtc != None;
  };
  const RROutput primary = XRRGetOutputPrimary(display, DefaultRootWindow(display));
  if (active(primary)) return primary;
  for (int i = 0; i < resources.noutput; ++i) {
    if (active(resources.outputs[i])) return resources.outputs[i];
  }
  return None;
}

}  // namespace

struct RandrScreen::FoundMode {
  int width = 0;
  int height = 0;
  int rate = 0;               // hertz; 0 where the server doesn't tell
  unsigned long mode_id = 0;  // of the first monitor's output
};

void RandrScreen::Disconnect::operator()(_XDisplay* display) const { XCloseDisplay(display); }

RandrScreen::RandrScreen(const char* display) : display_(XOpenDisplay(display)) {
  int event = 0;
  int error = 0;
  int major = 0;
  int minor = 0;
  if (!display_ || !XRRQueryExtension(display_.get(), &event, &error) ||
      !XRRQueryVersion(display_.get(), &major, &minor) || major * 100 + minor < 105) {
    display_.reset();
    return;
  }
  told_.setSingleShot(true);
  told_.setInterval(kSettleMs);
  QObject::connect(&told_, &QTimer::timeout, [this] { on_changed(); });
  const Window root = DefaultRootWindow(display_.get());
  XSelectInput(display_.get(), root, StructureNotifyMask);
  XRRSelectInput(display_.get(), root,
                 RRScreenChangeNotifyMask | RRCrtcChangeNotifyMask | RROutputChangeNotifyMask);
  XFlush(display_.get());
  events_ =
      std::make_unique<QSocketNotifier>(ConnectionNumber(display_.get()), QSocketNotifier::Read);
  QObject::connect(events_.get(), &QSocketNotifier::activated, [this] { ReadEvents(); });
}

RandrScreen::~RandrScreen() = default;

void RandrScreen::ReadEvents() {
  bool any = false;
  while (XPending(display_.get()) > 0) {
    XEvent event;
    XNextEvent(display_.get(), &event);
    XRRUpdateConfiguration(&event);
    any = true;
  }
  if (any) told_.start();
}

std::vector<Monitor> RandrScreen::Monitors() {
  std::vector<Monitor> monitors;
  if (!display_) return monitors;
  const Refusals refusals(display_.get());
  int count = 0;
  const auto infos = Owned<XRRFreeMonitors>(
      XRRGetMonitors(display_.get(), DefaultRootWindow(display_.get()), True, &count));
  if (!infos) return monitors;
  for (int i = 0; i < count; ++i) {
    const XRRMonitorInfo& info = infos.get()[i];
    const MonitorArea area{info.x, info.y, info.width, info.height};
    if (area.width <= 0 || area.height <= 0) continue;
    monitors.push_back({area, area, DefaultDepth(display_.get(), DefaultScreen(display_.get())),
                        info.primary != 0});
  }
  // What came with the answer doesn't wake the notifier any more.
  ReadEvents();
  std::stable_partition(monitors.begin(), monitors.end(),
                        [](const Monitor& monitor) { return monitor.primary; });
  return monitors;
}

int RandrScreen::ActiveOutputs() {
  const auto resources = ResourcesOf(display_.get());
  if (!resources) return 0;
  int active = 0;
  for (int i = 0; i < resources->ncrtc; ++i) {
    const auto crtc = CrtcOf(display_.get(), *resources, resources->crtcs[i]);
    if (crtc && crtc->mode != None) ++active;
  }
  return active;
}

RandrScreen::FoundMode RandrScreen::Present() {
  FoundMode present;
  const auto resources = ResourcesOf(display_.get());
  if (!resources) return present;
  const auto output = OutputOf(display_.get(), *resources, FirstOutput(display_.get(), *resources));
  if (!output) return present;
  const auto crtc = CrtcOf(display_.get(), *resources, output->crtc);
  if (!crtc) return present;
  present.width = static_cast<int>(crtc->width);
  present.height = static_cast<int>(crtc->height);
  present.mode_id = crtc->mode;
  for (int i = 0; i < resources->nmode; ++i) {
    const XRRModeInfo& mode = resources->modes[i];
    if (mode.id == crtc->mode) present.rate = static_cast<int>(std::lround(RateOf(mode)));
  }
  return present;
}

DisplayMode RandrScreen::CurrentMode() {
  if (!display_) return {};
  const Refusals refusals(display_.get());
  const FoundMode present = Present();
  return {present.width, present.height,
          DefaultDepth(display_.get(), DefaultScreen(display_.get())), present.rate};
}

bool RandrScreen::SetScreenMode(int width, int height, int rate) {
  const auto config = Owned<XRRFreeScreenConfigInfo>(
      XRRGetScreenInfo(display_.get(), DefaultRootWindow(display_.get())));
  if (!config) return false;
  int count = 0;
  const XRRScreenSize* sizes = XRRConfigSizes(config.get(), &count);
  Rotation rotation = RR_Rotate_0;
  XRRConfigCurrentConfiguration(config.get(), &rotation);
  for (int i = 0; i < count; ++i) {
    if (sizes[i].width != width || sizes[i].height != height) continue;
    int rates = 0;
    const short* known = XRRConfigRates(config.get(), i, &rates);
    const bool has_rate = std::find(known, known + rates, rate) != known + rates;
    return XRRSetScreenConfigAndRate(
               display_.get(), config.get(), DefaultRootWindow(display_.get()), i, rotation,
               static_cast<short>(has_rate ? rate : 0), CurrentTime) == RRSetConfigSuccess;
  }
  return false;
}

bool RandrScreen::SetOutputMode(int width, int height, unsigned long mode_id) {
  const auto resources = ResourcesOf(display_.get());
  if (!resources) return false;
  const RROutput first = FirstOutput(display_.get(), *resources);
  const auto output = OutputOf(display_.get(), *resources, first);
  if (!output) return false;
  const auto crtc = CrtcOf(display_.get(), *resources, output->crtc);
  if (!crtc) return false;
  const XRRModeInfo* wanted = nullptr;
  for (int i = 0; i < resources->nmode; ++i) {
    const XRRModeInfo& mode = resources->modes[i];
    const RRMode* modes = output->modes;
    if (std::find(modes, modes + output->nmode, mode.id) == modes + output->nmode) continue;
    if (mode_id != None
            ? mode.id != mode_id
            : static_cast<int>(mode.width) != width || static_cast<int>(mode.height) != height) {
      continue;
    }
    if (wanted == nullptr || RateOf(mode) > RateOf(*wanted)) wanted = &mode;
  }
  if (wanted == nullptr) return false;
  // Over another monitor's place, or out of the screen, it would show half of a picture.
  for (int i = 0; i < resources->ncrtc; ++i) {
    if (resources->crtcs[i] == output->crtc) continue;
    const auto other = CrtcOf(display_.get(), *resources, resources->crtcs[i]);
    if (!other || other->mode == None) continue;
    const bool apart = crtc->x + static_cast<int>(wanted->width) <= other->x ||
                       other->x + static_cast<int>(other->width) <= crtc->x ||
                       crtc->y + static_cast<int>(wanted->height) <= other->y ||
                       other->y + static_cast<int>(other->height) <= crtc->y;
    if (!apart) return false;
  }
  RROutput outputs[] = {first};
  return XRRSetCrtcConfig(display_.get(), resources.get(), output->crtc, CurrentTime, crtc->x,
                          crtc->y, wanted->id, crtc->rotation, outputs, 1) == RRSetConfigSuccess;
}

bool RandrScreen::SetMode(const FoundMode& mode) {
  return ActiveOutputs() > 1 ? SetOutputMode(mode.width, mode.height, mode.mode_id)
                             : SetScreenMode(mode.width, mode.height, mode.rate);
}

bool RandrScreen::ChangeMode(int width, int height) {
  if (!display_) return false;
  const Refusals refusals(display_.get());
  const FoundMode found = Present();
  if (found.width == width && found.height == height) return true;
  Display* display = display_.get();
  const Window root = DefaultRootWindow(display);
  const Atom note = XInternAtom(display, kNote, False);
  // Noted before the change, so that there is no moment at which nobody would know; a second change
  // leaves the note of the first.
  const bool noted = ReadNote().has_value();
  if (!noted) {
    // Xlib takes fields of 32 bits as longs.
    const long values[kNoteFields] = {found.width, found.height, found.rate,
                                      static_cast<long>(found.mode_id)};
    XChangeProperty(display, root, note, XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values), kNoteFields);
    XSync(display, False);
  }
  const bool changed = SetMode({width, height, 0, None}) && !refusals.any();
  if (!changed && !noted) XDeleteProperty(display, root, note);
  ReadEvents();
  return changed;
}

std::optional<RandrScreen::FoundMode> RandrScreen::ReadNote() {
  Display* display = display_.get();
  Atom type = None;
  int format = 0;
  unsigned long fields = 0;
  unsigned long rest = 0;
  unsigned char* bytes = nullptr;
  XGetWindowProperty(display, DefaultRootWindow(display), XInternAtom(display, kNote, False), 0,
                     kNoteFields, False, XA_CARDINAL, &type, &format, &fields, &rest, &bytes);
  const auto owned = Owned<XFree>(bytes);
  if (type != XA_CARDINAL || format != 32 || fields != kNoteFields) return std::nullopt;
  const auto* values = reinterpret_cast<const long*>(bytes);
  return FoundMode{static_cast<int>(values[0]), static_cast<int>(values[1]),
                   static_cast<int>(values[2]), static_cast<unsigned long>(values[3])};
}

void RandrScreen::RestoreMode() {
  if (!display_) return;
  const Refusals refusals(display_.get());
  const auto found = ReadNote();
  if (!found) return;
  SetMode(*found);
  XDeleteProperty(display_.get(), DefaultRootWindow(display_.get()),
                  XInternAtom(display_.get(), kNote, False));
  ReadEvents();
}

}  // namespace sonotik
