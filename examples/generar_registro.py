#!/usr/bin/env python3
"""Makes the demonstration record: an earth fault of phase A, its clearing and a successful reclosing.

The circuit
-----------
A source feeds a load through a line, with the relay and its voltage transformers at the busbars where the
line begins, and the circuit breaker between the busbars and the line:

    E --- Zs ---+---[breaker]--- m Zl ---+--- (1-m) Zl --- load
                |                        |
             busbars                     Rf  (phase A to earth)
           (VA VB VC)

Each impedance Z = R + jwL has a positive-sequence value Z1 (the negative one is equal) and a zero-sequence
value Z0. Capacitances are left out. A phasor X in r.m.s. stands for x(t) = sqrt(2) Re(X exp(jwt)), and t = 0
is the first sample.

Load.       The load current is balanced and isolated from earth:

                Ia = Ea / (Z1s + Z1l + Zload),   Ib = a^2 Ia,   Ic = a Ia

            It is held at that value while the fault lasts, that is, the load acts as a current sink.

Fault.      Being added to a load that does not change, the fault current flows in phase A alone, so that its
            three sequence components are equal, If0 = If1 = If2 = If/3, and the three sequence networks are
            in series. With Z = Zs + m Zl and Va the voltage at the fault point before the fault,

                If = 3 Va / (Z1 + Z2 + Z0 + 3 Rf),   tau = (2 L1 + L0) / (2 R1 + R0 + 3 Rf)

            That loop has one time constant, hence the fault current is exactly the steady one plus one
            exponential, whose first value makes it begin at zero:

                if(t) = sqrt(2) Re(If exp(jwt)) - sqrt(2) Re(If exp(jw t0)) exp(-(t - t0) / tau)

Opening.    Each pole interrupts at the first zero of its own current after its contacts part. The other two
            keep their currents until their own zeros, so that for a few milliseconds there is a residual
            current which belongs to the load.

Closing.    The three poles close at once on the load; each current begins at zero with the exponential of
            the load's loop, tau = L/R of Zs + Zl + Zload. The arc is out by then.

Busbars.    With ik the current of phase k and in = ia + ib + ic,

                vk = ek - (R1 + L1 d/dt) ik - ((R0 - R1)/3 + (L0 - L1)/3 d/dt) in        (source's R and L)

            which holds through the exponentials as well. Once the poles are open the busbars see the source
            at no load.

What is written
---------------
falta_1997   the record in the 1997 revision, samples in text
falta_1997b  the same, samples in binary
falta_1991   the same in the 1991 revision, samples in text and factors that give primary values
falta.cnf    the template that names and groups the channels, in code page Windows-1252
"""

from __future__ import annotations

import argparse
import cmath
import math
import struct
import sys
from dataclasses import dataclass, replace
from datetime import datetime, timedelta
from pathlib import Path

# --- The network ---------------------------------------------------------------------------------------

FRECUENCIA_HZ = 50.0
OMEGA = 2.0 * math.pi * FRECUENCIA_HZ  # rad/s
GIRO = cmath.rect(1.0, 2.0 * math.pi / 3.0)  # the operator a

TENSION_NOMINAL_KV = 132.0  # between phases
TENSION_FUENTE_KV = 1.03 * TENSION_NOMINAL_KV / math.sqrt(3.0)  # phase to earth

FUENTE_Z1_OHM = complex(1.0, 11.5)
FUENTE_Z0_OHM = complex(1.2, 9.0)

LONGITUD_KM = 64.0
LINEA_Z1_OHM_KM = complex(0.120, 0.410)
LINEA_Z0_OHM_KM = complex(0.320, 1.300)

CARGA_MVA = 60.0
CARGA_FACTOR_POTENCIA = 0.95  # inductive

FALTA_KM = 26.4
FALTA_RESISTENCIA_OHM = 2.0
FALTA_PUNTO_DE_ONDA_GRADOS = 20.0  # after the upward zero of phase A's voltage at the fault point

# --- The events, in seconds ----------------------------------------------------------------------------

ANTES_S = -1.0  # any instant before the record
DURACION_S = 1.6
INCEPCION_S = 0.200
ARRANQUE_S = INCEPCION_S + 0.0100  # the relay's start, which triggers the record
DISPARO_S = INCEPCION_S + 0.0225
SEPARACION_CONTACTOS_S = 0.270
CIERRE_S = 0.735
TIEMPO_DE_CIERRE_S = 0.055  # from the order to the contacts' touch

# --- The relay -----------------------------------------------------------------------------------------

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
FIN_DE_LINEA = "\r\n"
PAGINA_DE_CODIGOS = "cp1252"


# --- Currents and voltages -----------------------------------------------------------------------------


@dataclass(frozen=True)
class Tramo:
    """A current between two switching instants: a sinusoid plus an exponential."""

    desde: float  # s
    hasta: float  # s
    fasor: complex  # A, r.m.s.
    continua: float = 0.0  # A, the exponential's value at `desde`
    tau: float = 1.0  # s

    def abarca(self, t: float) -> bool:
        return self.desde <= t < self.hasta

    def valor(self, t: float) -> float:
        return seno(self.fasor, t) + self._exponencial(t)

    def derivada(self, t: float) -> float:
        return seno(1j * OMEGA * self.fasor, t) - self._exponencial(t) / self.tau

    def _exponencial(self, t: float) -> float:
        return self.continua * math.exp(-(t - self.desde) / self.tau)


@dataclass(frozen=True)
class Corriente:
    """The current of a phase: its stretches in order, and zero outside them."""

    tramos: tuple[Tramo, ...]

    def valor(self, t: float) -> float:
        return sum(tramo.valor(t) for tramo in self.tramos if tramo.abarca(t))

    def derivada(self, t: float) -> float:
        return sum(tramo.derivada(t) for tramo in self.tramos if tramo.abarca(t))


def seno(fasor: complex, t: float) -> float:
    """The instantaneous value of an r.m.s. phasor."""
    return math.sqrt(2.0) * (fasor * cmath.exp(1j * OMEGA * t)).real


def por_fases(fasor_a: complex) -> tuple[complex, complex, complex]:
    """The three phasors of a positive-sequence system."""
    return fasor_a, fasor_a * GIRO**2, fasor_a * GIRO


def constante_de_tiempo(impedancia: complex) -> float:
    """L/R, in seconds, of an impedance at the nominal frequency."""
    return impedancia.imag / OMEGA / impedancia.real


def impedancia_carga() -> complex:
    angulo = math.acos(CARGA_FACTOR_POTENCIA)
    return cmath.rect(TENSION_NOMINAL_KV**2 / CARGA_MVA, angulo)


def impedancia_servicio() -> complex:
    """The loop of the load: source, whole line and load, in positive sequence."""
    return FUENTE_Z1_OHM + LONGITUD_KM * LINEA_Z1_OHM_KM + impedancia_carga()


def impedancia_falta() -> complex:
    """The loop of the fault: the three sequences in series, and three times the fault's resistance."""
    z1 = FUENTE_Z1_OHM + FALTA_KM * LINEA_Z1_OHM_KM
    z0 = FUENTE_Z0_OHM + FALTA_KM * LINEA_Z0_OHM_KM
    return 2.0 * z1 + z0 + 3.0 * FALTA_RESISTENCIA_OHM


class Circuito:
    """The currents through the breaker and the voltages at the busbars, as functions of time."""

    def __init__(self) -> None:
        self.fem = por_fases(self._fem_fase_a())
        self.carga = por_fases(self.fem[0] / impedancia_servicio())
        self.falta = 3.0 * self._tension_previa(self.fem[0]) / impedancia_falta()
        previos = (self._tramos_fase_a(), *(self._tramo_sano(i) for i in self.carga[1:]))
        self.apertura = tuple(primer_cero(tramos[-1], SEPARACION_CONTACTOS_S) for tramos in previos)
        self.corrientes = tuple(
            Corriente((*tramos[:-1], replace(tramos[-1], hasta=apertura), tramo_cierre(carga)))
            for tramos, apertura, carga in zip(previos, self.apertura, self.carga)
        )

    @staticmethod
    def _tension_previa(fem_a: complex) -> complex:
        """Phase A's voltage at the fault point before the fault."""
        hasta_la_falta = FUENTE_Z1_OHM + FALTA_KM * LINEA_Z1_OHM_KM
        return fem_a * (1.0 - hasta_la_falta / impedancia_servicio())

    @classmethod
    def _fem_fase_a(cls) -> complex:
        """The source's phase A in volts, turned so that the fault begins at its point on wave."""
        modulo = 1000.0 * TENSION_FUENTE_KV
        buscado = math.radians(FALTA_PUNTO_DE_ONDA_GRADOS - 90.0) - OMEGA * INCEPCION_S
        return cmath.rect(modulo, buscado - cmath.phase(cls._tension_previa(complex(modulo))))

    def _tramos_fase_a(self) -> tuple[Tramo, Tramo]:
        antes = Tramo(ANTES_S, INCEPCION_S, self.carga[0])
        en_falta = Tramo(
            desde=INCEPCION_S,
            hasta=math.inf,
            fasor=self.carga[0] + self.falta,
            continua=-seno(self.falta, INCEPCION_S),
            tau=constante_de_tiempo(impedancia_falta()),
        )
        return antes, en_falta

    @staticmethod
    def _tramo_sano(carga: complex) -> tuple[Tramo]:
        return (Tramo(ANTES_S, math.inf, carga),)

    def corriente(self, fase: int, t: float) -> float:
        """Amperes in the primary, from the busbars to the line."""
        return self.corrientes[fase].valor(t)

    def tension(self, fase: int, t: float) -> float:
        """Kilovolts in the primary, phase to earth, at the busbars."""
        propia = caida(FUENTE_Z1_OHM, self.corrientes[fase], t)
        comun = sum(caida((FUENTE_Z0_OHM - FUENTE_Z1_OHM) / 3.0, i, t) for i in self.corrientes)
        return (seno(self.fem[fase], t) - propia - comun) / 1000.0


def tramo_cierre(carga: complex) -> Tramo:
    """The load's current from the reclosing on."""
    tau = constante_de_tiempo(impedancia_servicio())
    return Tramo(CIERRE_S, math.inf, carga, -seno(carga, CIERRE_S), tau)


def caida(impedancia: complex, corriente: Corriente, t: float) -> float:
    """R i + L di/dt, in volts."""
    inductancia = impedancia.imag / OMEGA
    return impedancia.real * corriente.valor(t) + inductancia * corriente.derivada(t)


def primer_cero(tramo: Tramo, desde: float) -> float:
    """The first zero of a current after an instant, which must come within the next cycle."""
    paso = 1.0 / (400.0 * FRECUENCIA_HZ)
    for k in range(400):
        izquierda, derecha = desde + k * paso, desde + (k + 1) * paso
        if tramo.valor(izquierda) * tramo.valor(derecha) <= 0.0:
            return biseccion(tramo, izquierda, derecha)
    raise ValueError("la corriente no pasa por cero")


def biseccion(tramo: Tramo, izquierda: float, derecha: float) -> float:
    for _ in range(40):
        medio = (izquierda + derecha) / 2.0
        if tramo.valor(izquierda) * tramo.valor(medio) <= 0.0:
            derecha = medio
        else:
            izquierda = medio
    return derecha


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


def dat_texto(registro: list[Muestra]) -> bytes:
    lineas = (
        ",".join(map(str, (m.numero, m.tiempo_us, *m.analogicos, *m.digitales))) for m in registro
    )
    return en_lineas(lineas)


def dat_binario(registro: list[Muestra]) -> bytes:
    return b"".join(
        struct.pack(f"<II{len(m.analogicos)}h", m.numero, m.tiempo_us, *m.analogicos)
        + palabras(m.digitales)
        for m in registro
    )


def palabras(estados: list[int]) -> bytes:
    """Words of sixteen states, the first state in the lowest bit."""
    numero = -(-len(estados) // 16)
    bits = sum(estado << k for k, estado in enumerate(estados))
    return bits.to_bytes(2 * numero, "little")


# --- The configuration ---------------------------------------------------------------------------------


def cfg_1997(digitales: list[CanalDigital], tipo: str) -> bytes:
    lineas = [f"{SUBESTACION},{EQUIPO},1997"]
    lineas += lineas_canales(map(campos_1997, ANALOGICOS), digitales, ",,")  # phase and component, empty
    lineas += [*lineas_tasa(), *fechas("%d/%m/%Y,%H:%M:%S.%f"), tipo, "1"]
    return en_lineas(lineas)


def cfg_1991(digitales: list[CanalDigital]) -> bytes:
    primarios = [canal.en_primario() for canal in ANALOGICOS]
    lineas = [f"{SUBESTACION},{EQUIPO}"]
    lineas += lineas_canales(map(campos_1991, primarios), digitales, "")
    lineas += [*lineas_tasa(), *fechas("%m/%d/%y,%H:%M:%S.%f"), "ASCII"]
    return en_lineas(lineas)


def lineas_canales(campos_analogicos, digitales: list[CanalDigital], de_1997: str) -> list[str]:
    """The counts and the channels; `de_1997` stands between name and normal state of a digital one."""
    na, nd = len(ANALOGICOS), len(digitales)
    analogicas = [f"{n},{','.join(campos)}" for n, campos in enumerate(campos_analogicos, 1)]
    estados = [f"{n},{canal.nombre}{de_1997},{canal.normal}" for n, canal in enumerate(digitales, 1)]
    return [f"{na + nd},{na}A,{nd}D", *analogicas, *estados]


def campos_1991(c: CanalAnalogico) -> list[str]:
    factores = [numero(x) for x in (c.a, c.b, c.desfase_us)]
    return [c.nombre, c.fase, c.circuito, c.unidad, *factores, str(-MAXIMO_BRUTO), str(MAXIMO_BRUTO)]


def campos_1997(c: CanalAnalogico) -> list[str]:
    return [*campos_1991(c), numero(c.primario), numero(c.secundario), c.ps]


def lineas_tasa() -> list[str]:
    return [numero(FRECUENCIA_HZ), "1", f"{MUESTREO_HZ},{NUMERO_DE_MUESTRAS}"]


def fechas(formato: str) -> list[str]:
    """The first sample's and the trigger's."""
    disparo = PRIMERA_MUESTRA + timedelta(seconds=ARRANQUE_S)
    return [PRIMERA_MUESTRA.strftime(formato), disparo.strftime(formato)]


def numero(x: float) -> str:
    return f"{x:.7g}"


def en_lineas(lineas) -> bytes:
    return "".join(linea + FIN_DE_LINEA for linea in lineas).encode(PAGINA_DE_CODIGOS)


# --- The relay's report --------------------------------------------------------------------------------


def fasor_medido(registro: list[Muestra], canal: int, primera: int) -> complex:
    """The r.m.s. phasor of an analog channel over one cycle, in the channel's unit."""
    suma = sum(
        ANALOGICOS[canal].valor(registro[primera + k].analogicos[canal])
        * cmath.exp(-2j * math.pi * k / MUESTRAS_POR_CICLO)
        for k in range(MUESTRAS_POR_CICLO)
    )
    return math.sqrt(2.0) * suma / MUESTRAS_POR_CICLO


def medidas_en_falta(registro: list[Muestra]) -> list[complex]:
    """Primary phasors, kV and A, over the last cycle before the contacts part."""
    primera = round(SEPARACION_CONTACTOS_S * MUESTREO_HZ) - MUESTRAS_POR_CICLO
    relacion = TI_PRIMARIO_A / TI_SECUNDARIO_A
    tensiones = [fasor_medido(registro, k, primera) for k in range(4)]
    return [*tensiones, *(relacion * fasor_medido(registro, k, primera) for k in range(4, 8))]


def impedancia_medida(medidas: list[complex]) -> complex:
    """The earth loop of phase A, Va / (Ia + k0 In), in primary ohms."""
    k0 = (LINEA_Z0_OHM_KM - LINEA_Z1_OHM_KM) / (3.0 * LINEA_Z1_OHM_KM)
    return 1000.0 * medidas[0] / (medidas[4] + k0 * medidas[7])


def hdr(c: Cronologia, registro: list[Muestra]) -> bytes:
    medidas = medidas_en_falta(registro)
    return en_lineas(
        linea
        for apartado in (informe_cabecera(), informe_sucesos(c), informe_medidas(medidas), informe_ajustes())
        for linea in (*apartado, "")
    )


def coma(x: float, decimales: int) -> str:
    return f"{x:.{decimales}f}".replace(".", ",")


def informe_cabecera() -> list[str]:
    return [
        "INFORME DE FALTA",
        "================",
        f"Subestación:        {SUBESTACION}",
        f"Equipo:             {EQUIPO}",
        f"Posición:           Línea 1, {coma(TENSION_NOMINAL_KV, 0)} kV, {coma(LONGITUD_KM, 1)} km",
        f"Fecha del registro: {PRIMERA_MUESTRA:%d/%m/%Y %H:%M:%S.%f}",
        "Suceso:             Falta monofásica A-tierra, disparo tripolar por zona 1,",
        "                    reenganche con éxito",
    ]


def informe_sucesos(c: Cronologia) -> list[str]:
    sucesos = [
        (c.incepcion, "Comienzo de la falta"),
        (c.arranque, "Arranque fase A, comienzo de la oscilografía"),
        (c.disparo, "Disparo tripolar por zona 1, envío de portadora"),
        (c.separacion, "Separación de los contactos del interruptor"),
        *((t, f"Apertura del polo {fase} en su paso por cero") for fase, t in zip(FASES, c.aperturas)),
        (c.orden_cierre, "Orden de reenganche"),
        (c.cierre, "Cierre de los tres polos, vuelve la carga"),
    ]
    titulo = ["SUCESOS (ms desde la primera muestra y desde el comienzo de la falta)"]
    return titulo + [
        f"  {coma(1e3 * t, 1):>7}  {coma(1e3 * (t - c.incepcion), 1):>7}  {texto}"
        for t, texto in sorted(sucesos)
    ]


def informe_medidas(medidas: list[complex]) -> list[str]:
    lazo = impedancia_medida(medidas)
    distancia = lazo.imag / LINEA_Z1_OHM_KM.imag
    canales = [f"  {c.nombre}  {coma(abs(m), 1):>8} {c.unidad}" for c, m in zip(ANALOGICOS, medidas)]
    return [
        "MEDIDAS DURANTE LA FALTA (valores eficaces en primario, último ciclo antes de la apertura)",
        *canales,
        f"  Impedancia del lazo A-N:  {coma(lazo.real, 2)} + j{coma(lazo.imag, 2)} ohm",
        f"  Distancia a la falta:     {coma(distancia, 1)} km ({coma(100 * distancia / LONGITUD_KM, 1)} %)",
    ]


def informe_ajustes() -> list[str]:
    x1 = LINEA_Z1_OHM_KM.imag
    k0 = (LINEA_Z0_OHM_KM - LINEA_Z1_OHM_KM) / (3.0 * LINEA_Z1_OHM_KM)
    ajustes = [
        ("Frecuencia nominal", f"{coma(FRECUENCIA_HZ, 0)} Hz"),
        ("Relación de los TI", f"{coma(TI_PRIMARIO_A, 0)}/{coma(TI_SECUNDARIO_A, 0)} A"),
        ("Relación de los TT", f"{coma(TT_PRIMARIO_KV, 0)}/{coma(TT_SECUNDARIO_KV, 2)} kV"),
        ("Situación de los TT", "barras"),
        ("Longitud de la línea", f"{coma(LONGITUD_KM, 1)} km"),
        ("Resistencia directa", f"{coma(LINEA_Z1_OHM_KM.real, 3)} ohm/km"),
        ("Reactancia directa", f"{coma(x1, 3)} ohm/km"),
        ("Resistencia homopolar", f"{coma(LINEA_Z0_OHM_KM.real, 3)} ohm/km"),
        ("Reactancia homopolar", f"{coma(LINEA_Z0_OHM_KM.imag, 3)} ohm/km"),
        ("Compensación k0, módulo", coma(abs(k0), 2)),
        ("Compensación k0, ángulo", f"{coma(math.degrees(cmath.phase(k0)), 1)} grados"),
        ("Zona 1, reactancia", f"{coma(ALCANCE_ZONA_1_KM * x1, 2)} ohm"),
        ("Zona 1, resistencia a tierra", "20,00 ohm"),
        ("Zona 1, tiempo", "0,00 s"),
        ("Zona 2, reactancia", f"{coma(ALCANCE_ZONA_2_KM * x1, 2)} ohm"),
        ("Zona 2, resistencia a tierra", "25,00 ohm"),
        ("Zona 2, tiempo", "0,40 s"),
        ("Arranque de fase", "1,20 A secundarios"),
        ("Arranque de tierra", "0,20 A secundarios"),
        ("Esquema de teleprotección", "permisivo por subalcance"),
        ("Modo de disparo", "tripolar"),
        ("Reenganche", "un intento"),
        ("Tiempo de aislamiento", "0,40 s"),
        ("Orden de cierre", "0,12 s"),
        ("Tiempo de seguridad", "10,00 s"),
        ("Vigilancia de fusible de TT", "activa"),
        ("Frecuencia de muestreo", f"{MUESTREO_HZ} Hz"),
        ("Duración del registro", f"{coma(DURACION_S, 2)} s"),
        ("Tiempo previo al arranque", f"{coma(ARRANQUE_S, 2)} s"),
        ("Señal de arranque", "ARRANQUE A o ARRANQUE N"),
    ]
    return ["AJUSTES"] + [f"  {nombre:.<32} {valor}" for nombre, valor in ajustes]


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

TRIFASICOS = ((1, 2, 3, "Tensión en barras", "1"), (5, 6, 7, "Intensidad de línea", "1"))

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


def cnf() -> bytes:
    return en_lineas(
        [
            "ver 1.1",
            "Línea 1, 132 kV - plantilla de demostración (año 2023)",
            *plantilla_analogicos(),
            *plantilla_trifasicos(),
            *plantilla_digitales(),
            "-----",
        ]
    )


def cuenta(elementos) -> str:
    return f" {len(elementos)} "


def plantilla_analogicos() -> list[str]:
    canales = enumerate(zip(NOMBRES_ANALOGICOS, ANALOGICOS), 1)
    lineas = [f"{n}%{nombre}%{canal.circuito}%{canal.unidad}$" for n, (nombre, canal) in canales]
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


# --- The program ---------------------------------------------------------------------------------------


def ficheros() -> dict[str, bytes]:
    """Every file by its name."""
    circuito = Circuito()
    sucesos = cronologia(circuito)
    digitales = canales_digitales(sucesos)
    registro = muestras(circuito, digitales)
    informe = hdr(sucesos, registro)
    return {
        "falta_1997.cfg": cfg_1997(digitales, "ASCII"),
        "falta_1997.dat": dat_texto(registro),
        "falta_1997.hdr": informe,
        "falta_1997b.cfg": cfg_1997(digitales, "BINARY"),
        "falta_1997b.dat": dat_binario(registro),
        "falta_1997b.hdr": informe,
        "falta_1991.cfg": cfg_1991(digitales),
        "falta_1991.dat": dat_texto(registro),
        "falta_1991.hdr": informe,
        "falta.cnf": cnf(),
    }


def argumentos(lista: list[str] | None) -> argparse.Namespace:
    analizador = argparse.ArgumentParser(
        description="Writes the demonstration record (three forms) and its template.",
        epilog="The same version of the program always writes the same bytes.",
    )
    analizador.add_argument(
        "--carpeta",
        type=Path,
        default=Path(__file__).resolve().parent,
        help="folder for the files (by default, the program's own)",
    )
    analizador.add_argument(
        "--comprobar",
        action="store_true",
        help="write nothing; end with 1 if a file of the folder is missing or differs",
    )
    return analizador.parse_args(lista)


def difieren(carpeta: Path, contenidos: dict[str, bytes]) -> list[str]:
    def igual(ruta: Path, octetos: bytes) -> bool:
        return ruta.is_file() and ruta.read_bytes() == octetos

    return [nombre for nombre, octetos in contenidos.items() if not igual(carpeta / nombre, octetos)]


def main(lista: list[str] | None = None) -> int:
    opciones = argumentos(lista)
    contenidos = ficheros()
    if opciones.comprobar:
        distintos = difieren(opciones.carpeta, contenidos)
        for nombre in distintos:
            print(f"{nombre}: differs", file=sys.stderr)
        return 1 if distintos else 0
    opciones.carpeta.mkdir(parents=True, exist_ok=True)
    for nombre, octetos in contenidos.items():
        (opciones.carpeta / nombre).write_bytes(octetos)
    return 0


if __name__ == "__main__":
    sys.exit(main())
