#include "record/leer_cfg.h"

#include <optional>

#include "platform/codigos.h"
#include "platform/enteros.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/texto.h"

namespace veldix {

namespace {

constexpr std::size_t kNo = std::string_view::npos;

/// The fields of a line, each ended by a comma. A field that has none ends the walk: it and those behind it
/// are not there.
class Campos {
public:
    explicit Campos(std::string_view linea) : resto_(linea) {}

    std::optional<std::string_view> Siguiente()
    {
        const std::size_t coma = vivo_ ? resto_.find(',') : kNo;
        if (coma == kNo) {
            vivo_ = false;
            return std::nullopt;
        }
        const std::string_view campo = resto_.substr(0, coma);
        resto_.remove_prefix(coma + 1);
        return campo;
    }

    /// All that follows the last comma passed.
    std::optional<std::string_view> Resto() const
    {
        return vivo_ ? std::optional<std::string_view>(resto_) : std::nullopt;
    }

private:
    std::string_view resto_;
    bool vivo_ = true;
};

void TomaSingle(float& destino, std::optional<std::string_view> campo)
{
    if (campo) Intenta([&] { destino = TolVal(*campo); });
}

void Toma16(std::int16_t& destino, std::optional<std::string_view> campo)
{
    if (campo) Intenta([&] { destino = Entero16(TolVal(*campo)); });
}

/// The record's text, line by line.
class Lector {
public:
    explicit Lector(const std::string& ruta) : lineas_(Abre(ruta)) {}

    /// False behind the last line: what it would have given keeps its value.
    bool Avanza()
    {
        if (lineas_.Fin()) return false;
        linea = lineas_.Lee();
        return true;
    }
    std::string linea;

private:
    static std::string Abre(const std::string& ruta)
    {
        std::string texto;
        Intenta([&] { texto = DesdeUtf8OPagina(LeeOctetos(ruta)); });
        return texto;
    }
    LectorLineas lineas_;
};

/// The separator probe: which decimal separator the system writes.
void SondaDecimal(RecordStore& s)
{
    if (Mascara(0.0, "#.0").find('.') != std::string::npos)
        s.DecimalPunto = true;
    else
        s.DecimalComa = false;
}

/// Station and revision. False where the year is refused.
bool LeeLinea1(RecordStore& s, std::string_view linea)
{
    const std::size_t p = linea.find(',');
    if (p != kNo) {
        s.NombreEstacion = linea.substr(0, p);
        s.EstacionPlan = s.NombreEstacion;
    }
    const std::size_t q = p == kNo ? kNo : linea.find(',', p + 1);
    if (q == kNo || q + 1 == linea.size()) {
        s.RevisionCfg = "1991";
        return true;
    }
    s.AnioCfg = linea.substr(q + 1);
    if (Recorta(s.AnioCfg) != "1997") {
        s.AnioMal = true;
        return false;
    }
    s.RevisionCfg = "1997";
    return true;
}

/// The counts "TT,nnA,nnD". The letters are dropped unseen, and the search for the comma behind the analog
/// count begins one character late, so that an empty count swallows it.
void LeeLinea2(RecordStore& s, std::string_view linea)
{
    const std::size_t p = linea.find(',');
    if (p == kNo) return;
    Intenta([&] { s.NumCanales = Entero16Local(linea.substr(0, p)); });
    const std::size_t q = linea.find(',', p + 2);
    if (q == kNo) return;
    Intenta([&] { s.NumAnalog = Entero16Local(SinFinal(linea.substr(p + 1, q - p - 1), 1)); });
    Intenta([&] { s.NumDigital = Entero16Local(SinFinal(linea.substr(q + 1), 1)); });
}

/// A fresh table; none for a count below 1, so that nothing of an earlier record is left under this one.
template <class T>
void Dimensiona(Tabla1<T>& tabla, std::int16_t n)
{
    tabla = {};
    Intenta([&] { tabla = Tabla1<T>(n); });
}

void DimensionaCanales(RecordStore& s)
{
    s.NumAnalogPlan = s.NumAnalog;
    s.NumDigitalPlan = s.NumDigital;
    // Choosers list the record's own channels until a template replaces them.
    s.NumCanalAnalog = s.NumAnalog;
    Dimensiona(s.FactorA, s.NumAnalog);
    Dimensiona(s.FactorB, s.NumAnalog);
    Dimensiona(s.Skew, s.NumAnalog);
    Dimensiona(s.Canales, s.NumAnalog);
    Dimensiona(s.CanalesPlan, s.NumAnalog);
    Dimensiona(s.Relacion, s.RevisionCfg == "1997" ? s.NumAnalog : std::int16_t{0});
    Dimensiona(s.NombreDig, s.NumDigital);
}

void TomaTexto(std::string& uno, std::string& otro, std::optional<std::string_view> campo)
{
    if (!campo) return;
    uno = *campo;
    otro = *campo;
}

/// The value plus 1 as plain digits; a text that is no number stays.
void Sube(std::string& numero)
{
    Intenta([&] { numero = FormaDelimitada(int{Entero16Local(numero)} + 1); });
}

bool EsCero(const std::string& numero)
{
    return CampoSingle(numero, SeparadoresSistema()) == 0.0F;
}

/// One analog line. `desdeCero` stays raised from the line where channel 1 turns out to be numbered 0.
void LeeAnalogico(RecordStore& s, int ch, std::string_view linea, bool& desdeCero)
{
    FilaCanal& canal = s.Canales(ch);
    FilaCanal& plan = s.CanalesPlan(ch);
    Campos campos(linea);
    TomaTexto(canal.Numero, plan.Numero, campos.Siguiente());
    if (EsCero(s.Canales(1).Numero)) desdeCero = true;
    if (desdeCero) {
        Sube(canal.Numero);
        plan.Numero = canal.Numero;
    }
    TomaTexto(canal.Nombre, plan.Nombre, campos.Siguiente());
    campos.Siguiente();  // phase
    TomaTexto(canal.Circuito, plan.Circuito, campos.Siguiente());
    TomaTexto(canal.Unidades, plan.Unidades, campos.Siguiente());
    TomaSingle(s.FactorA(ch), campos.Siguiente());
    TomaSingle(s.FactorB(ch), campos.Siguiente());
    TomaSingle(s.Skew(ch), campos.Siguiente());
    if (s.RevisionCfg != "1997") return;
    campos.Siguiente();  // least and greatest raw value
    campos.Siguiente();
    FilaRelacion& relacion = s.Relacion(ch);
    TomaSingle(relacion.Primario, campos.Siguiente());
    TomaSingle(relacion.Secundario, campos.Siguiente());
    if (const auto lado = campos.Resto()) relacion.Lado = *lado;
}

/// The name of a digital line. The comma that ends it is sought from its second character on, so that an
/// empty name runs to the third comma.
void LeeDigital(RecordStore& s, int i, std::string_view linea)
{
    const std::size_t inicio = linea.find(',');
    if (inicio == kNo) return;
    const std::size_t fin = linea.find(',', inicio + 2);
    if (fin == kNo) return;
    s.NombreDig(i) = linea.substr(inicio + 1, fin - inicio - 1);
}

void LeeFrecuencias(RecordStore& s, Lector& lector)
{
    const auto n = s.NumFrecuencias > 0 ? s.NumFrecuencias : std::int16_t{1};
    Dimensiona(s.FrecMuestras, n);
    Dimensiona(s.UltimaMuestra, n);
    for (int i = 1; i <= n && lector.Avanza(); ++i) {
        Campos campos(lector.linea);
        Toma16(s.FrecMuestras(i), campos.Siguiente());
        Toma16(s.UltimaMuestra(i), campos.Resto());
    }
}

/// Everything behind the channel lines.
void LeeFinal(RecordStore& s, Lector& lector)
{
    if (lector.Avanza()) Toma16(s.FrecLinea, lector.linea);
    if (lector.Avanza()) Toma16(s.NumFrecuencias, lector.linea);
    LeeFrecuencias(s, lector);
    if (lector.Avanza()) s.FechaInicio = lector.linea;
    if (lector.Avanza()) s.FechaDisparo = lector.linea;
    if (lector.Avanza()) s.FormatoDat = lector.linea;
    if (s.RevisionCfg == "1997" && lector.Avanza()) Toma16(s.TimeMult, lector.linea);
}

}  // namespace

void LeerCfg(RecordStore& s)
{
    SondaDecimal(s);
    s.FormatoDat.clear();
    s.TimeMult = 0;
    s.AnioCfg.clear();
    s.AnioMal = false;
    s.ErrorFormato = false;

    Lector lector(s.FicheroCfg);
    const std::string primera = lector.Avanza() ? lector.linea : std::string();
    if (!LeeLinea1(s, primera)) return;
    if (lector.Avanza()) LeeLinea2(s, lector.linea);
    DimensionaCanales(s);
    bool desdeCero = false;
    for (int ch = 1; ch <= s.NumAnalog && lector.Avanza(); ++ch)
        Intenta([&] { LeeAnalogico(s, ch, lector.linea, desdeCero); });
    for (int i = 1; i <= s.NumDigital && lector.Avanza(); ++i)
        Intenta([&] { LeeDigital(s, i, lector.linea); });
    LeeFinal(s, lector);
}

}  // namespace veldix
