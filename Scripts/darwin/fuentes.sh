#!/usr/bin/env bash
# fuentes.sh OUT: the libraries' source files that a macOS build compiles, out of Debian's source packages, with
# the checksums that Scripts/cmake/FuentesDeMac.cmake asks for; the headers of the header-only libraries; and the
# test framework's sources. The package lists it needs live in OUT; the system's stay as they are.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh

mkdir -p "$1"
salida=$(cd "$1" && pwd)
mkdir -p "$salida/apt/lists/partial" "$salida/apt/cache/archives/partial"
apt-get indextargets --format "deb-src \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" 'Created-By: Packages' |
  grep -w debian | sort -u >"$salida/apt/fuentes.list" || falla "apt knows no Debian archive to take sources from"
opciones=(-q -o "Dir::Etc::SourceList=$salida/apt/fuentes.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$salida/apt/lists" -o "Dir::Cache=$salida/apt/cache" -o APT::Sandbox::User=)
callado "$salida/apt/update.log" apt-get "${opciones[@]}" update
(cd "$salida" && callado "$salida/apt/source.log" apt-get "${opciones[@]}" source --download-only simdjson utf8proc)

tar -xzf "$salida"/simdjson_*.orig.tar.gz -C "$salida" --strip-components=2 --wildcards '*/singleheader/simdjson.*'
tar -xzf "$salida"/utf8proc_*.orig.tar.gz -C "$salida" --strip-components=1 --wildcards \
  '*/utf8proc.[ch]' '*/utf8proc_data.c'
mkdir -p "$salida/include"
cp -R /usr/include/rapidjson /usr/include/CLI "$salida/include/"
rm -rf "$salida/apt/lists"
