# Sourced by the other scripts: stands in the project's root and installs what is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
PROJECT=$PWD

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
  local missing=() name
  while read -r name; do
    case $name in ''|'#'*) continue ;; esac
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done <scripts/packages.txt
  [ ${#missing[@]} = 0 ] && return 0
  echo "installing: ${missing[*]}"
  as_root apt-get update -qq
  DEBIAN_FRONTEND=noninteractive as_root apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures and builds, with the compiler cache inside the build folder's reach.
build() {
  local preset=$1
  shift
  cmake --preset "$preset" >/dev/null
  cmake --build "build/$preset" --parallel "$(nproc)" ${1+--target "$@"}
}

# with_display COMMAND...: on the display that there is, else on a virtual one.
with_display() {
  if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    "$@"
  else
    xvfb-run -a -s "-screen 0 1280x800x24 -nolisten tcp" "$@"
  fi
}

install_packages
