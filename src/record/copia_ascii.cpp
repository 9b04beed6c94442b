#include "record/copia_ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <vector>

#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "record/avance.h"
#include "record/lector_muestras.h"

namespace veldix {

namespace {

namespace fs = std::filesystem;

/// The path of the copy without extension: that of a record which is there keeps its spelling, so that the
/// three files stay together.
std::string TroncoCopia(const RecordStore& s)
{
    const std::string hallado = BuscaSinCaja(s.FicheroAscii + ".DAT");
    const bool otro = !ExisteFichero(BuscaExtension(s.FicheroAscii, ".DAT")) && ExisteFichero(hallado);
    return otro ? std::string(SinFinal(hallado, 4)) : s.FicheroAscii;
}

std::string RutaCopia(const RecordStore& s, std::string_view extension)
{
    return BuscaExtension(TroncoCopia(s), extension);
}

/// A file beside the `.dat`, as the copy looks for it.
std::string RutaOrigen(const RecordStore& s, const char* extension)
{
    return BuscaSinCaja(std::string(SinFinal(s.FicheroDat, 3)) + extension);
}

/// The system tells a missing file and a missing folder alike; of the record, either is the file.
const std::string& ExigeOrigen(const std::string& ruta)
{
    if (!ExisteFichero(ruta)) Lanza(error::kFicheroNoEncontrado);
    return ruta;
}

bool MismoFichero(const std::string& a, const std::string& b)
{
    std::error_code fallo;
    return !a.empty() && !b.empty() && fs::equivalent(a, b, fallo) && !fallo;
}

/// The copy has the record's own name, case apart, though no file of it need be the record's.
bool TieneSuNombre(const RecordStore& s)
{
    std::string tronco(SinFinal(s.FicheroDat, 3));
    if (tronco.ends_with('.')) tronco.pop_back();
    const std::string carpeta = CarpetaDe(tronco), destino = CarpetaDe(s.FicheroAscii);
    return IgualSinCaja(NombreDe(tronco), NombreDe(s.FicheroAscii)) &&
           MismoFichero(carpeta.empty() ? "." : carpeta, destino.empty() ? "." : destino);
}

/// A file of the copy is one of the record's, through a link or since the dialog opens "r.v2.dat" with
/// "r.cfg".
bool PisaSusFicheros(const RecordStore& s)
{
    const std::array propios{s.FicheroDat, s.FicheroCfg, s.FicheroHdr, RutaOrigen(s, "cfg"),
                             RutaOrigen(s, "hdr")};
    return std::ranges::any_of(std::array{".DAT", ".cfg", ".hdr"}, [&](const char* extension) {
        const std::string copia = RutaCopia(s, extension);
        return std::ranges::any_of(propios, [&](const auto& propio) { return MismoFichero(copia, propio); });
    });
}

template <class T>
void Vacia(Tabla2<T>& tabla)
{
    const int filas = tabla.Filas(), columnas = tabla.Columnas();
    tabla = {};
    Intenta([&] { tabla = Tabla2<T>(filas, columnas); });
}

/// The bar of a conversion; it goes however that ends.
class Gasolino2 {
public:
    explicit Gasolino2(int maximo) : maximo_(maximo) { ganchosRegistro.MuestraGasolino2(maximo); }
    ~Gasolino2()
    {
        Intenta([&] { ganchosRegistro.PonGasolino2(maximo_); });
        Intenta([] { ganchosRegistro.DescargaGasolino2(); });
    }
    Gasolino2(const Gasolino2&) = delete;
    Gasolino2& operator=(const Gasolino2&) = delete;

private:
    int maximo_;
};

template <class T>
T Toma(const unsigned char* de)
{
    T valor;
    std::memcpy(&valor, de, sizeof valor);
    return valor;
}

/// One sample as a line: a blank, number, time stamp, raw values and states, a comma between any two.
class LineaAscii {
public:
    LineaAscii(int analogicos, int digitales) : analogicos_(analogicos), digitales_(digitales)
    {
        constexpr std::size_t kEntero32 = 12, kEntero16 = 7, kEstado = 2;  // with their comma
        texto_.resize(3 + 2 * kEntero32 + kEntero16 * static_cast<std::size_t>(analogicos) +
                      kEstado * static_cast<std::size_t>(digitales));
        texto_[0] = ' ';
    }

    /// The line of a sample's octets, with its end; until the next one is asked for.
    std::string_view De(const unsigned char* p)
    {
        fin_ = texto_.data() + 1;
        Pon(Toma<std::int32_t>(p));
        Pon(Toma<std::int32_t>(p + 4));
        p += LectorMuestras::kCabecera;
        for (int c = 0; c < analogicos_; ++c, p += 2)
            Pon(Toma<std::int16_t>(p));
        for (int k = 0; k < digitales_; ++k) {
            *fin_++ = static_cast<char>('0' + (static_cast<unsigned>(p[k / 8]) >> (k % 8) & 1U));
            *fin_++ = ',';
        }
        fin_[-1] = '\r';  // over the last comma
        *fin_++ = '\n';
        return {texto_.data(), static_cast<std::size_t>(fin_ - texto_.data())};
    }

private:
    void Pon(std::int32_t valor)
    {
        fin_ = std::to_chars(fin_, texto_.data() + texto_.size(), valor).ptr;
        *fin_++ = ',';
    }

    int analogicos_, digitales_;
    std::vector<char> texto_;
    char* fin_ = nullptr;
};

void EscribeLineas(const RecordStore& s, FicheroNuevo& copia)
{
    const int muestras = s.Muestras.Filas(), analogicos = s.Muestras.Columnas();
    const int digitales = std::max<int>(s.NumDigital, 0);
    const Gasolino2 gasolino(muestras);
    LectorMuestras fichero(ExigeOrigen(s.FicheroDat), analogicos, digitales);
    LineaAscii linea(analogicos, digitales);
    std::string trozo;
    for (int i = 1; i <= muestras; ++i) {
        const unsigned char* muestra = fichero.Lee();
        if (muestra == nullptr) break;
        trozo.append(linea.De(muestra));
        if (trozo.size() >= kTrozo) {
            copia.Escribe(trozo);
            trozo.clear();
        }
        ganchosRegistro.PonGasolino2(i);
    }
    copia.Escribe(trozo);
}

/// Puts the lines of an ASCII record over the last ones of a `.cfg`. The number of the error that keeps it
/// from doing so, else 0.
int ReescribeFinal(std::string& cfg, const RecordStore& s)
{
    constexpr std::size_t kFinal1991 = 8;   // BINARY with its line end
    constexpr std::size_t kFinal1997 = 11;  // and a multiplier of one digit with its own
    const bool es1991 = s.RevisionCfg == "1991";
    if (cfg.size() > 32767) return error::kDesbordamiento;
    if (!es1991 && s.RevisionCfg != "1997") return 0;
    const std::size_t antiguo = es1991 ? kFinal1991 : kFinal1997;
    if (cfg.size() < antiguo) return error::kArgumento;
    cfg.resize(cfg.size() - antiguo);
    // Each print ends its own line too: "ASCII", CR, LF and "ASCII", CR, then the multiplier, CR, LF.
    cfg += es1991 ? "ASCII\r\n\r\n" : "ASCII\r\r\n" + FormaDelimitada(s.TimeMult) + "\r\n\r\n";
    return 0;
}

}  // namespace

bool TieneNombre(const std::string& tronco)
{
    const std::string nombre = NombreDe(tronco);
    return !nombre.empty() && nombre != "." && nombre != "..";
}

bool ExisteCopia(const RecordStore& s)
{
    return ExisteFichero(RutaCopia(s, ".DAT"));
}

void ConvierteAscii(RecordStore& s)
{
    if (!TieneNombre(s.FicheroAscii)) Lanza(error::kNombreFichero);
    if (TieneSuNombre(s) || PisaSusFicheros(s)) Lanza(error::kFicheroAbierto);
    FicherosNuevos copia;
    EscribeAsciiDat(s, copia);
    const int fallo = CopiaCabecera(s, copia);
    copia.Confirma();
    if (fallo != 0) Lanza(fallo);
}

void EscribeAsciiDat(RecordStore& s, FicherosNuevos& copia)
{
    if (s.ConvierteYSale) {
        Vacia(s.Muestras);
        Vacia(s.MuestrasPrim);
        Vacia(s.MuestrasSec);
        Vacia(s.MuestrasDig);
    }
    EscribeLineas(s, copia.Abre(RutaCopia(s, ".DAT")));
}

int CopiaCabecera(const RecordStore& s, FicherosNuevos& copia)
{
    const std::string hdr = RutaOrigen(s, "hdr");
    if (ExisteFichero(hdr)) Copia(hdr, copia.Abre(RutaCopia(s, ".hdr")));
    std::string cfg = Une(Lineas(LeeOctetos(ExigeOrigen(RutaOrigen(s, "cfg")))));
    const int fallo = ReescribeFinal(cfg, s);
    copia.Abre(RutaCopia(s, ".cfg")).Escribe(cfg);
    return fallo;
}

}  // namespace veldix
