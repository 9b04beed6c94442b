#include "platform/avi.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

#include "platform/errores.h"
#include "platform/ficheros.h"

namespace veldix {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kTamanoMaximo = std::size_t{64} << 20;
constexpr std::size_t kCuadrosMaximos = 65536;
constexpr std::int64_t kLadoMaximo = 16384;
constexpr int kAnidamientoMaximo = 4;

constexpr std::uint32_t Sigla(const char (&s)[5])
{
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i)
        v = v << 8 | static_cast<unsigned char>(s[i]);
    return v;
}

// Little-endian; the caller has checked that pos + 4 <= b.size().
std::uint32_t Entero(Bytes b, std::size_t pos)
{
    std::uint32_t v = 0;
    for (std::size_t i = 4; i-- > 0;)
        v = v << 8 | b[pos + i];
    return v;
}

// Gives visita(sigla, contents) every chunk of a list. False if one overruns the list or visita says so.
template <class Visita>
bool Recorre(Bytes lista, Visita visita)
{
    while (!lista.empty()) {
        if (lista.size() < 8) return false;
        const std::size_t tamano = Entero(lista, 4);
        if (tamano > lista.size() - 8) return false;
        if (!visita(Entero(lista, 0), lista.subspan(8, tamano))) return false;
        // Chunks are padded to even sizes; the padding of the last one may be left out.
        const std::size_t relleno = tamano % 2;
        lista = lista.subspan(std::min(lista.size(), 8 + tamano + relleno));
    }
    return true;
}

class Lector {
public:
    bool Lee(Bytes archivo)
    {
        return Recorre(archivo, [this](std::uint32_t sigla, Bytes b) {
            if (sigla != Sigla("LIST")) return true;
            if (b.size() < 4) return false;
            if (Entero(b, 0) == Sigla("hdrl")) return LeeCabecera(b.subspan(4));
            if (Entero(b, 0) == Sigla("movi")) return LeeCuadros(b.subspan(4), 0);
            return true;
        });
    }

    PeliculaAvi pelicula;

private:
    bool LeeCabecera(Bytes hdrl)
    {
        return Recorre(hdrl, [this](std::uint32_t sigla, Bytes b) {
            if (sigla == Sigla("avih")) {
                if (b.size() < 4) return false;
                microsegundos_ = Entero(b, 0);
            }
            if (sigla != Sigla("LIST")) return true;
            if (b.size() < 4) return false;
            return Entero(b, 0) != Sigla("strl") || LeeFlujo(b.subspan(4));
        });
    }

    bool LeeFlujo(Bytes strl)
    {
        Bytes strh, strf;
        const bool sano = Recorre(strl, [&](std::uint32_t sigla, Bytes b) {
            if (sigla == Sigla("strh")) strh = b;
            if (sigla == Sigla("strf")) strf = b;
            return true;
        });
        if (!sano || strh.size() < 28) return false;
        const int numero = flujos_++;
        if (video_ >= 0 || Entero(strh, 0) != Sigla("vids")) return true;
        video_ = numero;
        return LeeVideo(strh, strf);
    }

    bool LeeVideo(Bytes strh, Bytes strf)
    {
        if (strf.size() < 40 || Entero(strf, 16) != Sigla("MJPG")) return false;
        // The height is negative in films stored from the top down.
        const std::int64_t ancho = static_cast<std::int32_t>(Entero(strf, 4));
        const std::int64_t alto = std::llabs(static_cast<std::int32_t>(Entero(strf, 8)));
        if (ancho < 1 || ancho > kLadoMaximo || alto < 1 || alto > kLadoMaximo) return false;
        pelicula.ancho = static_cast<int>(ancho);
        pelicula.alto = static_cast<int>(alto);

        const double escala = Entero(strh, 20), ritmo = Entero(strh, 24);
        double& ms = pelicula.milisegundosPorCuadro;
        ms = escala > 0 && ritmo > 0 ? 1000 * escala / ritmo : microsegundos_ / 1000.0;
        return ms >= 1 && ms <= 60000;
    }

    // The chunks of stream 7 are called 07dc or 07db.
    bool EsDelVideo(std::uint32_t sigla) const
    {
        const auto cifras = static_cast<std::uint32_t>(('0' + video_ / 10) | ('0' + video_ % 10) << 8);
        const std::uint32_t clase = sigla >> 16;
        return (sigla & 0xffff) == cifras &&
               (clase == Sigla("dc  ") % 65536 || clase == Sigla("db  ") % 65536);
    }

    bool LeeCuadros(Bytes movi, int nivel)
    {
        if (video_ < 0 || nivel > kAnidamientoMaximo) return false;
        return Recorre(movi, [this, nivel](std::uint32_t sigla, Bytes b) {
            if (sigla == Sigla("LIST")) return b.size() >= 4 && LeeCuadros(b.subspan(4), nivel + 1);
            auto& cuadros = pelicula.cuadros;
            if (!EsDelVideo(sigla) || (b.empty() && cuadros.empty())) return true;
            cuadros.emplace_back(b.begin(), b.end());
            return cuadros.size() <= kCuadrosMaximos;
        });
    }

    std::uint32_t microsegundos_ = 0;
    int flujos_ = 0;
    int video_ = -1;
};

}  // namespace

std::optional<PeliculaAvi> InterpretaAvi(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() < 12 || bytes.size() > kTamanoMaximo) return std::nullopt;
    if (Entero(bytes, 0) != Sigla("RIFF") || Entero(bytes, 8) != Sigla("AVI ")) return std::nullopt;
    const std::size_t tamano = Entero(bytes, 4);
    if (tamano < 4 || tamano > bytes.size() - 8) return std::nullopt;
    Lector lector;
    if (!lector.Lee(bytes.subspan(12, tamano - 4)) || lector.pelicula.cuadros.empty()) return std::nullopt;
    return std::move(lector.pelicula);
}

std::optional<PeliculaAvi> LeeAvi(const std::string& ruta)
{
    std::string octetos;
    if (!ExisteFichero(ruta) || !Intenta([&] { octetos = LeeOctetos(ruta); })) return std::nullopt;
    return InterpretaAvi({reinterpret_cast<const std::uint8_t*>(octetos.data()), octetos.size()});
}

}  // namespace veldix
