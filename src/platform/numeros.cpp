#include "platform/numeros.h"

#include <langinfo.h>

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "platform/enteros.h"
#include "platform/errores.h"
#include "platform/texto.h"

namespace veldix {

namespace {

bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

Separadores LeeSeparadores()
{
    const locale_t l = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (l == nullptr) return {};
    Separadores s{nl_langinfo_l(RADIXCHAR, l), nl_langinfo_l(THOUSEP, l)};
    freelocale(l);
    if (s.decimal.empty()) s.decimal = ".";
    return s;
}

Separadores& Guardados()
{
    static Separadores s = LeeSeparadores();
    return s;
}

/// The number of a text of the form [-]digits[.digits][e[+-]digits], infinite where it overflows.
double DesdePlano(const std::string& plano)
{
    double v = 0.0;
    const auto r = std::from_chars(plano.data(), plano.data() + plano.size(), v);
    if (r.ec != std::errc::result_out_of_range) return v;
    // from_chars does not tell overflow from underflow; strtod does.
    static const locale_t kPunto = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(plano.c_str(), nullptr, kPunto);
}

/// Digits of an exponent behind position `i` of an e or d: where they end, or `i` where there are none.
std::size_t FinExponente(std::string_view t, std::size_t i)
{
    if (i >= t.size() || std::string_view("eEdD").find(t[i]) == std::string_view::npos) return i;
    std::size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
    const std::size_t primera = j;
    while (j < t.size() && EsCifra(t[j]))
        ++j;
    return j == primera ? i : j;
}

/// The exponent t[i..fin) in the form that from_chars takes: "e", no plus.
void AnadeExponente(std::string& plano, std::string_view t, std::size_t i, std::size_t fin)
{
    if (fin == i) return;
    plano += 'e';
    ++i;
    if (t[i] == '+') ++i;
    plano.append(t.substr(i, fin - i));
}

/// The text of the locale's number as plain digits, nothing where it is none.
std::optional<std::string> PlanoLocal(std::string_view texto, const Separadores& s)
{
    const std::string_view t = Recorta(texto);
    std::string plano;
    std::size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) {
        if (t[i] == '-') plano += '-';
        ++i;
    }
    bool cifras = false, punto = false;
    while (i < t.size()) {
        if (EsCifra(t[i])) {
            cifras = true;
            plano += t[i++];
        } else if (!punto && t.substr(i).starts_with(s.decimal)) {
            punto = true;
            plano += '.';
            i += s.decimal.size();
        } else if (cifras && !punto && !s.grupo.empty() && t.substr(i).starts_with(s.grupo)) {
            i += s.grupo.size();
        } else {
            break;
        }
    }
    if (!cifras) return std::nullopt;
    const std::size_t fin = FinExponente(t, i);
    if (fin != t.size()) return std::nullopt;
    AnadeExponente(plano, t, i, fin);
    return plano;
}

constexpr std::array<double, 23> kPotencias = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// mantissa / 10^decimals as float32 with a single rounding; nullopt where a double in between could round
/// twice. The mantissa is below 2^53, so that quotient is the correctly rounded double.
std::optional<float> Compone(std::uint64_t mantisa, int decimales, bool negativo)
{
    const double d = static_cast<double>(mantisa) / kPotencias[static_cast<std::size_t>(decimales)];
    // Only a double that lies just half way between two float32 hides on which side of it the number was.
    // Quotients are at least 1e-15, so that every float32 here is a normal one.
    constexpr std::uint64_t kRestoDeSingle = 0x1FFFFFFFU, kMitad = 0x10000000U;
    if ((std::bit_cast<std::uint64_t>(d) & kRestoDeSingle) == kMitad) return std::nullopt;
    const auto f = static_cast<float>(d);
    return negativo ? -f : f;
}

/// The field by the general road.
std::optional<float> CampoGeneral(std::string_view campo, const Separadores& s)
{
    const auto plano = PlanoLocal(campo, s);
    if (!plano) return std::nullopt;
    float v = 0.0F;
    const auto r = std::from_chars(plano->data(), plano->data() + plano->size(), v);
    if (r.ec == std::errc()) return v;
    const double d = DesdePlano(*plano);
    if (std::fabs(d) < 1.0) return std::signbit(d) ? -0.0F : 0.0F;
    return std::nullopt;
}

/// All digits of a finite non-negative double, with `decimales` places, exact and unrounded further.
std::string CifrasExactas(double v)
{
    std::string t(1500, '\0');
    const auto r = std::to_chars(t.data(), t.data() + t.size(), v, std::chars_format::fixed, 1100);
    t.resize(static_cast<std::size_t>(r.ptr - t.data()));
    return t;
}

/// Adds one unit to the last place of a decimal text of digits and at most one point.
void SumaUnidad(std::string& t)
{
    for (std::size_t i = t.size(); i-- > 0;) {
        if (t[i] == '.') continue;
        if (t[i] != '9') {
            ++t[i];
            return;
        }
        t[i] = '0';
    }
    t.insert(t.begin(), '1');
}

std::string Cientifico(std::string t)
{
    const std::size_t e = t.find('e');
    if (e == std::string::npos) return t;
    std::string exponente = t.substr(e + 2);
    if (exponente.size() < 2) exponente.insert(exponente.begin(), '0');
    return t.substr(0, e) + "E" + t[e + 1] + exponente;
}

template <class T>
std::string TextoCifras(T valor, int cifras)
{
    std::array<char, 64> b{};
    const auto r = std::to_chars(b.data(), b.data() + b.size(), valor, std::chars_format::general, cifras);
    std::string t = Cientifico(std::string(b.data(), r.ptr));
    if (const std::size_t p = t.find('.'); p != std::string::npos)
        t.replace(p, 1, SeparadoresSistema().decimal);
    return t;
}

}  // namespace

const Separadores& SeparadoresSistema()
{
    return Guardados();
}

void PonSeparadores(std::optional<Separadores> nuevos)
{
    Guardados() = nuevos ? std::move(*nuevos) : LeeSeparadores();
}

double Val(std::string_view texto)
{
    std::size_t i = 0;
    while (i < texto.size() && texto[i] == ' ')
        ++i;
    std::string plano;
    if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
        if (texto[i] == '-') plano += '-';
        ++i;
    }
    bool cifras = false, punto = false;
    for (; i < texto.size() && (EsCifra(texto[i]) || (texto[i] == '.' && !punto)); ++i) {
        punto = punto || texto[i] == '.';
        cifras = cifras || EsCifra(texto[i]);
        plano += texto[i];
    }
    if (!cifras) return 0.0;
    AnadeExponente(plano, texto, i, FinExponente(texto, i));
    return DesdePlano(plano);
}

float TolVal(std::string_view texto)
{
    std::string t(Recorta(texto));
    if (t.find('.') == std::string::npos)
        if (const std::size_t coma = t.find(','); coma != std::string::npos) t[coma] = '.';
    return Single(Val(t));
}

double NumeroLocal(std::string_view texto)
{
    const auto plano = PlanoLocal(texto, SeparadoresSistema());
    if (!plano) Lanza(error::kTipos);
    const double v = DesdePlano(*plano);
    if (!std::isfinite(v)) Lanza(error::kDesbordamiento);
    return v;
}

std::optional<std::int16_t> CampoEntero16(std::string_view campo, const Separadores& s)
{
    const auto plano = PlanoLocal(campo, s);
    const double v = plano ? std::nearbyint(DesdePlano(*plano)) : std::numeric_limits<double>::infinity();
    if (v < -32768.0 || v > 32767.0) return std::nullopt;
    return static_cast<std::int16_t>(v);
}

std::int16_t Entero16Local(std::string_view texto)
{
    return Entero16(NumeroLocal(texto));
}

std::optional<float> CampoSingle(std::string_view campo, const Separadores& s)
{
    const char* p = campo.data();
    const char* const fin = p + campo.size();
    while (p != fin && *p == ' ')
        ++p;
    const bool negativo = p != fin && *p == '-';
    if (negativo) ++p;
    if (s.decimal.size() != 1) return CampoGeneral(campo, s);
    const char decimal = s.decimal[0];
    std::uint64_t mantisa = 0;
    int cifras = 0;
    const char* punto = nullptr;
    for (; p != fin; ++p) {
        const auto c = static_cast<unsigned>(*p - '0');
        if (c <= 9) {
            mantisa = mantisa * 10 + c;
            ++cifras;
        } else if (*p == decimal && punto == nullptr) {
            punto = p;
        } else {
            break;
        }
    }
    const auto decimales = punto == nullptr ? 0 : static_cast<int>(p - punto) - 1;
    while (p != fin && *p == ' ')
        ++p;
    if (p != fin || cifras == 0 || cifras > 15) return CampoGeneral(campo, s);
    const std::optional<float> v = Compone(mantisa, decimales, negativo);
    return v ? v : CampoGeneral(campo, s);
}

std::string FormaImpresa(std::int32_t valor)
{
    return (valor < 0 ? "" : " ") + std::to_string(valor) + " ";
}

std::string FormaDelimitada(std::int32_t valor)
{
    return std::to_string(valor);
}

std::string Mascara(double valor, std::string_view mascara)
{
    if (!std::isfinite(valor)) Lanza(error::kDesbordamiento);
    const std::size_t punto = mascara.find('.');
    const std::string_view enteros = mascara.substr(0, punto);
    const std::string_view detras =
        punto == std::string_view::npos ? std::string_view{} : mascara.substr(punto + 1);
    std::string t = CifrasExactas(std::fabs(valor));
    const std::size_t corte = t.find('.') + 1 + detras.size();
    const bool sube = t[corte] >= '5';
    t.resize(corte);
    if (sube) SumaUnidad(t);

    const std::size_t p = t.find('.');
    std::string izquierda = t.substr(0, p), derecha = t.substr(p + 1);
    if (izquierda == "0" && enteros.find('0') == std::string_view::npos) izquierda.clear();
    while (!derecha.empty() && derecha.back() == '0' && detras[derecha.size() - 1] == '#')
        derecha.pop_back();
    const bool nada = t.find_first_of("123456789") == std::string::npos;
    std::string r = valor < 0.0 && !nada ? "-" : "";
    r += izquierda;
    if (punto != std::string_view::npos) r += SeparadoresSistema().decimal;
    return r + derecha;
}

std::string TextoDouble(double valor)
{
    return TextoCifras(valor, 15);
}
std::string TextoSingle(float valor)
{
    return TextoCifras(valor, 7);
}

std::string TextoExacto(float valor)
{
    const float m = std::fabs(valor);
    const bool plano = m == 0.0F || (m >= 1e-5F && m < 1e9F);
    std::array<char, 64> b{};
    const auto r = std::to_chars(b.data(), b.data() + b.size(), valor,
                                 plano ? std::chars_format::fixed : std::chars_format::scientific);
    return {b.data(), r.ptr};
}

}  // namespace veldix
