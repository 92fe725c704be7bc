# shellcheck shell=sh disable=SC2016,SC2089,SC2090
# $1 directory, $2 command line, $3 the person's shell, $4 the person's home, which some terminals change,
# $5 an empty directory whose removal says that the window is open; $4 and $5 may be empty. Runs $2 in $1
# inside an interactive shell that stays afterwards. Where that shell's settings put another one in its place
# by `exec`, the other one runs $2: what it reads at its start leads here, and its process number is the same.
[ -z "$5" ] || rmdir -- "$5" 2>/dev/null
if [ -n "$4" ]; then
  HOME=$4
  export HOME
fi
# Of the terminal's window, not of what its shell starts.
unset DESKTOP_STARTUP_ID XDG_ACTIVATION_TOKEN
SHELL=$3
export SHELL
CDPATH='' cd -- "$1" || exec "$SHELL" -i
ZORVE_ORDEN=$2
export ZORVE_ORDEN
unset ZORVE_Z

ZORVE_OTRA=
! grep -Eiqs 'exec[[:blank:]].*sh' ~/.bashrc ~/.bash_aliases ~/.bashrc.d/* "${ZDOTDIR:-$HOME}/.zshenv" \
  "${ZDOTDIR:-$HOME}/.zshrc" "${ENV:-/dev/null}" || ZORVE_OTRA=:

case ${SHELL##*/}$ZORVE_OTRA in
bash: | zsh | zsh: | sh | sh: | dash | dash: | ash | ash: | ksh | ksh: | ksh93 | ksh93: | mksh | mksh:)
  ZORVE_Z=$(mktemp -d "${XDG_RUNTIME_DIR:-${TMPDIR:-/tmp}}/zorve-XXXXXX" 2>/dev/null || mktemp -d /tmp/zorve-XXXXXX)
  ;;
esac
if [ -n "$ZORVE_Z" ]; then
  ZORVE_PID=$$ ZORVE_ZD=${ZDOTDIR-} ZORVE_EN=${ENV-} ZORVE_DD=${XDG_DATA_DIRS-}
  export ZORVE_Z ZORVE_PID ZORVE_ZD ZORVE_EN ZORVE_DD

  # Once the settings were read: nothing of ours stays in the environment or on the disk.
  cat >"$ZORVE_Z/fin" <<'FIN'
[ "${ZDOTDIR-}" != "$ZORVE_Z" ] || ZDOTDIR=$ZORVE_ZD
[ -n "${ZDOTDIR-}" ] || unset ZDOTDIR
[ "${ENV-}" != "$ZORVE_Z/env" ] || ENV=$ZORVE_EN
[ -n "${ENV-}" ] || unset ENV
case ${XDG_DATA_DIRS-} in
"$ZORVE_Z":*) XDG_DATA_DIRS=${XDG_DATA_DIRS#*:} ;;
*:"$ZORVE_Z":*) XDG_DATA_DIRS=${XDG_DATA_DIRS%%:"$ZORVE_Z":*}:${XDG_DATA_DIRS#*:"$ZORVE_Z":} ;;
esac
[ -n "$ZORVE_DD" ] || [ "${XDG_DATA_DIRS-}" != /usr/local/share:/usr/share ] || unset XDG_DATA_DIRS
[ "${PROMPT_COMMAND-}" != "${ZORVE_GB-}" ] || unset PROMPT_COMMAND
rm -rf -- "$ZORVE_Z"
unset ZORVE_Z ZORVE_PID ZORVE_ZD ZORVE_EN ZORVE_DD ZORVE_GB
FIN

  cat >"$ZORVE_Z/.zshenv" <<'FIN'
if [[ -n $ZORVE_ZD ]]; then ZDOTDIR=$ZORVE_ZD; else unset ZDOTDIR; fi
[[ -r ${ZDOTDIR:-$HOME}/.zshenv ]] && . "${ZDOTDIR:-$HOME}/.zshenv"
if [[ -o interactive && $$ == $ZORVE_PID ]]; then
  ZORVE_ZD=${ZDOTDIR-}
  ZDOTDIR=$ZORVE_Z
fi
FIN
  cat >"$ZORVE_Z/.zprofile" <<'FIN'
if [[ -n $ZORVE_ZD ]]; then ZDOTDIR=$ZORVE_ZD; else unset ZDOTDIR; fi
[[ -r ${ZDOTDIR:-$HOME}/.zprofile ]] && . "${ZDOTDIR:-$HOME}/.zprofile"
ZORVE_ZD=${ZDOTDIR-}
ZDOTDIR=$ZORVE_Z
FIN
  cat >"$ZORVE_Z/.zshrc" <<'FIN'
if [[ -n $ZORVE_ZD ]]; then ZDOTDIR=$ZORVE_ZD; else unset ZDOTDIR; fi
[[ ${HISTFILE-} == "$ZORVE_Z"/* ]] && HISTFILE=${ZDOTDIR:-$HOME}/${HISTFILE##*/}
[[ -r ${ZDOTDIR:-$HOME}/.zshrc ]] && . "${ZDOTDIR:-$HOME}/.zshrc"
. "$ZORVE_Z/fin"
zorve_orden() {
  precmd_functions=(${precmd_functions:#zorve_orden})
  unfunction zorve_orden
  print -sr -- "$ZORVE_ORDEN"
  eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
}
precmd_functions+=(zorve_orden)
FIN

  cat >"$ZORVE_Z/env" <<'FIN'
ENV=$ZORVE_EN
[ -z "$ENV" ] || eval "ZORVE_EN=\"$ENV\""
[ ! -r "$ZORVE_EN" ] || . "$ZORVE_EN"
if [ "$$" = "$ZORVE_PID" ]; then
  . "$ZORVE_Z/fin"
  eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
fi
FIN

  # Whatever bash reads at its start it reads by fixed names: another bash is met at its first prompt.
  cat >"$ZORVE_Z/bash" <<'FIN'
. "$ZORVE_Z/fin"
history -s -- "$ZORVE_ORDEN"
eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
FIN

  mkdir -p "$ZORVE_Z/fish/vendor_conf.d"
  cat >"$ZORVE_Z/fish/vendor_conf.d/zorve.fish" <<'FIN'
if status is-interactive; and test "$fish_pid" = "$ZORVE_PID"
    set -l zorve_entrada
    status is-login; and set zorve_entrada -l
    exec /bin/sh "$ZORVE_Z/pez" (status fish-path) $zorve_entrada
end
FIN
  cat >"$ZORVE_Z/pez" <<'FIN'
. "$ZORVE_Z/fin"
exec "$@" -i -C 'set -l zorve_orden $ZORVE_ORDEN; set -e ZORVE_ORDEN; /bin/sh -c $zorve_orden'
FIN

  if [ -n "$ZORVE_OTRA" ]; then
    ZDOTDIR=$ZORVE_Z
    ENV=$ZORVE_Z/env
    XDG_DATA_DIRS=$ZORVE_Z:${XDG_DATA_DIRS:-/usr/local/share:/usr/share}
    export ZDOTDIR ENV XDG_DATA_DIRS
    if [ "${SHELL##*/}" != bash ] && [ -z "${PROMPT_COMMAND-}" ]; then
      ZORVE_GB='[ "$$" != "${ZORVE_PID-}" ] || . "$ZORVE_Z/bash"'
      PROMPT_COMMAND=$ZORVE_GB
      export ZORVE_GB PROMPT_COMMAND
    fi
  fi
fi
unset ZORVE_OTRA

case ${SHELL##*/}${ZORVE_Z:+:$ZORVE_Z} in
bash | bash:*)
  exec "$SHELL" --rcfile /dev/fd/3 -i 3<<'FIN'
exec 3<&-
[ -r ~/.bashrc ] && . ~/.bashrc
[ -z "${ZORVE_Z-}" ] || . "$ZORVE_Z/fin"
ZORVE_PC=$(declare -p PROMPT_COMMAND 2>/dev/null)
unset PROMPT_COMMAND
PROMPT_COMMAND='unset PROMPT_COMMAND; eval "$ZORVE_PC"; unset ZORVE_PC; history -s -- "$ZORVE_ORDEN"
eval "unset ZORVE_ORDEN; $ZORVE_ORDEN"
eval "$(ZORVE_PC=$?; printf "(exit %s)\n" "$ZORVE_PC"; printf "%s\n" "${PROMPT_COMMAND[@]}")"'
FIN
  ;;
zsh:*)
  ZDOTDIR=$ZORVE_Z exec "$SHELL" -i
  ;;
sh:* | dash:* | ash:* | ksh:* | ksh93:* | mksh:*)
  ENV=$ZORVE_Z/env exec "$SHELL" -i
  ;;
fish)
  exec "$SHELL" -i -C 'set -l zorve_orden $ZORVE_ORDEN; set -e ZORVE_ORDEN; /bin/sh -c $zorve_orden'
  ;;
*)
  set -- "$ZORVE_ORDEN"
  unset ZORVE_ORDEN
  trap : INT
  "$SHELL" -c "$1"
  trap - INT
  exec "$SHELL" -i
  ;;
esac
