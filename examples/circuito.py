"""The circuit of the demonstration record, solved in closed form.

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

import cmath
import math
from dataclasses import dataclass, replace

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
