# shellcheck shell=bash
# shellcheck disable=SC2034  # The lists are used by the scripts that source it.
# The Debian packages that the scripts need, one list for each purpose, and
# their installation. To be sourced.

# To build; README.md says why each is needed.
build_packages=(
  cmake
  g++
  libgtk2.0-dev
  libjansson-dev
  libunistring-dev
  ninja-build
  pkg-config
)

# A virtual display, and what makes windows in it look as on a desktop.
headless_packages=(
  adwaita-icon-theme   # icons on buttons, as on a desktop
  fonts-dejavu-core    # a font: a bare system has none
  fonts-noto-cjk       # letters of the Chinese, Japanese and Korean texts
  gnome-themes-extra   # the theme Adwaita for GTK+ 2
  gtk2-engines-pixbuf  # draws that theme
  xauth                # used by xvfb-run, which starts the display
  xvfb                 # the virtual display
)

# To build a Debian package.
package_packages=(
  build-essential  # assumed by every Debian package
  debhelper        # builds Debian packages
  dpkg-dev         # runs the package build, finds the libraries to depend on
)

# To test, the package included.
test_packages=(
  "${package_packages[@]}"
  appstream           # checks the metainfo file
  at-spi2-core        # shows the windows to tests as to a screen reader
  bash-completion     # the library that the completions use
  clang-format        # checks the format of the code
  clang-tidy          # finds faults in the code
  cppcheck            # finds other faults in the code
  dbus                # the message bus of the accessibility tree
  desktop-file-utils  # checks the desktop entry
  gir1.2-atspi-2.0    # the accessibility tree for the tests of the window
  jq                  # reads JSON in scripts and tests
  libatk-adaptor      # connects the toolkit to the accessibility tree
  libgail-common      # the toolkit's part of the accessibility tree
  libgmock-dev        # matchers of the unit tests
  libgtest-dev        # the framework of the unit tests
  lintian             # checks the Debian package
  locales             # sources of the locales that scripts/make_locales makes
  man-db              # checks the manual pages
  openbox             # a window manager: without one no window has the focus
  python3             # runs the tests of both programs
  python3-gi          # lets Python read the accessibility tree
  shellcheck          # checks the scripts
  x11-utils           # tells which window a dialog belongs to
  xdotool             # types and clicks in the windows
)

# To measure: bench/run.
bench_packages=(
  bsdextrautils   # aligns the columns of the table
  gettext         # measured beside the panel's table of texts
  jq              # joins the figures of all programs
  libgmock-dev    # used by the tests' home directory
  libgtest-dev    # likewise
  libsqlite3-dev  # measured beside the panel's settings files
  strace          # counts system calls
)

# To search for faults: fuzz/run and scripts/valgrind.
search_packages=(
  clang-14            # compiles the fuzz programs
  libclang-rt-14-dev  # the fuzzing library
  libgmock-dev        # used by the tests' home directory
  libgtest-dev        # likewise
  llvm-14             # shows which lines the inputs reach
  python3             # makes the seeds of the fuzz programs
  valgrind            # watches the memory of the tests
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
  # A source that is out of reach may be another one: the installation decides.
  "${apt_get[@]}" update </dev/null >&2 || true
  if ! "${apt_get[@]}" install -y --no-install-recommends "${missing[@]}" \
    </dev/null >&2; then
    echo "${0##*/}: The packages could not be installed." >&2
    exit 1
  fi
}
