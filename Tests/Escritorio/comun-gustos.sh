# shellcheck shell=bash
# shellcheck disable=SC2154 # comun.sh sets them
# What the tests of desktop settings and screen readers share beside comun.sh.

# portal: the desktop's settings as programs ask for them, kept by gsettings.
portal() {
  export XDG_CURRENT_DESKTOP=GNOME
  arranca portal-gtk /usr/libexec/xdg-desktop-portal-gtk
  espera tiene_nombre org.freedesktop.impl.portal.desktop.gtk
  arranca portal /usr/libexec/xdg-desktop-portal
  espera tiene_nombre org.freedesktop.portal.Desktop
  unset XDG_CURRENT_DESKTOP
}

# Screen readers are told to be about, as a desktop does it.
lector() {
  gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
    --method org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled '<true>' >/dev/null
}
arbol() { "$aqui/arbol.py" zorve >"$home/arbol"; }
# dice LINE: the tree holds this line, at any depth.
dice() { arbol && sed 's/^ *//' "$home/arbol" | grep -xF -- "$1"; }
# dice_algo REGEX: some line of it matches.
dice_algo() { arbol && grep -E -- "$1" "$home/arbol"; }
pulsa_opcion() { "$aqui/arbol.py" zorve pulsa "$1"; }

# con_pocas_terminales: the program, where only xterm and kitty are installed and $TERMINAL names xterm.
con_pocas_terminales() {
  mkdir -p "$home/pocas"
  ln -sf "$(command -v xterm)" "$(command -v kitty)" "$home/pocas"
  arranca zorve env PATH="$home/pocas" XDG_DATA_DIRS="$home/nada" TERMINAL=xterm "$bin/zorve"
  # shellcheck disable=SC2034 # the tests read it
  zorve_pid=$ultimo
  espera tiene_nombre com.sarnol.zorve
}
