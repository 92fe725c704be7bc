#!/usr/bin/env bash
# Tries ./run and ./test as newcomers would: from a fresh clone in a fresh Debian root with nothing installed,
# first as root without sudo, then as a user with sudo. Needs root, debootstrap and the packages' mirror.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. Scripts/comun.sh

[ "$(id -u)" -eq 0 ] || falla "a fresh root needs root: run this as root, or leave the phase 'raiz' out"
command -v debootstrap >/dev/null || falla "debootstrap is missing: apt-get install debootstrap"

base=$PWD/build/raiz
registro=$base/registro.log
raiz=$base/debian
mkdir -p "$base"

cierra() {
  local punto
  for punto in "$raiz/dev" "$raiz/proc"; do
    mountpoint -q "$punto" && umount -R -l "$punto"
  done
  rm -rf --one-file-system "$raiz"
}
trap cierra EXIT
cierra

# shellcheck disable=SC1091
nombre=$(. /etc/os-release && echo "$VERSION_CODENAME")
# shellcheck disable=SC2016
espejo=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)
paso "a Debian $nombre root in build/raiz"
callado "$registro" debootstrap --variant=minbase "$nombre" "$raiz" "$espejo"
cp -a /etc/apt/sources.list.d /etc/apt/apt.conf.d "$raiz/etc/apt/"
[ ! -e /etc/apt/sources.list ] || cp -a /etc/apt/sources.list "$raiz/etc/apt/"
cp -aL /etc/resolv.conf /etc/hosts "$raiz/etc/"
# With the pseudoterminals below it.
mount --rbind /dev "$raiz/dev"
mount --make-rslave "$raiz/dev"
mount -t proc proc "$raiz/proc"

# dentro USER HOME COMMAND: in the root, with a clean environment.
dentro() {
  chroot "$raiz" setpriv --reuid "$1" --regid "$1" --init-groups env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin \
    HOME="$2" USER="$1" LANG=C.UTF-8 bash -c "$3"
}

# muestra HOME: a home with one session in it.
muestra() {
  local id=11111111-2222-4333-8444-555555555555
  mkdir -p "$raiz$1/.claude/projects/-srv-demo"
  printf '%s\n' '{"type":"ai-title","aiTitle":"A title from the fresh root","sessionId":"'$id'"}' \
    '{"type":"user","cwd":"/srv/demo"}' >"$raiz$1/.claude/projects/-srv-demo/$id.jsonl"
}

# prueba USER HOME: clones, runs twice and looks at the list.
prueba() {
  git clone -q --no-hardlinks . "$raiz$2/zorve"
  muestra "$2"
  chroot "$raiz" chown -R "$1:$1" "$2"
  paso "./run as $1"
  dentro "$1" "$2" 'cd ~/zorve && ./run' >"$base/lista" || falla "./run failed as $1"
  grep -q 'A title from the fresh root' "$base/lista" || falla "./run as $1 did not list the session"
  local desde=$EPOCHREALTIME
  dentro "$1" "$2" 'cd ~/zorve && ./run' >"$base/lista"
  nota "again, with nothing to do: $(awk -v a="$desde" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.2f", b - a }') s"
}

prueba root /root
paso "./test as root"
dentro root /root 'cd ~/zorve && ./test estilo pruebas' || falla "./test failed as root"

chroot "$raiz" apt-get -q install -y --no-install-recommends sudo >>"$registro" 2>&1
chroot "$raiz" useradd -m -s /bin/bash prueba
echo 'prueba ALL=(ALL) NOPASSWD: ALL' >"$raiz/etc/sudoers.d/prueba"
chroot "$raiz" apt-get -q remove -y libsimdjson-dev >>"$registro" 2>&1
prueba prueba /home/prueba
dentro prueba /home/prueba 'cd ~/zorve && ./test estilo pruebas' || falla "./test failed as a user"
