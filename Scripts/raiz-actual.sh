#!/usr/bin/env bash
# Builds and tests in a root of Debian's current release: raiz-actual.sh [--all] [RELEASE]
# One build, the portable tests, the panel's pictures and two terminals; with --all every test that runs there.
# The root is kept in ZORVE_RAICES (/var/tmp/zorve-raices), so that the next run builds only what changed; it may be
# deleted. ctest's logs are left in build/actual. RELEASE is a codename, trixie unless told. Needs root, debootstrap
# and the packages' mirror.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. Scripts/comun.sh

todo=no
[ "${1-}" != --all ] || { todo=si; shift; }
nombre=${1:-trixie}
raiz=${ZORVE_RAICES:-/var/tmp/zorve-raices}/$nombre
dentro=/srv/zorve
registros=$PWD/build/actual
[ "$(id -u)" -eq 0 ] || falla "a root of another release needs root: run this as root, or leave the phase 'actual' out"
command -v debootstrap >/dev/null || falla "debootstrap is missing: apt-get install debootstrap"
rm -rf "$registros"
mkdir -p "$registros" "$raiz"

desmonta() {
  local punto
  for punto in "$raiz/dev" "$raiz/proc" "$raiz"; do
    if mountpoint -q "$punto"; then umount -R -l "$punto"; fi
  done
}
trap desmonta EXIT

# chroot with a clean environment.
en_raiz() {
  chroot "$raiz" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root USER=root LANG=C.UTF-8 \
    bash -c "cd $dentro 2>/dev/null || cd /; $1"
}

# A root that was not finished is made anew.
hazla() {
  [ ! -e "$raiz/.hecha" ] || return 0
  paso "a Debian $nombre root in $raiz"
  rm -rf --one-file-system "$raiz"
  mkdir -p "$raiz"
  # shellcheck disable=SC2016
  espejo=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)
  callado "$registros/debootstrap.log" debootstrap --variant=minbase "$nombre" "$raiz" "$espejo"
  mkdir -p "$raiz$dentro"
  touch "$raiz/.hecha"
}

# The files as they are here, with their times; what a build left there stays.
copia_fuentes() {
  find "$raiz$dentro" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
  git ls-files -z --cached --others --exclude-standard | tar -c --null -T - --ignore-failed-read 2>/dev/null |
    tar -x -C "$raiz$dentro"
}

# corre LOG ARGUMENTS: ctest in the root; whoever reads LOG counts.
corre() {
  local registro=$registros/$1.ctest.log
  shift
  en_raiz "ctest --test-dir build/dev --output-on-failure --no-tests=error -j $(trabajos) $*" >"$registro" 2>&1 ||
    grep -vE '^ *[0-9]+/[0-9]+ Test +#[0-9]+:.*Passed|^ *Start ' "$registro" >&2 || :
}

hazla
# The root as a mount of its own, as a machine's is: of what no mount is known for, no directory counts as gone.
mount --bind "$raiz" "$raiz"
mount --rbind /dev "$raiz/dev"
mount --make-rslave "$raiz/dev"
mount -t proc proc "$raiz/proc"
cp -aL /etc/resolv.conf /etc/hosts "$raiz/etc/"
copia_fuentes
grupos='compilar probar escritorio probar-escritorio terminales'
[ "$todo" = no ] || grupos+=' terminales-todas'
callado "$registros/paquetes.log" en_raiz ". Scripts/comun.sh; instala $grupos"
nota "$(en_raiz 'g++ -dumpfullversion; pkg-config --modversion Qt6Core simdjson' | tr '\n' ' ')(g++, Qt, simdjson)"
if [ "$todo" = si ]; then
  en_raiz './test --all pruebas terminales escritorio asan tsan fuzz' || falla "./test --all failed in $raiz"
  exit
fi
callado "$registros/build.log" en_raiz '. Scripts/comun.sh; con_frente dev; compila dev'
corre portables "-L '^saneable\$'"
corre retratos "-R '^Escritorio\\.(Retratos|Translucido.*)\$' --repeat until-pass:2"
corre terminales "-L '^terminales\$' -R '/(xterm|kitty)( |\$)' --repeat until-pass:2"
