#include "record/abrir_registro.h"

#include "platform/avisos.h"
#include "platform/ficheros.h"
#include "platform/texto.h"
#include "platform/textos.h"
#include "record/avance.h"
#include "record/leer_cfg.h"
#include "record/leer_dat.h"

namespace veldix {

namespace {

std::string SiExiste(const std::string& ruta)
{
    const std::string hallada = BuscaSinCaja(ruta);
    return ExisteFichero(hallada) ? hallada : std::string();
}

/// The gauge while a record opens; it goes however that ends.
struct Gasolino {
    Gasolino() { ganchosRegistro.MuestraGasolino(); }
    ~Gasolino()
    {
        Intenta([] { ganchosRegistro.DescargaGasolino(); });
    }
    Gasolino(const Gasolino&) = delete;
    Gasolino& operator=(const Gasolino&) = delete;
};

/// Neither word, or a refused year.
std::int16_t Rechaza(RecordStore& s)
{
    if (s.AnioMal) {
        Avisa(".cfg COMTRADE file is not OK, you must check the year of revision ");
        return -1;
    }
    // No view may show the curves of the record before under the names of this one.
    BorraMuestras(s);
    s.ErrorFormato = true;
    Avisa(Textos(277));
    return -1;
}

}  // namespace

std::int16_t AbrirRegistro(RecordStore& s)
{
    const Gasolino gasolino;
    ganchosRegistro.LlenarGasolino(true, 0);
    LeerCfg(s);
    ganchosRegistro.LlenarGasolino(true, 5);
    s.FormatoDat = Mayusculas(Recorta(s.FormatoDat));
    std::int16_t resultado = -1;
    if (s.FormatoDat == "ASCII")
        resultado = LeerDatAscii(s);
    else if (s.FormatoDat == "BINARY")
        resultado = LeerDatBin(s);
    else
        resultado = Rechaza(s);
    if (resultado >= 0) ganchosRegistro.EscribeSesion();
    return resultado;
}

void NombraPorTronco(RecordStore& s, const std::string& dat)
{
    const std::string tronco(SinFinal(dat, 3));
    s.FicheroDat = ExisteFichero(dat) ? dat : std::string();
    s.FicheroCfg = SiExiste(tronco + "cfg");
    s.FicheroHdr = SiExiste(tronco + "hdr");
}

void NombraPorTitulo(RecordStore& s, const std::string& dat)
{
    const std::string titulo = NombreDe(dat);
    const std::string carpeta = dat.substr(0, dat.size() - titulo.size());
    const std::string tronco = carpeta + titulo.substr(0, titulo.find('.')) + ".";
    s.FicheroDat = ExisteFichero(dat) ? dat : std::string();
    s.FicheroCfg = SiExiste(tronco + "cfg");
    s.FicheroHdr = SiExiste(tronco + "hdr");
}

}  // namespace veldix
