# Shared by ./run and ./test: what must be installed, and where things are laid out.

run_packages=(cmake ninja-build g++ qt6-base-dev libsqlite3-dev sqlite3 fonts-dejavu-core)
screen_packages=(xvfb xauth)  # a virtual screen, for the demonstration and the journeys
test_packages=(libgtest-dev libgmock-dev python3 clang-format locales ccache)
archive_packages=(git xz-utils binutils)
archive_test_packages=(xdotool)  # finds the window of the unpacked program and presses its keys
bench_packages=(libbenchmark-dev sqlite3 time)

# For the compiler's cache: without the first, headers that are compiled once are never found again; without the
# others, nothing is found that a checkout in another place has compiled.
export CCACHE_SLOPPINESS=pch_defines,time_macros
export CCACHE_BASEDIR=$top CCACHE_NOHASHDIR=1

say() { printf '%s\n' "$*"; }
give_up() { printf '%s\n' "$*" >&2; exit 1; }

# install_missing PACKAGE...: asks the system's package manager for what is not there yet.
install_missing() {
  command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
    { say "This is no Debian: make sure that these are installed: $*"; return; }
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "Installing: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || give_up "Please install as root: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  cmake --preset "$preset" >"$top/configure.log" 2>&1 || { cat "$top/configure.log"; rm -f "$top/configure.log"; exit 1; }
  rm -f "$top/configure.log"
  say "Building ($preset); the first time this takes some minutes."
  cmake --build --preset "$preset" -- --quiet ${1:+"$@"}
}

# install_release DIRECTORY: the application directory as it is delivered, anew.
install_release() {
  rm -rf "$1"
  cmake --install "$top/build/release" --prefix "$1" --strip >/dev/null
}

# A path that the file picks can take: they refuse a blank, and cut a path at its first dot.
fit_for_picks() { case $1 in *[[:space:].]*) return 1 ;; esac; }

# Where the application directory is laid out: QUELAR_HOME, else app in the checkout, else quelar in the home.
application_place() {
  local place
  for place in ${QUELAR_HOME:+"$QUELAR_HOME"} "$top/app" "${HOME:-/}/quelar"; do
    if fit_for_picks "$place"; then printf '%s' "$place"; return; fi
    [ "$place" != "${QUELAR_HOME:-}" ] || break
  done
  give_up "The application directory may not lie below a directory whose name holds a blank or a dot: the program's
file picks refuse such paths. Name a place that has neither: QUELAR_HOME=/some/place ./run"
}

# lay_out STAGING PLACE: brings the files of an installation up to date and leaves alone what the analyst has
# changed: the database with the study, and model programs that took the place of the samples.
lay_out() {
  local staging=$1 place=$2 manifest=$2/installed.sha256 file kept=0
  mkdir -p "$place"
  touch "$manifest"
  (cd "$staging" && find . -type d) | while read -r file; do mkdir -p "$place/$file"; done
  while read -r file; do
    if [ -e "$place/$file" ] && ! (cd "$place" && grep -F -- "  $file" "$manifest" | sha256sum --check --status 2>/dev/null); then
      cmp -s "$staging/$file" "$place/$file" || kept=$((kept + 1))
    else
      cp -p "$staging/$file" "$place/$file.new" && mv -f "$place/$file.new" "$place/$file"
    fi
  done < <(cd "$staging" && find . -type f)
  (cd "$staging" && find . -type f -exec sha256sum {} +) >"$manifest"
  [ $kept = 0 ] || say "$kept files in $place were changed since they were installed; they stay as they are."
}
