#include "record/disparo.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <string_view>

#include "platform/texto.h"

namespace veldix {

namespace {

/// Takes a number off the front of a text, and the separator behind it.
std::optional<double> Toma(std::string_view& texto, char separador)
{
    texto = Recorta(texto);
    double valor = 0.0;
    const auto [fin, fallo] =
        std::from_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::fixed);
    if (fallo != std::errc() || !(valor >= 0.0)) return std::nullopt;  // neither nan
    texto.remove_prefix(static_cast<std::size_t>(fin - texto.data()));
    texto = Recorta(texto);
    if (separador == '\0') return texto.empty() ? std::optional(valor) : std::nullopt;
    if (texto.empty() || texto.front() != separador) return std::nullopt;
    texto.remove_prefix(1);
    return valor;
}

/// Microseconds of "dd/mm/yyyy,hh:mm:ss.ssssss", of "mm/dd/yy,..." for revision 1991, from a fixed day.
std::optional<double> Microsegundos(std::string_view texto, bool mesPrimero)
{
    const char separadores[] = {'/', '/', ',', ':', ':', '\0'};
    double campos[6];
    for (int i = 0; i < 6; ++i) {
        const auto campo = Toma(texto, separadores[i]);
        if (!campo) return std::nullopt;
        campos[i] = *campo;
    }
    if (campos[0] > 31.0 || campos[1] > 31.0 || campos[2] > 9999.0) return std::nullopt;
    using namespace std::chrono;
    const int siglo = campos[2] >= 100.0 ? 0 : (campos[2] >= 70.0 ? 1900 : 2000);  // of a year of two digits
    const year_month_day fecha{year(siglo + static_cast<int>(campos[2])),
                               month(static_cast<unsigned>(campos[mesPrimero ? 0 : 1])),
                               day(static_cast<unsigned>(campos[mesPrimero ? 1 : 0]))};
    if (!fecha.ok() || campos[3] >= 24.0 || campos[4] >= 60.0 || campos[5] >= 61.0) return std::nullopt;
    const double dias = static_cast<double>(sys_days(fecha).time_since_epoch().count());
    return ((dias * 24.0 + campos[3]) * 60.0 + campos[4]) * 60e6 + campos[5] * 1e6;
}

}  // namespace

std::optional<int> MuestraDeDisparo(const RecordStore& s)
{
    const bool mesPrimero = s.RevisionCfg != "1997";
    const auto inicio = Microsegundos(s.FechaInicio, mesPrimero),
               disparo = Microsegundos(s.FechaDisparo, mesPrimero);
    const int ultima = s.Muestras.Vacia() ? 0 : s.Muestras.UBound(1);
    if (!inicio || !disparo || ultima < 1) return std::nullopt;
    const double espera = *disparo - *inicio;
    const bool marcas = s.Tiempos.Cuantos() >= ultima && s.Tiempos(ultima) > s.Tiempos(1);
    const int porSegundo = MuestrasPorSegundo(s);
    if (!marcas && porSegundo <= 0) return std::nullopt;
    // An ASCII reading has the multiplier in its stamps.
    const double factor = s.TimeMult > 0 && s.FormatoDat != "ASCII" ? s.TimeMult : 1.0;
    int mejor = 1;
    double menor = std::abs(espera);
    for (int i = 2; i <= ultima; ++i) {
        const double t =
            marcas ? (static_cast<double>(s.Tiempos(i)) - s.Tiempos(1)) * factor : (i - 1) * 1e6 / porSegundo;
        if (std::abs(t - espera) >= menor) continue;
        menor = std::abs(t - espera);
        mejor = i;
    }
    return mejor;
}

}  // namespace veldix
