# shellcheck shell=bash
# Asks the completions of the programs what they offer. To be sourced.

# shellcheck disable=SC1091
BASH_COMPLETION_COMPAT_DIR=/nonexistent \
  . /usr/share/bash-completion/bash_completion
for program in corvane-player-properties corvane-player-settings; do
  # shellcheck disable=SC1090
  . "$SOURCE_DIRECTORY/data/completions/$program"
done

# Only a shell that completes has it.
compopt() { :; }

# Usage: complete_line "PROGRAM WORD..."
# Leaves in COMPREPLY what the last word can become.
# shellcheck disable=SC2034
complete_line() {
  COMP_LINE=$1
  COMP_POINT=${#1}
  # An equals sign is a word of its own to the shell.
  read -ra COMP_WORDS <<<"${1//=/ = }"
  [[ $1 != *' ' ]] || COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  COMPREPLY=()
  "_${COMP_WORDS[0]//-/_}" "${COMP_WORDS[0]}" || true
}
