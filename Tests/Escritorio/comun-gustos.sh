# shellcheck shell=bash
# What the tests of desktop settings and screen readers share beside comun.sh.
: "${aqui:?comun.sh first}" "${casa:?comun.sh first}"

# portal: the desktop's settings as programs ask for them, kept by gsettings. No file-sharing service beside it.
portal() {
  mkdir -p "$XDG_DATA_HOME/dbus-1/services"
  printf '[D-BUS Service]\nName=org.freedesktop.portal.Documents\nExec=/bin/false\n' \
    >"$XDG_DATA_HOME/dbus-1/services/org.freedesktop.portal.Documents.service"
  dbus-send --session --dest=org.freedesktop.DBus / org.freedesktop.DBus.ReloadConfig
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
arbol() { "$aqui/arbol.py" zorve >"$casa/arbol"; }
# dice LINE: the tree holds this line, at any depth.
dice() { arbol && sed 's/^ *//' "$casa/arbol" | grep -xF -- "$1"; }
# dice_algo REGEX: some line of it matches.
dice_algo() { arbol && grep -E -- "$1" "$casa/arbol"; }
pulsa_opcion() { "$aqui/arbol.py" zorve pulsa "$1"; }
