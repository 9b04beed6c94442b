"""The template of the demonstration record: names, three-phase sets and digital groups."""

from __future__ import annotations

from texto import en_lineas

# --- The template --------------------------------------------------------------------------------------

NOMBRES_ANALOGICOS = (
    "Tensión fase A",
    "Tensión fase B",
    "Tensión fase C",
    "Tensión residual 3U0",
    "Intensidad fase A",
    "Intensidad fase B",
    "Intensidad fase C",
    "Intensidad residual 3I0",
)

TRIFASICOS = ((1, 2, 3, "Tensión en barras", "20"), (5, 6, 7, "Intensidad de línea", "1"))

GRUPOS_DIGITALES = (
    (
        "Arranques y medición",
        (
            (1, "Arranque fase A"),
            (2, "Arranque fase B"),
            (3, "Arranque fase C"),
            (4, "Arranque a tierra"),
            (5, "Zona 1 instantánea"),
            (6, "Zona 2 temporizada"),
            (7, "Dirección adelante"),
        ),
    ),
    (
        "Disparos y teleprotección",
        (
            (8, "Disparo fase A"),
            (9, "Disparo fase B"),
            (10, "Disparo fase C"),
            (11, "Disparo general"),
            (12, "Envío de señal portadora"),
            (13, "Recepción de señal portadora"),
        ),
    ),
    (
        "Posición del interruptor",
        (
            (14, "Polo A cerrado (52a)"),
            (15, "Polo B cerrado (52a)"),
            (16, "Polo C cerrado (52a)"),
            (17, "Polo A abierto (52b)"),
            (18, "Polo B abierto (52b)"),
            (19, "Polo C abierto (52b)"),
        ),
    ),
    (
        "Reenganche y señalización",
        (
            (20, "Reenganche en curso"),
            (21, "Orden de reenganche"),
            (22, "Tiempo de seguridad"),
            (23, "Señal de fallo de fusible TT"),
            (24, "Arranque de la oscilografía"),
        ),
    ),
)


def cnf(canales) -> bytes:
    return en_lineas(
        [
            "ver 1.1",
            "Línea 1, 132 kV - plantilla de demostración (año 2023)",
            *plantilla_analogicos(canales),
            *plantilla_trifasicos(),
            *plantilla_digitales(),
            "-----",
        ]
    )


def cuenta(elementos) -> str:
    return f" {len(elementos)} "


def plantilla_analogicos(canales) -> list[str]:
    nombrados = enumerate(zip(NOMBRES_ANALOGICOS, canales), 1)
    lineas = [f"{n}%{nombre}%{canal.circuito}%{canal.unidad}$" for n, (nombre, canal) in nombrados]
    return ["ANALOGICOS", cuenta(lineas), *lineas]


def plantilla_trifasicos() -> list[str]:
    lineas = ["%".join(map(str, trifasico)) + "$" for trifasico in TRIFASICOS]
    return ["TRIFASICOS", cuenta(lineas), *lineas]


def plantilla_digitales() -> list[str]:
    total = sum(len(miembros) for _, miembros in GRUPOS_DIGITALES)
    lineas = ["DIGITALES", str(total), cuenta(GRUPOS_DIGITALES)]
    for nombre, miembros in GRUPOS_DIGITALES:
        lineas += ["***", nombre, cuenta(miembros), *(f"{n}%{texto}$" for n, texto in miembros)]
    return lineas
