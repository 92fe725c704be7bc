# shellcheck shell=sh disable=SC2016
# $1 directory, $2 command line, $3 the person's shell, $4 the person's home, which some terminals change,
# $5 an empty directory whose removal says that the window is open; $4 and $5 may be empty. Runs $2 in $1
# inside an interactive shell that stays afterwards.
[ -z "$5" ] || rmdir -- "$5" 2>/dev/null
if [ -n "$4" ]; then
  HOME=$4
  export HOME
fi
# Of the terminal's window, not of what its shell starts.
unset DESKTOP_STARTUP_ID XDG_ACTIVATION_TOKEN
CDPATH='' cd -- "$1" && ZORVE_ORDEN=$2 || ZORVE_ORDEN=
ZORVE_SHELL=$3
export ZORVE_ORDEN
SHELL=$ZORVE_SHELL
export SHELL
unset ZORVE_Z
case ${ZORVE_SHELL##*/} in
zsh | sh | dash | ash | ksh | ksh93 | mksh) ZORVE_Z=$(mktemp -d "${TMPDIR:-/tmp}/zorve-XXXXXX") ;;
esac
case ${ZORVE_SHELL##*/}${ZORVE_Z+:$ZORVE_Z} in
bash)
  exec "$ZORVE_SHELL" --rcfile /dev/fd/3 -i 3<<'FIN'
exec 3<&-
[ -r ~/.bashrc ] && . ~/.bashrc
if [ -n "$ZORVE_ORDEN" ]; then
  ZORVE_PC=$(declare -p PROMPT_COMMAND 2>/dev/null)
  unset PROMPT_COMMAND
  PROMPT_COMMAND='unset PROMPT_COMMAND; eval "$ZORVE_PC"; unset ZORVE_PC; history -s -- "$ZORVE_ORDEN"
eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
eval "$(ZORVE_PC=$?; printf "(exit %s)\n" "$ZORVE_PC"; printf "%s\n" "${PROMPT_COMMAND[@]}")"'
else
  unset ZORVE_ORDEN
fi
FIN
  ;;
zsh:?*)
  ZORVE_ZD=${ZDOTDIR-}
  export ZORVE_Z ZORVE_ZD
  cat >"$ZORVE_Z/.zshenv" <<'FIN'
if [[ -n $ZORVE_ZD ]]; then ZDOTDIR=$ZORVE_ZD; else unset ZDOTDIR; fi
[[ -r ${ZDOTDIR:-$HOME}/.zshenv ]] && . "${ZDOTDIR:-$HOME}/.zshenv"
ZORVE_ZD=${ZDOTDIR-}
ZDOTDIR=$ZORVE_Z
FIN
  cat >"$ZORVE_Z/.zshrc" <<'FIN'
rm -rf -- "$ZORVE_Z"
if [[ -n $ZORVE_ZD ]]; then ZDOTDIR=$ZORVE_ZD; else unset ZDOTDIR; fi
[[ ${HISTFILE-} == "$ZORVE_Z"/* ]] && HISTFILE=${ZDOTDIR:-$HOME}/${HISTFILE##*/}
unset ZORVE_Z ZORVE_ZD
[[ -r ${ZDOTDIR:-$HOME}/.zshrc ]] && . "${ZDOTDIR:-$HOME}/.zshrc"
if [[ -n $ZORVE_ORDEN ]]; then
  zorve_orden() {
    precmd_functions=(${precmd_functions:#zorve_orden})
    unfunction zorve_orden
    print -sr -- "$ZORVE_ORDEN"
    eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
  }
  precmd_functions+=(zorve_orden)
else
  unset ZORVE_ORDEN
fi
FIN
  ZDOTDIR=$ZORVE_Z exec "$ZORVE_SHELL" -i
  ;;
sh:?* | dash:?* | ash:?* | ksh:?* | ksh93:?* | mksh:?*)
  ZORVE_ENV=${ENV-}
  export ZORVE_Z ZORVE_ENV
  cat >"$ZORVE_Z/env" <<'FIN'
rm -rf -- "$ZORVE_Z"
unset ENV ZORVE_Z
if [ -n "$ZORVE_ENV" ]; then
  ENV=$ZORVE_ENV
  export ENV
  eval "ZORVE_ENV=\"$ZORVE_ENV\""
  [ -r "$ZORVE_ENV" ] && . "$ZORVE_ENV"
fi
unset ZORVE_ENV
eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
FIN
  ENV=$ZORVE_Z/env exec "$ZORVE_SHELL" -i
  ;;
fish)
  exec "$ZORVE_SHELL" -i -C 'set -l zorve_orden $ZORVE_ORDEN; set -e ZORVE_ORDEN; /bin/sh -c $zorve_orden'
  ;;
*)
  set -- "$ZORVE_ORDEN"
  unset ZORVE_ORDEN
  trap : INT
  [ -z "$1" ] || "$ZORVE_SHELL" -c "$1"
  trap - INT
  exec "$ZORVE_SHELL" -i
  ;;
esac
