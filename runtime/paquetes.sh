# Sourced by run.sh and test.sh: installs the Debian packages among those named that this machine lacks.

instala_paquetes() {
  local falta=() p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || falta+=("$p")
  done
  [ ${#falta[@]} -eq 0 ] && return 0
  local como=()
  [ "$(id -u)" -eq 0 ] || como=(sudo)
  echo "Installing: ${falta[*]}"
  "${como[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${como[@]}" apt-get install -y -qq --no-install-recommends "${falta[@]}"
}

PAQUETES_CONSTRUIR=(g++ cmake ninja-build ccache qt6-base-dev mdbtools-dev pkgconf)
PAQUETES_EJECUTAR=(libqt6widgets6 qt6-qpa-plugins libxcb-cursor0 fonts-dejavu-core qt6-translations-l10n)
PAQUETES_PROBAR=(libgtest-dev libbenchmark-dev locales dpkg-dev file)
