# shellcheck shell=bash
# To be sourced by scripts that show windows where there is no display.

# Runs a command in a virtual display of its own. By default a server
# restarts when its last window has gone, and refuses clients meanwhile.
in_virtual_display() {
  xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$@"
}

# The same, with the theme that most desktops have, unless another is chosen.
on_virtual_desktop() {
  local theme=/usr/share/themes/Adwaita/gtk-2.0/gtkrc
  GTK2_RC_FILES=${GTK2_RC_FILES-$theme} in_virtual_display "$@"
}
