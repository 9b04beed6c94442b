"""Databases in the Jet 4 format (.mdb), written whole from their tables.

A file is a row of pages of 4096 bytes: the header, the map of free pages, the definition and the maps of
the catalog, and then each table: its definition, its maps and its rows. The rows of the catalog come last.
There are no indices, relations or long values.
"""

from __future__ import annotations

import struct
from collections.abc import Iterable, Sequence
from dataclasses import dataclass

from jet_filas import (
    APUNTADOR,
    BINARIO,
    BORRADA,
    DESPLAZADA,
    ENTERO_16,
    ENTERO_32,
    FECHA,
    MEMO,
    OLE,
    PAGINA,
    PAGINAS_DE_UN_MAPA,
    TEXTO,
    Columna,
    ErrorJet,
    Filas,
    PaginaDeDatos,
    Valor,
    codifica_fila,
    direccion,
    pagina_de_mapas,
)

CREADA = 36526.0  # 1 January 2000, in days since 30 December 1899: the same input gives the same bytes
MARCA = 0x659  # stands in every definition
INGLES = 0x409  # order of the texts

# --- Tables --------------------------------------------------------------------------------------------


@dataclass(frozen=True)
class Tabla:
    """A table; `movidas` and `borradas` are numbers of rows, from 1.

    A row that outgrew its page is stored elsewhere, with a pointer in its place. The bytes of a deleted
    row stay where they were, under a mark, and a row that was moved and then deleted leaves both parts so.
    """

    nombre: str
    columnas: Sequence[Columna]
    filas: Sequence[Sequence[Valor]]
    movidas: frozenset[int] = frozenset()
    borradas: frozenset[int] = frozenset()

    def codificada(self, primera: int) -> Filas:
        resultado = Filas(primera)
        alejadas = []
        for n, valores in enumerate(self.filas, 1):
            octetos = self._fila(n, valores)
            borrada = BORRADA if n in self.borradas else 0
            if n in self.movidas:
                alejadas.append((resultado.pon(bytes(4), APUNTADOR | borrada), octetos, DESPLAZADA | borrada))
            else:
                resultado.pon(octetos, borrada)
        for apuntador, octetos, marca in alejadas:
            resultado.apunta(apuntador, resultado.pon(octetos, marca))
        return resultado

    def _fila(self, n: int, valores: Sequence[Valor]) -> bytes:
        try:
            octetos = codifica_fila(self.columnas, valores)
            if not PaginaDeDatos().cabe(octetos):
                raise ErrorJet(f"its {len(octetos)} bytes do not fit in a page")
        except ErrorJet as error:
            raise ErrorJet(f"table '{self.nombre}', row {n}: {error}") from None
        return octetos

    def definicion(self, mapas: int, del_sistema: bool) -> bytes:
        """The page of the definition; `mapas` is the one of the maps."""
        variables = sum(not columna.fija for columna in self.columnas)
        vivas = len(self.filas) - len(self.borradas)
        columnas, clase = len(self.columnas), 0x53 if del_sistema else 0x4E
        cuerpo = struct.pack("<IIIB15x", MARCA, vivas, 0, 1)
        cuerpo += struct.pack("<BHHH", clase, columnas, variables, columnas)
        cuerpo += struct.pack("<8xII", direccion(mapas, 0), direccion(mapas, 1))
        cuerpo += b"".join(self._columnas(del_sistema))
        for columna in self.columnas:
            nombre = columna.nombre.encode("utf-16-le")
            cuerpo += struct.pack("<H", len(nombre)) + nombre
        for orden, numero in enumerate(self.valores_largos):
            mapa = direccion(mapas, 2 + 2 * orden)
            cuerpo += struct.pack("<HII", numero, mapa, mapa + 1)
        cuerpo += b"\xff\xff"
        libre = PAGINA - 20 - len(cuerpo)
        if libre < 0:
            raise ErrorJet(f"table '{self.nombre}': the definition of its columns does not fit in a page")
        return struct.pack("<BBHII", 2, 1, libre, 0, len(cuerpo) + 12) + cuerpo + bytes(8 + libre)

    @property
    def valores_largos(self) -> list[int]:
        """The columns that have a pair of maps of their own."""
        return [k for k, columna in enumerate(self.columnas) if columna.tipo.valor_largo]

    def _columnas(self, del_sistema: bool) -> Iterable[bytes]:
        fijos = variables = 0
        for k, columna in enumerate(self.columnas):
            senas = (0x12 if del_sistema else 0x02) | columna.fija
            comprimida = columna.comprimida and columna.tipo is TEXTO
            yield struct.pack("<BIHHHI", columna.tipo.codigo, MARCA, k, variables, k, INGLES)
            yield struct.pack("<BB4xHH", senas, comprimida, fijos if columna.fija else 0, columna.largo)
            fijos += columna.largo if columna.fija else 0
            variables += not columna.fija


# --- The file ------------------------------------------------------------------------------------------

LIBRES, CATALOGO, PRIMERA_TABLA = 1, 2, 4  # pages

COLUMNAS_DEL_CATALOGO = tuple(
    Columna(nombre, tipo, comprimida=False)
    for nombre, tipo in (
        ("Id", ENTERO_32),
        ("ParentId", ENTERO_32),
        ("Name", TEXTO),
        ("Type", ENTERO_16),
        ("DateCreate", FECHA),
        ("DateUpdate", FECHA),
        ("Owner", BINARIO),
        ("Flags", ENTERO_32),
        ("Database", MEMO),
        ("Connect", MEMO),
        ("ForeignName", TEXTO),
        ("RmtInfoShort", BINARIO),
        ("RmtInfoLong", OLE),
        ("Lv", OLE),
        ("LvProp", OLE),
        ("LvModule", OLE),
        ("LvExtra", OLE),
    )
)

DEL_SISTEMA = -0x80000000
RAIZ, TABLAS, BASES, RELACIONES, BASE = 0x0F000000, 0x0F000001, 0x0F000002, 0x0F000003, 0x10000000
TIPO_TABLA, TIPO_BASE, TIPO_CONTENEDOR = 1, 2, 3

OBJETOS_DEL_SISTEMA = (
    (TABLAS, RAIZ, "Tables", TIPO_CONTENEDOR, DEL_SISTEMA),
    (BASES, RAIZ, "Databases", TIPO_CONTENEDOR, DEL_SISTEMA),
    (RELACIONES, RAIZ, "Relationships", TIPO_CONTENEDOR, DEL_SISTEMA),
    (BASE, BASES, "MSysDb", TIPO_BASE, DEL_SISTEMA),
    (CATALOGO, TABLAS, "MSysObjects", TIPO_TABLA, DEL_SISTEMA),
)


def catalogo(objetos: Iterable[tuple[int, int, str, int, int]]) -> Tabla:
    vacias = (None,) * (len(COLUMNAS_DEL_CATALOGO) - 8)
    filas = [
        (numero, padre, nombre, tipo, CREADA, CREADA, None, senas, *vacias)
        for numero, padre, nombre, tipo, senas in objetos
    ]
    return Tabla("MSysObjects", COLUMNAS_DEL_CATALOGO, filas)


def base_de_datos(tablas: Iterable[Tabla]) -> bytes:
    paginas = [b""] * PRIMERA_TABLA
    objetos = [*OBJETOS_DEL_SISTEMA]
    for tabla in tablas:
        objetos.append((len(paginas), TABLAS, tabla.nombre, TIPO_TABLA, 0))
        paginas += [b"", b""]
        guarda(paginas, len(paginas) - 2, tabla)
    guarda(paginas, CATALOGO, catalogo(objetos), del_sistema=True)
    paginas[0] = cabecera()
    paginas[LIBRES] = pagina_de_mapas([range(len(paginas), PAGINAS_DE_UN_MAPA), ()], LIBRES)
    return b"".join(paginas)


def guarda(paginas: list[bytes], numero: int, tabla: Tabla, del_sistema: bool = False) -> None:
    """The definition on page `numero`, the maps on the next and the rows at the end."""
    datos = tabla.codificada(len(paginas)).octetos(numero)
    usadas = range(len(paginas), len(paginas) + len(datos))
    if usadas.stop > PAGINAS_DE_UN_MAPA:
        raise ErrorJet(f"table '{tabla.nombre}': the database passes {PAGINAS_DE_UN_MAPA * PAGINA} bytes")
    con_sitio = usadas[-1:]
    largos = [()] * (2 * len(tabla.valores_largos))
    paginas[numero] = tabla.definicion(numero + 1, del_sistema)
    paginas[numero + 1] = pagina_de_mapas([usadas, con_sitio, *largos], 0)
    paginas += datos


def cabecera() -> bytes:
    pagina = bytearray(PAGINA)
    pagina[:20] = b"\0\1\0\0Standard Jet DB\0"
    pagina[0x14] = 1  # Jet 4
    struct.pack_into("<III", pagina, 0x18, direccion(LIBRES, 0), direccion(LIBRES, 1), CATALOGO)
    struct.pack_into("<H", pagina, 0x3C, 1252)
    # No password: what is stored is the mask alone, which comes from the date.
    struct.pack_into("<10I", pagina, 0x42, *[int(CREADA)] * 10)
    struct.pack_into("<Id", pagina, 0x6E, INGLES, CREADA)
    revueltos = slice(0x18, 0x98)
    pagina[revueltos] = rc4(b"\xc7\xda\x39\x6b", pagina[revueltos])
    pagina[0x9C:0x9F] = b"4.0"
    return bytes(pagina)


def rc4(clave: bytes, datos: bytes) -> bytes:
    caja = [*range(256)]
    j = 0
    for i in range(256):
        j = (j + caja[i] + clave[i % len(clave)]) & 0xFF
        caja[i], caja[j] = caja[j], caja[i]
    j = 0
    resultado = bytearray()
    for n, octeto in enumerate(datos, 1):
        i = n & 0xFF
        j = (j + caja[i]) & 0xFF
        caja[i], caja[j] = caja[j], caja[i]
        resultado.append(octeto ^ caja[(caja[i] + caja[j]) & 0xFF])
    return bytes(resultado)
