#!/bin/sh
# Packs the build in folder $1 and lays the package out as two users would have it; the program itself is replaced
# by one that prints how it was called.
set -eu
construido=$1
raiz=$(mktemp -d)
trap 'rm -rf "$raiz"' EXIT
unset XDG_DATA_HOME
export LC_ALL="${LC_ALL:-C.UTF-8}"

falla() {
    echo "FAILED: $1"
    exit 1
}
igual() { # what, found, expected
    [ "$2" = "$3" ] || falla "$1: \"$2\" where \"$3\" is expected"
}

cpack -G DEB --config "$construido/CPackConfig.cmake" -B "$raiz/paquete" >"$raiz/cpack.log" 2>&1 || {
    cat "$raiz/cpack.log"
    falla "cpack"
}
dpkg-deb -x "$raiz"/paquete/*.deb "$raiz/sistema"
opt=$raiz/sistema/opt/veldix
bin=$raiz/sistema/usr/bin
for fichero in applications/veldix.desktop mime/packages/veldix-comtrade.xml icons/hicolor/48x48/apps/veldix.png; do
    [ -f "$raiz/sistema/usr/share/$fichero" ] || falla "the package lacks $fichero"
done
[ -z "$(find "$raiz/sistema" -name "ficher.ini" -o -name "tools.ini")" ] || falla "the package has settings"

# The command line before there is a tree.
export HOME="$raiz/ana"
mkdir "$HOME"
"$bin/veldix-cli" info "$opt/Registros/falta_1997.dat" "$opt/Plantillas/falta.cnf" >"$raiz/info" || falla "veldix-cli"
grep -q 1997 "$raiz/info" || falla "veldix-cli says nothing"
[ -z "$(ls -A "$HOME")" ] || falla "veldix-cli leaves files behind"

# shellcheck disable=SC2016  # expanded by the replacement
printf '#!/bin/sh\nprintf "%%s\\n" "$0" "$@"\n' >"$opt/VELDIX/EXE/veldix"
chmod -R a-w "$raiz/sistema"
sumas() {
    find "$raiz/sistema" -type f -exec cksum {} + | sort
}
sumas >"$raiz/antes"
trap 'chmod -R u+w "$raiz" && rm -rf "$raiz"' EXIT

# First start.
arbol=$HOME/.local/share/veldix
igual "call" "$(LC_ALL=en_GB.UTF-8 "$bin/veldix")" "$arbol/VELDIX/EXE/veldix"
igual "session" "$(cat "$arbol/VELDIX/ini/ficher.ini")" "$(printf ' 0 \r\n 4 \r\n\r\n\r\n\r\n\r')"
igual "settings" "$(tr -d '\r' <"$arbol/VELDIX/ini/tools.ini")" "0
$opt/Registros
$arbol/Plantillas
$arbol/Herramientas
0"
for fichero in VELDIX/ini/vdotro.ini VELDIX/ini/vdingles.ini VELDIX/Iconos/onda.avi Models/Modelos.mdb; do
    cmp -s "$arbol/$fichero" "$opt/$fichero" || falla "$fichero is not in the tree"
done

# What is the user's stays, what is missing comes back.
ln -sfn "$raiz/nowhere" "$arbol/VELDIX/EXE"
printf '1\r\n' >"$arbol/VELDIX/ini/tools.ini"
rm "$arbol/VELDIX/ini/ficher.ini" "$arbol/Models/DIST21.mdb" "$arbol/Models/Modelos.mdb"
echo own >"$arbol/Models/Modelos.mdb"
"$bin/veldix" >/dev/null
igual "settings at the second start" "$(cat "$arbol/VELDIX/ini/tools.ini")" "$(printf '1\r')"
igual "model of the user's own" "$(cat "$arbol/Models/Modelos.mdb")" own
[ -s "$arbol/VELDIX/ini/ficher.ini" ] || falla "a lost session is not put back"
[ -e "$arbol/Models/DIST21.mdb" ] || falla "a lost model is not put back"
rm "$arbol/VELDIX/EXE"
mkdir "$arbol/VELDIX/EXE"
! "$bin/veldix" 2>"$raiz/error" || falla "a folder in the place of the programs' link"
grep -q VELDIX/EXE "$raiz/error" || falla "nothing is said of the folder"
rmdir "$arbol/VELDIX/EXE"

# Two users do not meet, and their trees may lie anywhere.
igual "second user" "$(HOME=$raiz/berta XDG_DATA_HOME=$raiz/datos/berta "$bin/veldix")" \
    "$raiz/datos/berta/veldix/VELDIX/EXE/veldix"
igual "first user's settings" "$(cat "$arbol/VELDIX/ini/tools.ini")" "$(printf '1\r')"
grep -q "datos/berta/veldix/Plantillas" "$raiz/datos/berta/veldix/VELDIX/ini/tools.ini" || falla "shared templates"

# Starts at the same time, the first ones of a user.
for vez in 1 2 3 4 5; do
    (HOME=$raiz/eva-$vez "$bin/veldix" >/dev/null && echo ended >>"$raiz/hechos") &
    (HOME=$raiz/eva-$vez "$bin/veldix" >/dev/null && echo ended >>"$raiz/hechos") &
done
wait
igual "starts that ended well" "$(wc -l <"$raiz/hechos")" 10
igual "settings of two starts" "$(ls "$raiz/eva-1/.local/share/veldix/VELDIX/ini")" "ficher.ini
tools.ini
vdingles.ini
vdotro.ini"
! env -u HOME "$bin/veldix" 2>/dev/null || falla "a tree without HOME"
env -u HOME "$bin/veldix-cli" --help >/dev/null || falla "veldix-cli without HOME"

# Paths: from the folder one stands in, and with blanks, at which the program itself would cut; options as they are.
mkdir "$raiz/mis registros"
cp "$opt/Registros/falta_1997.dat" "$raiz/mis registros/falta 1.dat"
cp "$opt/Registros/falta_1997.cfg" "$raiz/mis registros/falta 1.CFG"
cp "$opt/Plantillas/falta.cnf" "$raiz/mis registros/mi plantilla.cnf"
cd "$raiz/mis registros"
prueba_registro() { # the word that the program got for falta 1.dat
    case $1 in *' '*) falla "a blank in $1" ;; esac
    cmp -s "$1" "falta 1.dat" || falla "$1 is not the record"
    cmp -s "${1%.dat}.CFG" "falta 1.CFG" || falla "the .cfg is not beside $1"
}
llamada=$("$bin/veldix" -platform offscreen "falta 1.dat" "mi plantilla.cnf")
enlace=$(printf '%s\n' "$llamada" | sed -n 4p)
igual "call with a record" "$llamada" "$arbol/VELDIX/EXE/veldix
-platform
offscreen
$enlace
$raiz/mis registros/mi plantilla.cnf"
prueba_registro "$enlace"
enlace=$(XDG_DATA_HOME="$raiz/mis datos" "$bin/veldix" "falta 1.dat" | tail -1)
prueba_registro "$enlace"
rm -r "${enlace%/*}"
igual "path with a backslash" "$("$bin/veldix" 'a\new.dat' | tail -1)" "$arbol/Enlaces/$(printf '%s' "$PWD/a\new.dat" |
    cksum | tr ' ' '-')/a\new.dat"
# The program tells a missing file in its own way, and is not given two words for one.
igual "words for a missing file" "$("$bin/veldix" "not there.dat" | tail -1 | wc -w)" 1

# Of the links the old ones go, and nothing of the user's.
enlaces=$(find "$arbol/Enlaces" -name falta_1.dat -printf '%h')
echo own >"$enlaces/copia.DAT"
find "$enlaces" -type l -exec touch -h -d '40 days ago' {} +
touch -d '40 days ago' "$enlaces"
"$bin/veldix" >/dev/null
igual "what is left beside old links" "$(ls "$enlaces")" copia.DAT
sumas | cmp -s - "$raiz/antes" || falla "the installation was changed"

# The code page of the user's own settings counts on the command line as well.
printf '[TEXTO]\npagina=CP437\n' >"$arbol/VELDIX/ini/perfil.ini"
"$bin/veldix-cli" info "$opt/Registros/falta_1997.dat" "$opt/Plantillas/falta.cnf" >"$raiz/info2"
! cmp -s "$raiz/info" "$raiz/info2" || falla "the user's code page does not count"
echo "1 passed, 0 failed"
