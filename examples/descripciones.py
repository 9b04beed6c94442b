"""The descriptions in TOML of databases: any tables, or the model of a relay."""

from __future__ import annotations

import re
import tomllib
from collections.abc import Iterable
from dataclasses import dataclass
from pathlib import Path

from jet import Tabla
from jet_filas import CARACTERES_DE_UN_TEXTO, ENTERO_16, ENTERO_32, TEXTO, Columna, Valor

CARACTERES_DE_UN_NOMBRE = 64
COLUMNAS_DE_UNA_TABLA = 255
TIPOS = {"entero16": ENTERO_16, "entero32": ENTERO_32, "texto": TEXTO}


class ErrorDeDescripcion(Exception):
    """What is wrong in a description, and where it is."""


def lee_toml(ruta: Path) -> dict:
    try:
        return tomllib.loads(ruta.read_text(encoding="utf-8"))
    except OSError as error:
        raise ErrorDeDescripcion(error.strerror) from None
    except ValueError as error:  # not UTF-8, or not TOML
        raise ErrorDeDescripcion(str(error)) from None


def exige(condicion: bool, mensaje: str) -> None:
    if not condicion:
        raise ErrorDeDescripcion(mensaje)


def claves(tabla: object, obligadas: set[str], opcionales: set[str], donde: str) -> dict:
    exige(isinstance(tabla, dict), f"{donde}: not a table with keys")
    for clave in sorted(obligadas - tabla.keys()):
        raise ErrorDeDescripcion(f"{donde}: '{clave}' is missing")
    for clave in tabla:
        exige(clave in obligadas | opcionales, f"{donde}: unknown key '{clave}'")
    return tabla


def lista(valor: object, donde: str) -> list:
    exige(isinstance(valor, list), f"{donde}: not a list")
    return valor


def es_entero(valor: object, minimo: int, maximo: int) -> bool:
    return type(valor) is int and minimo <= valor <= maximo


def exige_distintos(nombres: Iterable[str], donde: str) -> None:
    """Whatever the case of their letters."""
    vistos = set()
    for nombre in nombres:
        exige(nombre.lower() not in vistos, f"{donde}: '{nombre}' is repeated")
        vistos.add(nombre.lower())


def nombre_valido(nombre: object, donde: str) -> str:
    exige(isinstance(nombre, str), f"{donde}: the name is not a text")
    exige(0 < len(nombre) <= CARACTERES_DE_UN_NOMBRE, f"{donde}: {nombre!r} has {len(nombre)} characters")
    # What the engine refuses in the name of a table or of a column.
    malo = nombre.startswith(" ") or re.search(r"[\0-\x1f.!`\[\]\U00010000-\U0010ffff]", nombre)
    exige(not malo, f"{donde}: bad name {nombre!r}")
    return nombre


# --- Any tables ----------------------------------------------------------------------------------------


def lee_tablas(ruta: Path) -> list[Tabla]:
    descripcion = claves(lee_toml(ruta), {"tabla"}, set(), "description")
    tablas = [tabla_general(t, n) for n, t in enumerate(lista(descripcion["tabla"], "'tabla'"), 1)]
    exige_distintos((tabla.nombre for tabla in tablas), "tables")
    return tablas


def tabla_general(descripcion: object, numero: int) -> Tabla:
    campos = claves(descripcion, {"nombre", "columnas"}, {"filas", "movidas", "borradas"}, f"table {numero}")
    nombre = nombre_valido(campos["nombre"], f"table {numero}")
    donde = f"table '{nombre}'"
    descritas = lista(campos["columnas"], f"{donde}, 'columnas'")
    exige(0 < len(descritas) <= COLUMNAS_DE_UNA_TABLA, f"{donde}: from 1 to {COLUMNAS_DE_UNA_TABLA} columns")
    columnas = [columna(c, f"{donde}, column {n}") for n, c in enumerate(descritas, 1)]
    exige_distintos((c.nombre for c in columnas), f"{donde}, columns")
    nombres = [c.nombre for c in columnas]
    descritas = lista(campos.get("filas", []), f"{donde}, 'filas'")
    filas = [fila(f, nombres, f"{donde}, row {n}") for n, f in enumerate(descritas, 1)]
    apartadas = {
        clave: numeros_de_fila(campos.get(clave, []), len(filas), f"{donde}, '{clave}'")
        for clave in ("movidas", "borradas")
    }
    return Tabla(nombre, columnas, filas, **apartadas)


def columna(descripcion: object, donde: str) -> Columna:
    campos = claves(descripcion, {"nombre", "tipo"}, {"largo"}, donde)
    nombre, tipo = nombre_valido(campos["nombre"], donde), campos["tipo"]
    donde = f"{donde} '{nombre}'"
    exige(isinstance(tipo, str) and tipo in TIPOS, f"{donde}: 'tipo' is not one of {', '.join(TIPOS)}")
    if "largo" not in campos:
        return Columna(nombre, TIPOS[tipo])
    exige(tipo == "texto", f"{donde}: only a text has 'largo'")
    correcto = es_entero(campos["largo"], 1, CARACTERES_DE_UN_TEXTO)
    exige(correcto, f"{donde}: 'largo' is not from 1 to {CARACTERES_DE_UN_TEXTO}")
    return Columna(nombre, TEXTO, campos["largo"])


def fila(descrita: object, nombres: list[str], donde: str) -> list[Valor]:
    """A list in the order of the columns, or a table in which what is missing is null."""
    if isinstance(descrita, dict):
        return [claves(descrita, set(), set(nombres), donde).get(nombre) for nombre in nombres]
    valores = lista(descrita, donde)
    exige(len(valores) == len(nombres), f"{donde}: {len(valores)} values for {len(nombres)} columns")
    return valores


def numeros_de_fila(numeros: object, filas: int, donde: str) -> frozenset[int]:
    for n in lista(numeros, donde):
        exige(es_entero(n, 1, filas), f"{donde}: there is no row {n!r}")
    return frozenset(numeros)


# --- The model of a relay ------------------------------------------------------------------------------

EXTENSION = ".mdb"
MAESTRA = "Modelos"
PREFIJO_MEDIDAS, PREFIJO_SENALES = "VDOSMedidas oscilos ", "PEst "

COLUMNAS_MAESTRA = (Columna("Modelo", TEXTO), Columna("BaseDatos", TEXTO))
COLUMNAS_MEDIDAS = (
    Columna("$Id", ENTERO_32),
    Columna("Nombre", TEXTO),
    Columna("NombreIngles", TEXTO),
    Columna("Unidades", TEXTO),
)
COLUMNAS_SENALES = (Columna("ByteOscilo", ENTERO_16), Columna("Descripcion", TEXTO))


@dataclass(frozen=True)
class Modelo:
    nombre: str
    base: str
    tablas: tuple[Tabla, Tabla]


def lee_modelo(ruta: Path) -> Modelo:
    campos = claves(lee_toml(ruta), {"modelo", "base", "medidas", "senales"}, set(), "description")
    nombre = texto(campos["modelo"], "*?#[", "'modelo'")
    base = nombre_de_base(campos["base"])
    sin_extension = base[: -len(EXTENSION)]
    medidas = [medida(m, f"measure {n}") for n, m in enumerate(lista(campos["medidas"], "'medidas'"), 1)]
    senales = [senal(s, f"signal {n}") for n, s in enumerate(lista(campos["senales"], "'senales'"), 1)]
    numeros = [m[0] for m in medidas]
    exige(bool(numeros), "'medidas': there is none")
    exige(numeros == sorted(set(numeros)), "measures, $Id: they do not rise from each to the next")
    exige_distintos((m[1] for m in medidas), "measures, name")
    exige_distintos((str(s[0]) for s in senales if s[0] >= 0), "signals, ByteOscilo")
    exige_distintos((s[1] for s in senales), "signals, description")
    return Modelo(
        nombre,
        base,
        (
            Tabla(PREFIJO_MEDIDAS + sin_extension, COLUMNAS_MEDIDAS, medidas),
            Tabla(PREFIJO_SENALES + sin_extension, COLUMNAS_SENALES, senales),
        ),
    )


def nombre_de_base(base: object) -> str:
    exige(isinstance(base, str), "'base' is not a text")
    exige(base == base.strip(" "), f"'base': {base!r} has blanks at its ends")
    exige(base.lower().endswith(EXTENSION), f"'base': {base!r} does not end in {EXTENSION}")
    malos = re.search(r'[/\\:*?"<>|]', base)
    exige(not malos, f"'base': {base!r} has characters that a file name cannot hold")
    exige(base.lower() != EXTENSION, "'base': there is nothing before the extension")
    exige(base.lower() != (MAESTRA + EXTENSION).lower(), f"'base': {base!r} is the list of models")
    nombre_valido(PREFIJO_MEDIDAS + base[: -len(EXTENSION)], "'base', table of the measures")
    return base


def medida(descrita: object, donde: str) -> list[Valor]:
    valores = lista(descrita, donde)
    exige(len(valores) == 4, f"{donde}: not the four of $Id, name, English name and units")
    exige(es_entero(valores[0], 1, 2**15 - 2), f"{donde}: $Id {valores[0]!r} is not from 1 to 32766")
    for valor, cual in zip(valores[1:], ("name", "English name", "units")):
        texto(valor, SEPARADORES, f"{donde}, {cual}", vacio=cual != "name")
    return valores


def senal(descrita: object, donde: str) -> list[Valor]:
    valores = lista(descrita, donde)
    exige(len(valores) == 2, f"{donde}: not the two of ByteOscilo and description")
    exige(es_entero(valores[0], -1, 2**15 - 1), f"{donde}: ByteOscilo {valores[0]!r} is not from -1 to 32767")
    texto(valores[1], SEPARADORES, f"{donde}, description")
    return valores


SEPARADORES = "%$"  # of the fields, in the templates


def texto(valor: object, prohibidos: str, donde: str, vacio: bool = False) -> str:
    """A text that the templates can hold."""
    exige(isinstance(valor, str), f"{donde}: {valor!r} is not a text")
    exige(vacio or bool(valor.strip()), f"{donde}: it is empty")
    exige(valor == valor.strip(" "), f"{donde}: {valor!r} has blanks at its ends")
    for c in valor:
        exige(c.isprintable() and c not in prohibidos, f"{donde}: {valor!r} has {c!r}")
    try:
        valor.encode("cp1252")
    except UnicodeEncodeError as error:
        ajeno = valor[error.start]
        raise ErrorDeDescripcion(f"{donde}: {valor!r} has {ajeno!r}, not in Windows-1252") from None
    return valor


def tabla_maestra(modelos: list[Modelo]) -> Tabla:
    for campo in ("nombre", "base"):
        exige_distintos((getattr(modelo, campo) for modelo in modelos), "models")
    return Tabla(MAESTRA, COLUMNAS_MAESTRA, [(modelo.nombre, modelo.base) for modelo in modelos])
