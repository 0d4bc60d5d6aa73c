# shellcheck shell=bash
# What the checks of installed files share. To be sourced, with
# SOURCE_DIRECTORY and BUILD_DIRECTORY set.
set -euo pipefail
shopt -s inherit_errexit nullglob

# shellcheck disable=SC2034  # Used by the scripts that source this file.
programs=(corvane-player-properties corvane-player-settings)
# shellcheck disable=SC2034
data=$BUILD_DIRECTORY/data
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# The system's own locale, wherever the tests keep theirs.
unset LOCPATH
export LC_ALL=C.UTF-8

fail() {
  echo "$*" >&2
  exit 1
}

# Runs a command that has nothing to say and succeeds.
expect_silence() {
  local output
  output=$("$@" 2>&1) || fail "$* failed: $output"
  [[ -z $output ]] || fail "$* said: $output"
}

# Usage: expect_equal WHAT ACTUAL EXPECTED
expect_equal() {
  [[ $2 == "$3" ]] || fail "$1:" "$(diff <(echo "$2") <(echo "$3"))"
}

# Puts everything into $scratch/root, below the prefix /usr.
install_program() {
  DESTDIR=$scratch/root cmake --install "$BUILD_DIRECTORY" --prefix /usr \
    >/dev/null
}
