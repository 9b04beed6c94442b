#include "shell/ajustes.h"

#include <utility>

#include "platform/errores.h"
#include "platform/fichero_ajustes.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/textos.h"
#include "tools/tools_ini.h"

namespace veldix {

std::string RutaFicher(const RecordStore& s)
{
    return UneRuta(s.DirIni, "ficher.ini");
}

void EscribeSesion(const RecordStore& s)
{
    Intenta([&] {
        GuardaAjustes(RutaFicher(s), {FormaImpresa(s.Idioma), FormaImpresa(4), s.FicheroDat, s.FicheroHdr,
                                      s.FicheroCfg, s.FicheroCnf});
    });
}

void RepasaSesion(RecordStore& s, const std::int16_t* idioma)
{
    LectorLineas lineas = AbreAjustes(RutaFicher(s));
    const std::int16_t deLinea1 = Entero16Local(lineas.Lee());
    const std::int16_t n = Entero16Local(lineas.Lee());
    if (n < -1) Lanza(error::kSubindice);
    std::vector<std::string> salida{FormaImpresa(idioma ? *idioma : deLinea1), FormaImpresa(n)};
    for (int i = 1; i <= n; ++i)
        salida.push_back(lineas.Lee());
    if (!idioma) s.Idioma = deLinea1;
    GuardaAjustes(RutaFicher(s), std::move(salida));
}

void EligeFicheroIdioma(RecordStore& s, bool espanol)
{
    s.FicheroIdioma = BuscaSinCaja(UneRuta(s.DirIni, espanol ? "vdotro.ini" : "vdingles.ini"));
}

namespace {

void CambiaIdiomaTools(RecordStore& s, std::int16_t idioma)
{
    ToolsIni t = LeeToolsIni(s);
    s.DirDatos = t.DirDatos;
    s.DirPlantillas = t.DirPlantillas;
    s.DirAplic = t.DirAplic;
    t.Idioma = idioma;
    EscribeToolsIni(s, t);
}

}  // namespace

void CambiaIdiomaFicheros(RecordStore& s, std::int16_t idioma)
{
    const std::string sesion = BuscaSinCaja(RutaFicher(s)), antes = LeeOctetos(sesion);
    RepasaSesion(s, &idioma);
    try {
        CambiaIdiomaTools(s, idioma);
    } catch (const ErrorEjecucion&) {
        Intenta([&] { ReemplazaFichero(sesion, antes); });  // the two files are to agree
        throw;
    }
    EligeFicheroIdioma(s, idioma != 0);
}

}  // namespace veldix
