"""The relay of the demonstration record: its channels, what its inputs do in the event, its samples."""

from __future__ import annotations

import math
from dataclasses import dataclass, replace
from datetime import datetime

from circuito import (
    ARRANQUE_S,
    CIERRE_S,
    DISPARO_S,
    DURACION_S,
    FRECUENCIA_HZ,
    INCEPCION_S,
    LONGITUD_KM,
    SEPARACION_CONTACTOS_S,
    TIEMPO_DE_CIERRE_S,
    Circuito,
)

MUESTREO_HZ = 1600
MUESTRAS_POR_CICLO = round(MUESTREO_HZ / FRECUENCIA_HZ)
NUMERO_DE_MUESTRAS = round(DURACION_S * MUESTREO_HZ)
MAXIMO_BRUTO = 32767

# The day is the month too: it reads the same in the 1997 order (day, month) and in the 1991 one.
PRIMERA_MUESTRA = datetime(2023, 10, 10, 14, 27, 31, 250000)

SUBESTACION = "SE EJEMPLO"
EQUIPO = "PROT LINEA 1"

TT_PRIMARIO_KV, TT_SECUNDARIO_KV = 132.0, 0.11
TI_PRIMARIO_A, TI_SECUNDARIO_A = 800.0, 1.0

PASO_TENSION_KV = 0.005  # primary kV for each count
PASO_CORRIENTE_A = 0.0005  # secondary A for each count
DESFASE_CORRIENTES_US = 10.0  # the currents' converter samples after that of the voltages

ALCANCE_ZONA_1_KM = 0.80 * LONGITUD_KM
ALCANCE_ZONA_2_KM = 1.20 * LONGITUD_KM

FASES = ("A", "B", "C")


# --- The analog channels -------------------------------------------------------------------------------


@dataclass(frozen=True)
class CanalAnalogico:
    """A channel as it is declared: value = a * count + b, in primary or secondary as `ps` tells."""

    nombre: str
    fase: str
    circuito: str
    unidad: str
    a: float
    b: float
    desfase_us: float
    primario: float
    secundario: float
    ps: str

    def cuentas(self, valor: float) -> int:
        bruto = round((valor - self.b) / self.a)
        if abs(bruto) > MAXIMO_BRUTO:
            raise OverflowError(f"{self.nombre}: {valor} no cabe en 16 bits")
        return bruto

    def valor(self, bruto: int) -> float:
        return self.a * bruto + self.b

    def en_primario(self) -> CanalAnalogico:
        """The same counts with the factors that give primary values."""
        relacion = self.primario / self.secundario if self.ps == "S" else 1.0
        return replace(self, a=self.a * relacion, b=self.b * relacion, ps="P")


def canal_tension(fase: str, b: float) -> CanalAnalogico:
    return CanalAnalogico(
        "V" + fase, fase, "BARRAS", "kV", PASO_TENSION_KV, b, 0.0, TT_PRIMARIO_KV, TT_SECUNDARIO_KV, "P"
    )


def canal_corriente(fase: str) -> CanalAnalogico:
    return CanalAnalogico(
        "I" + fase, fase, "LINEA 1", "A", PASO_CORRIENTE_A, 0.0, DESFASE_CORRIENTES_US,
        TI_PRIMARIO_A, TI_SECUNDARIO_A, "S",
    )


# The offsets are whole counts, which leaves the residuals exact.
TENSIONES = (
    canal_tension("A", 2 * PASO_TENSION_KV),
    canal_tension("B", -3 * PASO_TENSION_KV),
    canal_tension("C", 0.0),
)
CORRIENTES = tuple(canal_corriente(fase) for fase in FASES)
TENSION_RESIDUAL = canal_tension("N", PASO_TENSION_KV)  # 3U0
CORRIENTE_RESIDUAL = canal_corriente("N")  # 3I0
ANALOGICOS = (*TENSIONES, TENSION_RESIDUAL, *CORRIENTES, CORRIENTE_RESIDUAL)


def cuentas_tensiones(circuito: Circuito, t: float) -> list[int]:
    return [c.cuentas(circuito.tension(k, t + 1e-6 * c.desfase_us)) for k, c in enumerate(TENSIONES)]


def cuentas_corrientes(circuito: Circuito, t: float) -> list[int]:
    relacion = TI_PRIMARIO_A / TI_SECUNDARIO_A
    return [
        c.cuentas(circuito.corriente(k, t + 1e-6 * c.desfase_us) / relacion)
        for k, c in enumerate(CORRIENTES)
    ]


def con_residual(canales: tuple, residual: CanalAnalogico, brutos: list[int]) -> list[int]:
    """Three channels and their sum, taken from the stored values so that it is exact."""
    suma = sum(canal.valor(bruto) for canal, bruto in zip(canales, brutos))
    return [*brutos, residual.cuentas(suma)]


def muestra_analogica(circuito: Circuito, t: float) -> list[int]:
    return [
        *con_residual(TENSIONES, TENSION_RESIDUAL, cuentas_tensiones(circuito, t)),
        *con_residual(CORRIENTES, CORRIENTE_RESIDUAL, cuentas_corrientes(circuito, t)),
    ]


# --- The digital channels ------------------------------------------------------------------------------


@dataclass(frozen=True)
class Cronologia:
    """The instants of the story, in seconds from the first sample."""

    incepcion: float
    arranque: float
    disparo: float
    separacion: float
    aperturas: tuple[float, float, float]
    orden_cierre: float
    cierre: float

    @property
    def extincion(self) -> float:
        """The last pole's interruption."""
        return max(self.aperturas)


def cronologia(circuito: Circuito) -> Cronologia:
    return Cronologia(
        incepcion=INCEPCION_S,
        arranque=ARRANQUE_S,
        disparo=DISPARO_S,
        separacion=SEPARACION_CONTACTOS_S,
        aperturas=circuito.apertura,
        orden_cierre=CIERRE_S - TIEMPO_DE_CIERRE_S,
        cierre=CIERRE_S,
    )


@dataclass(frozen=True)
class CanalDigital:
    """A channel, its normal state and the only interval, if any, that it spends in the other one."""

    nombre: str
    normal: int = 0
    desde: float = math.inf
    hasta: float = math.inf

    def estado(self, t: float) -> int:
        # Half a microsecond absorbs the rounding of the sums of times.
        activo = self.desde - 5e-7 <= t < self.hasta - 5e-7
        return 1 - self.normal if activo else self.normal


def canales_digitales(c: Cronologia) -> list[CanalDigital]:
    return [*canales_arranque(c), *canales_disparo(c), *canales_posicion(c), *canales_reenganche(c)]


def canales_arranque(c: Cronologia) -> list[CanalDigital]:
    reposicion = c.aperturas[0] + 0.015
    return [
        CanalDigital("ARRANQUE A", 0, c.arranque, reposicion),
        CanalDigital("ARRANQUE B"),
        CanalDigital("ARRANQUE C"),
        CanalDigital("ARRANQUE N", 0, c.arranque + 0.00125, reposicion + 0.00250),
        CanalDigital("ZONA 1", 0, c.disparo - 0.00250, reposicion - 0.00375),
        CanalDigital("ZONA 2", 0, c.disparo - 0.00375, reposicion - 0.00250),
        CanalDigital("DIREC ADELANTE", 0, c.arranque + 0.00500, reposicion),
    ]


def canales_disparo(c: Cronologia) -> list[CanalDigital]:
    reposicion = c.extincion + 0.025
    polos = [CanalDigital(f"DISPARO {fase}", 0, c.disparo, reposicion) for fase in FASES]
    return [
        *polos,
        CanalDigital("DISPARO GENERAL", 0, c.disparo, reposicion + 0.00250),
        CanalDigital("ENVIO PORTADORA", 0, c.disparo, reposicion + 0.05000),
        CanalDigital("RECEP PORTADORA", 0, c.disparo + 0.01250, reposicion + 0.06250),
    ]


def canales_posicion(c: Cronologia) -> list[CanalDigital]:
    """The auxiliary contacts: 52a copies each pole, 52b denies it, and neither is made in between."""
    dispersion = (0.0, 0.00125, 0.000625)
    contactos_a = [
        CanalDigital(f"52A POLO {fase}", 1, c.separacion + 0.00250 + d, c.cierre + 0.00250 + d)
        for fase, d in zip(FASES, dispersion)
    ]
    contactos_b = [
        CanalDigital(f"52B POLO {fase}", 0, c.separacion + 0.01250 + d, c.cierre - 0.00750 + d)
        for fase, d in zip(FASES, dispersion)
    ]
    return [*contactos_a, *contactos_b]


def canales_reenganche(c: Cronologia) -> list[CanalDigital]:
    return [
        CanalDigital("REENG EN CURSO", 0, c.disparo + 0.00500, c.orden_cierre + 0.12000),
        CanalDigital("ORDEN REENGANCHE", 0, c.orden_cierre, c.orden_cierre + 0.12000),
        CanalDigital("TIEMPO SEGURIDAD", 0, c.orden_cierre, math.inf),
        CanalDigital("FALLO FUSIBLE TT"),
        CanalDigital("ARRANQUE OSCILO", 0, c.arranque, c.arranque + 0.10000),
    ]


# --- The samples ---------------------------------------------------------------------------------------


@dataclass(frozen=True)
class Muestra:
    numero: int
    tiempo_us: int
    analogicos: list[int]
    digitales: list[int]


def muestras(circuito: Circuito, digitales: list[CanalDigital]) -> list[Muestra]:
    resultado = []
    for k in range(NUMERO_DE_MUESTRAS):
        t = k / MUESTREO_HZ
        estados = [canal.estado(t) for canal in digitales]
        resultado.append(Muestra(k + 1, round(1e6 * t), muestra_analogica(circuito, t), estados))
    return resultado
