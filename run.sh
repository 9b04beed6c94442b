#!/usr/bin/env bash
# Builds, stages and starts VELDIX.
#   ./run.sh                      on the demonstration record and its template
#   ./run.sh REC.dat [TEMPLATE.cnf]
#   ./run.sh --build              builds and stages only
set -euo pipefail
aqui=$(pwd)
cd "$(dirname "${BASH_SOURCE[0]}")"
raiz=$(pwd)
. runtime/paquetes.sh

[ -n "${DISPLAY:-}" ] || [ -z "${WAYLAND_DISPLAY:-}" ] || PAQUETES_EJECUTAR+=(qt6-wayland)
if command -v apt-get > /dev/null; then
  instala_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_EJECUTAR[@]}"
fi
if [ ! -f build/release/build.ninja ]; then
  cmake --preset release -DVELDIX_TESTS=OFF -DVELDIX_BENCH=OFF > /dev/null
fi
cmake --build --preset release --target veldix veldix-cli
cmake --install build/release --prefix "$raiz/build/stage" > /dev/null
[ "${1:-}" = --build ] && { echo "Staged in build/stage"; exit 0; }

programa=$raiz/build/stage/VELDIX/EXE
# The program cuts its command line at the first blank: a path with one in a folder above is given from the
# program's own folder.
fichero() {
  local ruta
  case "$1" in /*) ruta=$1 ;; *) ruta=$aqui/$1 ;; esac
  case "$ruta" in *' '*) realpath -s --relative-to="$programa" "$ruta" ;; *) echo "$ruta" ;; esac
}
registro=$(fichero "${1:-$raiz/build/stage/Registros/falta_1997.dat}")
plantilla=
[ $# -ne 0 ] || plantilla=$(fichero "$raiz/build/stage/Plantillas/falta.cnf")
[ $# -lt 2 ] || plantilla=$(fichero "$2")

cd "$programa"
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: the record is read by veldix-cli instead."
  ./veldix-cli info "$registro" ${plantilla:+"$plantilla"}
  ./veldix-cli samples "$registro"
  exit 0
fi
exec ./veldix "$registro" ${plantilla:+"$plantilla"}
