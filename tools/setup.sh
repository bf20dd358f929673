# Sourced by run, test and CI from the project's folder: packages and builds.

# Installs the packages of a list, packages.txt by default, that are missing. Silent where none is.
install_packages() {
  local missing=() name list=${1:-packages.txt}
  while read -r name; do
    case $name in '' | '#'*) continue ;; esac
    dpkg-query -W -f '${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done <"$list"
  if [ ${#missing[@]} -gt 0 ]; then
    local as_root=()
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
  fi
  # The toolkit wants a folder of its own at run time.
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    chmod 700 "$XDG_RUNTIME_DIR"
    export XDG_RUNTIME_DIR
  fi
}

# Configures and builds a preset of CMakePresets.json, or some targets of it.
build() {
  local preset=$1 folder=build
  shift
  [ "$preset" = release ] || folder=build/$preset
  [ -e "$folder/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build "$folder" --parallel "$(nproc)" ${1:+--target "$@"} -- --quiet
}
