# shellcheck shell=bash
# How the tests are built and run. To be sourced by scripts that work in the
# source folder.
. scripts/build.sh
. scripts/packages.sh
. scripts/virtual_display.sh

# What the tests need, packages and locales.
prepare_tests() {
  step "Looking for missing packages and locales"
  install_packages \
    "${build_packages[@]}" "${headless_packages[@]}" "${test_packages[@]}"
  need_writable_folder
  scripts/make_locales build/locales
}

# Usage: build_tests DIRECTORY CMAKE_OPTION...
build_tests() {
  configure "$1" -DBUILD_TESTING=ON -DWARNINGS_AS_ERRORS=ON "${as_one[@]}" \
    "${@:2}"
  compile "$1"
}

# Usage: run_tests DIRECTORY [CTEST_OPTION...]
# Gives the tests a home, a display, a message bus and a language that do not
# depend on who runs them.
run_tests() (
  private=$(mktemp -d)
  trap 'rm -rf "$private"' EXIT
  mkdir -m 700 "$private/home" "$private/runtime"
  unset DISPLAY LANGUAGE WAYLAND_DISPLAY XAUTHORITY "${!GTK@}" "${!LC_@}" \
    "${!XDG_@}"
  export HOME=$private/home XDG_RUNTIME_DIR=$private/runtime LANG=C.UTF-8
  export LOCPATH=$PWD/build/locales G_DEBUG=fatal-warnings
  # Not by its own path, in which a blank would end the option.
  cp tests/lsan.supp "$private"
  export LSAN_OPTIONS=suppressions=$private/lsan.supp:print_suppressions=0
  in_virtual_display dbus-run-session -- \
    ctest --test-dir "$1" --output-on-failure --no-tests=error \
    --timeout 300 --parallel $(($(nproc) + 1)) "${@:2}"
)
