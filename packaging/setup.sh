# Shared by ./play and ./test: the Debian packages that the project needs, and how to install them and build.

build_packages="g++ cmake ninja-build pkg-config libsdl2-dev libsdl2-mixer-dev libsdl2-ttf-dev libx11-dev libarchive-dev libssl-dev
  libb2-dev zlib1g-dev libpng-dev libsimpleini-dev nlohmann-json3-dev fonts-liberation2 fonts-comic-neue"
test_packages="libgtest-dev libgmock-dev libbenchmark-dev clang-format xvfb xauth xdotool openbox x11-apps imagemagick unar
  libarchive-tools python3 python3-numpy python3-pil desktop-file-utils vorbis-tools"

# Installs those of the given packages that are missing, or says in one line what to do if that is not possible.
install_packages() {
  missing=""
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing="$missing $package"
  done
  [ -z "$missing" ] && return 0
  if [ "$(id -u)" = 0 ]; then
    as_root=""
  elif command -v sudo >/dev/null 2>&1; then
    as_root="sudo"
  else
    echo "These Debian packages are missing, and neither root nor sudo is at hand to install them:$missing" >&2
    exit 1
  fi
  # shellcheck disable=SC2086
  { $as_root apt-get update -q && $as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends $missing; } >&2 || {
    echo "Installing these Debian packages failed:$missing" >&2
    exit 1
  }
}

# build PRESET TESTS TARGET...: configures and builds, with tests and with warnings as errors (ON) or without both (OFF). What
# is built for playing must build with any compiler; a folder built for tests stays strict, or everything would be rebuilt.
build() {
  preset=$1
  tests=$2
  shift 2
  strict=""
  [ "$tests" = OFF ] || strict="-DCOILRUN_WERROR=ON"
  # shellcheck disable=SC2086
  cmake --preset "$preset" -DBUILD_TESTING="$tests" $strict >/dev/null
  # shellcheck disable=SC2086
  cmake --build --preset "$preset" --target "$@"
}

check_format() {
  git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
}
