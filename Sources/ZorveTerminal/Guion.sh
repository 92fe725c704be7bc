# shellcheck shell=sh disable=SC1091,SC2016,SC2089,SC2090
# $1 directory, $2 the person's shell, $3 the person's home, which some terminals change, or nothing, $4 a folder of
# this user's alone with this text, the command line in the file "linea" and an empty folder whose removal says that the
# window is open; $5 is not empty where nobody else could make that folder again. Runs the line in $1 inside an
# interactive shell that stays afterwards. Where that shell's settings put another one in its place by `exec`, the other
# one runs the line: what it reads at its start leads here, and its process number is the same. The environment never
# holds the line, and names the folder only where $5 says so: it may live on in whatever the settings start.
unset ZORVE_CARPETA ZORVE_PID ZORVE_ZDOTDIR ZORVE_ENV ZORVE_XDG_DATA_DIRS ZORVE_GANCHO_DE_BASH ZORVE_HAY_RELEVO
command -p rm -f -- "$4/orden"
command -p rmdir -- "$4/senal" 2>/dev/null
if [ -n "$3" ]; then
  HOME=$3
  export HOME
fi
# Of the terminal's window, not of what its shell starts.
unset DESKTOP_STARTUP_ID XDG_ACTIVATION_TOKEN
SHELL=$2
export SHELL

# From here on this may be anybody's directory: programs come from the system's own places alone.
if ! CDPATH='' cd -- "$1"; then
  command -p rm -rf -- "$4"
  exec "$SHELL" -i
fi

[ -z "$5" ] || ! command -p grep -Eiqs 'exec[[:blank:]].*sh' ~/.bashrc ~/.bash_aliases ~/.bashrc.d/* \
  "${ZDOTDIR:-$HOME}/.zshenv" "${ZDOTDIR:-$HOME}/.zshrc" "${ENV:-/dev/null}" || ZORVE_HAY_RELEVO=:

# Takes everything of ours out of the environment.
command -p cat >"$4/soltar" <<'FIN'
if [ -n "${ZORVE_PID-}" ]; then
  [ "${ZDOTDIR-}" != "$ZORVE_CARPETA" ] || ZDOTDIR=$ZORVE_ZDOTDIR
  [ -n "${ZDOTDIR-}" ] || unset ZDOTDIR
  [ "${ENV-}" != "$ZORVE_CARPETA/env" ] || ENV=$ZORVE_ENV
  [ -n "${ENV-}" ] || unset ENV
  case ${XDG_DATA_DIRS-} in
  "$ZORVE_CARPETA":*) XDG_DATA_DIRS=${XDG_DATA_DIRS#*:} ;;
  *:"$ZORVE_CARPETA":*) XDG_DATA_DIRS=${XDG_DATA_DIRS%%:"$ZORVE_CARPETA":*}:${XDG_DATA_DIRS#*:"$ZORVE_CARPETA":} ;;
  esac
  [ -n "$ZORVE_XDG_DATA_DIRS" ] || [ "${XDG_DATA_DIRS-}" != /usr/local/share:/usr/share ] || unset XDG_DATA_DIRS
  [ "${PROMPT_COMMAND-}" != "${ZORVE_GANCHO_DE_BASH-}" ] || unset PROMPT_COMMAND
fi
unset ZORVE_CARPETA ZORVE_PID ZORVE_ZDOTDIR ZORVE_ENV ZORVE_XDG_DATA_DIRS ZORVE_GANCHO_DE_BASH
FIN

# Once the settings were read: the line is taken, and nothing of ours stays in the environment or on the disk.
command -p cat >"$4/fin" <<'FIN'
ZORVE_ORDEN=$(command -p cat "$ZORVE_CARPETA/linea")
ZORVE_RESTO=$ZORVE_CARPETA
. "$ZORVE_CARPETA/soltar"
command -p rm -rf -- "$ZORVE_RESTO"
unset ZORVE_RESTO
FIN

# The line, in a shell of its own.
{
  printf 'ZORVE_CARPETA=%s\n' "$4"
  command -p cat <<'FIN'
. "$ZORVE_CARPETA/fin"
set -- "$ZORVE_ORDEN"
unset ZORVE_ORDEN
exec /bin/sh -c "$1"
FIN
} >"$4/correr"

{
  printf 'ZORVE_CARPETA=%s\n' "$4"
  command -p cat <<'FIN'
[ -r ~/.bashrc ] && . ~/.bashrc
. "$ZORVE_CARPETA/fin"
ZORVE_PROMPT_COMMAND=$(declare -p PROMPT_COMMAND 2>/dev/null)
unset PROMPT_COMMAND
PROMPT_COMMAND='unset PROMPT_COMMAND; eval "$ZORVE_PROMPT_COMMAND"; unset ZORVE_PROMPT_COMMAND; history -s -- "$ZORVE_ORDEN"
eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
eval "$(ZORVE_ESTADO=$?; printf "(exit %s)\n" "$ZORVE_ESTADO"; printf "%s\n" "${PROMPT_COMMAND[@]}")"'
FIN
} >"$4/bashrc"

if [ -n "$5" ]; then
  command -p cat >"$4/.zshenv" <<'FIN'
if [[ -n $ZORVE_ZDOTDIR ]]; then ZDOTDIR=$ZORVE_ZDOTDIR; else unset ZDOTDIR; fi
[[ -r ${ZDOTDIR:-$HOME}/.zshenv ]] && . "${ZDOTDIR:-$HOME}/.zshenv"
if [[ $$ != $ZORVE_PID ]]; then
  . "$ZORVE_CARPETA/soltar"
elif [[ -o interactive ]]; then
  ZORVE_ZDOTDIR=${ZDOTDIR-}
  ZDOTDIR=$ZORVE_CARPETA
fi
FIN
  command -p cat >"$4/.zprofile" <<'FIN'
if [[ -n $ZORVE_ZDOTDIR ]]; then ZDOTDIR=$ZORVE_ZDOTDIR; else unset ZDOTDIR; fi
[[ -r ${ZDOTDIR:-$HOME}/.zprofile ]] && . "${ZDOTDIR:-$HOME}/.zprofile"
ZORVE_ZDOTDIR=${ZDOTDIR-}
ZDOTDIR=$ZORVE_CARPETA
FIN
  command -p cat >"$4/.zshrc" <<'FIN'
if [[ -n $ZORVE_ZDOTDIR ]]; then ZDOTDIR=$ZORVE_ZDOTDIR; else unset ZDOTDIR; fi
[[ ${XDG_DATA_DIRS-} == *$ZORVE_CARPETA* ]] || typeset +x ZORVE_CARPETA ZORVE_PID ZORVE_ZDOTDIR ZORVE_ENV ZORVE_XDG_DATA_DIRS
[[ ${HISTFILE-} == "$ZORVE_CARPETA"/* ]] && HISTFILE=${ZDOTDIR:-$HOME}/${HISTFILE##*/}
[[ -r ${ZDOTDIR:-$HOME}/.zshrc ]] && . "${ZDOTDIR:-$HOME}/.zshrc"
. "$ZORVE_CARPETA/fin"
zorve_orden() {
  precmd_functions=(${precmd_functions:#zorve_orden})
  unfunction zorve_orden
  print -sr -- "$ZORVE_ORDEN"
  eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
}
precmd_functions+=(zorve_orden)
FIN

  command -p cat >"$4/env" <<'FIN'
ENV=$ZORVE_ENV
[ -z "$ENV" ] || eval "ZORVE_ENV=\"$ENV\""
[ ! -r "$ZORVE_ENV" ] || . "$ZORVE_ENV"
if [ "$$" = "$ZORVE_PID" ]; then
  . "$ZORVE_CARPETA/fin"
  eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
else
  . "$ZORVE_CARPETA/soltar"
fi
FIN

  # Whatever bash reads at its start it reads by fixed names: another bash is met at its first prompt.
  command -p cat >"$4/bash" <<'FIN'
if [ "$$" = "$ZORVE_PID" ]; then
  . "$ZORVE_CARPETA/fin"
  history -s -- "$ZORVE_ORDEN"
  eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
else
  . "$ZORVE_CARPETA/soltar"
fi
FIN

  command -p mkdir -p "$4/fish/vendor_conf.d"
  command -p cat >"$4/fish/vendor_conf.d/zorve.fish" <<'FIN'
if test "$fish_pid" != "$ZORVE_PID"
    set -gx XDG_DATA_DIRS (string replace -- "$ZORVE_CARPETA:" "" "$XDG_DATA_DIRS")
    test -n "$ZORVE_XDG_DATA_DIRS"; or set -e XDG_DATA_DIRS
    test "$ZDOTDIR" != "$ZORVE_CARPETA"; or set -gx ZDOTDIR $ZORVE_ZDOTDIR
    test -n "$ZDOTDIR"; or set -e ZDOTDIR
    test "$ENV" != "$ZORVE_CARPETA/env"; or set -gx ENV $ZORVE_ENV
    test -n "$ENV"; or set -e ENV
    test "$PROMPT_COMMAND" != "$ZORVE_GANCHO_DE_BASH"; or set -e PROMPT_COMMAND
    set -e ZORVE_CARPETA ZORVE_PID ZORVE_ZDOTDIR ZORVE_ENV ZORVE_XDG_DATA_DIRS ZORVE_GANCHO_DE_BASH
else if status is-interactive
    set -l zorve_entrada
    status is-login; and set zorve_entrada -l
    exec /bin/sh "$ZORVE_CARPETA/pez" (status fish-path) $zorve_entrada
end
FIN
  command -p cat >"$4/pez" <<'FIN'
set -- "$@" -i -C "/bin/sh $ZORVE_CARPETA/correr"
. "$ZORVE_CARPETA/soltar"
exec "$@"
FIN
fi

# What leads other shells here, and back.
entregar() {
  ZORVE_CARPETA=$1 ZORVE_PID=$$ ZORVE_ZDOTDIR=${ZDOTDIR-} ZORVE_ENV=${ENV-} ZORVE_XDG_DATA_DIRS=${XDG_DATA_DIRS-}
  export ZORVE_CARPETA ZORVE_PID ZORVE_ZDOTDIR ZORVE_ENV ZORVE_XDG_DATA_DIRS
  [ -n "${ZORVE_HAY_RELEVO-}" ] || return 0
  ZDOTDIR=$1
  ENV=$1/env
  XDG_DATA_DIRS=$1:${XDG_DATA_DIRS:-/usr/local/share:/usr/share}
  export ZDOTDIR ENV XDG_DATA_DIRS
  if [ "${SHELL##*/}" != bash ] && [ -z "${PROMPT_COMMAND-}" ]; then
    ZORVE_GANCHO_DE_BASH='if [ -r "${ZORVE_CARPETA-}/bash" ]; then . "$ZORVE_CARPETA/bash"; else unset PROMPT_COMMAND ${!ZORVE_@}; fi'
    PROMPT_COMMAND=$ZORVE_GANCHO_DE_BASH
    export ZORVE_GANCHO_DE_BASH PROMPT_COMMAND
  fi
}

case ${SHELL##*/}${5:+:} in
bash | bash:)
  [ -z "${ZORVE_HAY_RELEVO-}" ] || entregar "$4"
  exec "$SHELL" --rcfile "$4/bashrc" -i
  ;;
zsh:)
  entregar "$4"
  ZDOTDIR=$4 exec "$SHELL" -i
  ;;
sh: | dash: | ash: | ksh: | ksh93: | mksh:)
  entregar "$4"
  ENV=$4/env exec "$SHELL" -i
  ;;
fish | fish:)
  exec "$SHELL" -i -C "/bin/sh $4/correr"
  ;;
*)
  ZORVE_CARPETA=$4
  . "$4/fin"
  set -- "$ZORVE_ORDEN"
  unset ZORVE_ORDEN ZORVE_CARPETA
  trap : INT
  "$SHELL" -c "$1"
  trap - INT
  exec "$SHELL" -i
  ;;
esac
