# Sourced by whoever drives a running jukebox with real clicks: a virtual display, the jukebox of the
# folder $demo on it, and the places of its controls. Needs $demo and $programs.

work=$(mktemp -d)
finish() {
  kill "${jukebox:-}" "${screen:-}" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap finish EXIT
fail() {
  echo "$(basename "$0"): $1" >&2
  cat "$work/jukebox.log" >&2
  exit 1
}
# until_true SECONDS COMMAND...: asks again until the command succeeds.
until_true() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $deadline ] || return 1
    kill -0 "$jukebox" 2>/dev/null || return 1
    sleep 0.1
  done
}

# The cabinet's monitor, as large as the larger skin, and one for the room beside it.
Xvfb -displayfd 4 -screen 0 3200x1080x24 -noreset -nolisten tcp 4>"$work/display" 2>/dev/null &
screen=$!
jukebox=$screen
until_true 20 test -s "$work/display" || fail "no virtual display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
xrandr --setmonitor '*cabinet' 1920/500x1080/280+0+0 screen >/dev/null
xrandr --setmonitor room 1280/280x720/160+1920+0 none

# A jukebox of its own in $demo with the music of a folder, and a Master that keeps its queue:
# whatever lies in its folder is played or queued at once.
make_jukebox() {
  mkdir -p "$demo/skins"
  cp app/sonotik.def "$demo/"
  cp -r build/skins/. app/skins/. "$demo/skins/"
  ln -s "$programs/sonotik" "$demo/sonotik"
  ln -s "$programs/creditmodule" "$demo/creditmodule.exe"
  "$programs/sonotik-config" --app "$demo" --audio "$1" >"$work/config"
  printf 'Terminal \\ Master config\r\n\r\nTrue\r\nFalse\r\n' >"$demo/terminal.ini"
  mapfile -t tracks < <(find "$1" -name '*.mp3' | sort)
}

# settings [LABEL VALUE]...: sonotik.ini as delivered, but for these rows. A value of two lines stands
# in the place of two.
settings() {
  awk '
    BEGIN { for (i = 1; i < ARGC - 1; i += 2) { value[ARGV[i]] = ARGV[i + 1]; ARGV[i] = ARGV[i + 1] = "" } }
    { print; sub(/\r$/, "") }
    $0 in value { rows = value[$0]
                  for (i = split(rows, lines, "/"); i > 0; i--) getline
                  gsub("/", "\r\n", rows); print rows "\r" }' \
    "$@" "$demo/sonotik.def" >"$demo/sonotik.ini"
}

# The start's progress is a window of the same name, so the jukebox's own is told by its skin's width.
window_width() { xdotool getwindowgeometry --shell "$1" 2>/dev/null | sed -n 's/^WIDTH=//p'; }
wears() {
  local shown
  for shown in $(xdotool search --onlyvisible --name '^Sonotik$'); do
    [ "$(window_width "$shown")" != "$1" ] || return 0
  done
  return 1
}
start() {
  "$demo/sonotik" >>"$work/jukebox.log" 2>&1 &
  jukebox=$!
  until_true 30 wears "${window%%x*}" || fail "no window came up"
  settle
}
leave() {
  kill -TERM "$jukebox"
  wait "$jukebox" || fail "the jukebox did not end in order"
}

# wear SKIN: the places of its controls, and the part of the display that it covers.
wear() {
  skin=$1
  "$programs/sonotik-where" "$demo" "$skin" >"$work/places" || fail "the skin $skin cannot be read"
  window=$(awk '$1 == "window" { printf "%dx%d+0+0", $4, $5 }' "$work/places")
  screens=$(awk '$1 == "player" { printf "%dx%d+0+0", $4, $3 }' "$work/places")
}
press_only() {
  local left top width height
  read -r left top width height < <(awk -v n="$1" '$1 == n { print $2, $3, $4, $5 }' "$work/places")
  xdotool mousemove $(awk "BEGIN { printf \"%d %d\", $left + $width / 2, $top + $height / 2 }") click 1
}
press() {
  press_only "$1"
  # What the click has put on the screen: two pictures that agree.
  settle
}
# Without the player panel, where something always moves.
picture() { import -window root -crop "$screens" +repage -depth 8 "rgb:$1"; }
settle() {
  local tries
  picture "$work/a"
  for tries in 1 2 3 4 5 6 7 8; do
    sleep 0.15
    picture "$work/b"
    cmp -s "$work/a" "$work/b" && return
    mv "$work/b" "$work/a"
  done
}
