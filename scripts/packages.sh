# shellcheck shell=bash
# The Debian packages that the scripts need, one list for each purpose, and
# their installation. README.md says why each is needed. To be sourced.

# shellcheck disable=SC2034  # Used by the scripts that source this file.
build_packages=(
  cmake
  g++
  libgtk2.0-dev
  libunistring-dev
  ninja-build
  pkg-config
)

# A virtual display, and what makes windows in it look as on a desktop.
# shellcheck disable=SC2034
headless_packages=(
  adwaita-icon-theme
  fonts-dejavu-core
  fonts-noto-cjk
  gnome-themes-extra
  gtk2-engines-pixbuf
  xauth
  xvfb
)

package_packages=(
  build-essential
  debhelper
  dpkg-dev
)

# shellcheck disable=SC2034
test_packages=(
  "${package_packages[@]}"
  appstream
  at-spi2-core
  bash-completion
  clang-format
  clang-tidy
  cppcheck
  dbus
  desktop-file-utils
  jq
  libatk-adaptor
  libgail-common
  libgmock-dev
  libgtest-dev
  lintian
  locales
  man-db
  openbox
  python3
  shellcheck
  xdotool
)

# To measure.
# shellcheck disable=SC2034
bench_packages=(
  bsdextrautils
  gettext
  jq
  libbenchmark-dev
  libsqlite3-dev
  strace
)

# To search for faults by fuzzing and under valgrind.
# shellcheck disable=SC2034
search_packages=(
  clang-14
  libclang-rt-14-dev
  llvm-14
  python3
  valgrind
)

# Prints those of the named packages that are not installed.
missing_packages() {
  local installed
  # dpkg-query fails when it knows nothing of one of them.
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" \
    2>/dev/null | sed -n 's/^installed //p') || true
  comm -23 <(printf '%s\n' "$@" | sort) <(sort <<<"$installed")
}

# Installs those of the named packages that are missing, without asking
# anything; touches nothing when none is. Where the user may not install,
# prints the command that does it and ends the script with status 1.
install_packages() {
  local list missing by_hand as_root=()
  list=$(missing_packages "$@")
  [[ $list ]] || return 0
  mapfile -t missing <<<"$list"

  ((EUID == 0)) || as_root=(sudo -n)
  if ! command -v apt-get >/dev/null ||
    ! "${as_root[@]}" true 2>/dev/null </dev/null; then
    by_hand="sudo sh -c"
    command -v sudo >/dev/null || by_hand="su -c"
    echo "Some Debian packages are missing. Install them with this command," \
      "then start again:" >&2
    echo "$by_hand 'apt-get update; apt-get install" \
      "--no-install-recommends ${missing[*]}'" >&2
    exit 1
  fi

  echo "Installing ${missing[*]}" >&2
  local apt_get=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive
    apt-get -q -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0
    -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold)
  # Some other source of packages may be out of reach; the installation tells.
  "${apt_get[@]}" update </dev/null >&2 || true
  if ! "${apt_get[@]}" install -y --no-install-recommends "${missing[@]}" \
    </dev/null >&2; then
    echo "${0##*/}: The packages could not be installed." >&2
    exit 1
  fi
}
