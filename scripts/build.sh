# shellcheck shell=bash
# The build. To be sourced by scripts that work in the source folder.

# Prints the line of the step that begins.
step() {
  echo "== $*"
}

# Everything that is built goes below the folder build/.
need_writable_folder() {
  if ! mkdir -p build 2>/dev/null || [[ ! -w build ]]; then
    echo "The folder $PWD cannot be written to, and everything is built in" \
      "build/ below it. Copy the source to a folder where you may write, and" \
      "start again there." >&2
    exit 1
  fi
}

# Usage: configure DIRECTORY CMAKE_OPTION...
configure() {
  need_writable_folder
  if [[ $PWD == *\"* ]]; then
    echo "CMake cannot build in a folder with a double quote in its path: $PWD" >&2
    exit 1
  fi
  cmake -S . -B "$1" -G Ninja "${@:2}" >/dev/null
}

# Options of CMake: the sources of a folder are compiled as one, which takes half
# the time from nothing, and more after a change. No two may then give the same
# name to what is theirs alone.
# shellcheck disable=SC2034  # Used by the scripts that source this file.
as_one=(-DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0)

# Usage: compile DIRECTORY [OPTION...]
compile() {
  cmake --build "$1" --parallel "$(nproc)" "${@:2}"
}
