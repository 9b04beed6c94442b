#include "shell/ajustes.h"

#include "platform/codigos.h"
#include "platform/enteros.h"
#include "platform/ficheros.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "platform/textos.h"

namespace veldix {

namespace {

LectorLineas AbreAjustes(const std::string& ruta)
{
    return LectorLineas(DesdeUtf8OPagina(LeeOctetos(BuscaSinCaja(ruta))));
}

/// In the code page, or whole in UTF-8 where a path has a character that the page lacks, and where the
/// page's octets would be taken for UTF-8 when they are read back.
void GuardaAjustes(const std::string& ruta, const std::vector<std::string>& lineas)
{
    const std::string texto = Une(lineas);
    bool cabe = true;
    const std::string octetos = APagina(texto, &cabe);
    const bool confunde = !EsAscii(octetos) && EsUtf8(octetos);
    ReemplazaFichero(BuscaSinCaja(ruta), cabe && !confunde ? octetos : texto);
}

std::string SinExtremos(const std::string& linea)
{
    const std::string_view t = Derecha(linea, NumCaracteres(linea) < 2 ? 0 : NumCaracteres(linea) - 1);
    return std::string(SinFinal(t, 1));
}

}  // namespace

std::string RutaTools(const RecordStore& s)
{
    return UneRuta(s.DirIni, "tools.ini");
}
std::string RutaFicher(const RecordStore& s)
{
    return UneRuta(s.DirIni, "ficher.ini");
}

ToolsIni LeeToolsIni(const RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    ToolsIni t;
    t.Idioma = Entero16Local(lineas.Lee());
    t.DirDatos = lineas.Lee();
    t.DirPlantillas = lineas.Lee();
    t.DirAplic = lineas.Lee();
    const std::int16_t n = Entero16Local(lineas.Lee());
    for (int i = 1; i <= n; ++i)
        t.herramientas.push_back(SinExtremos(lineas.Lee()));
    return t;
}

void EscribeToolsIni(const RecordStore& s, const ToolsIni& t)
{
    std::vector<std::string> lineas{FormaDelimitada(t.Idioma), t.DirDatos, t.DirPlantillas, t.DirAplic,
                                    FormaDelimitada(static_cast<std::int32_t>(t.herramientas.size()))};
    for (const std::string& h : t.herramientas)
        lineas.push_back("\"" + h + "\"");
    GuardaAjustes(RutaTools(s), lineas);
}

std::int16_t LeeTools(RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    s.Idioma = Entero16Local(lineas.Lee());
    s.DirDatos = lineas.Lee();
    s.DirPlantillas = lineas.Lee();
    s.DirAplic = lineas.Lee();
    return Entero16Local(lineas.Lee());
}

void LeeDirectorios(RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    lineas.Lee();
    s.DirDatos = lineas.Lee();
    s.DirPlantillas = lineas.Lee();
    s.DirAplic = lineas.Lee();
}

std::int16_t LeeIdiomaTools(const RecordStore& s)
{
    return Entero16Local(AbreAjustes(RutaTools(s)).Lee());
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
    std::vector<std::string> salida{FormaImpresa(idioma ? *idioma : deLinea1), FormaImpresa(n)};
    for (int i = 1; i <= n; ++i)
        salida.push_back(lineas.Lee());
    if (!idioma) s.Idioma = deLinea1;
    GuardaAjustes(RutaFicher(s), salida);
}

void EligeFicheroIdioma(RecordStore& s, bool espanol)
{
    s.FicheroIdioma = BuscaSinCaja(UneRuta(s.DirIni, espanol ? "vdotro.ini" : "vdingles.ini"));
}

void CambiaIdiomaFicheros(RecordStore& s, std::int16_t idioma)
{
    RepasaSesion(s, &idioma);
    ToolsIni t = LeeToolsIni(s);
    s.DirDatos = t.DirDatos;
    s.DirPlantillas = t.DirPlantillas;
    s.DirAplic = t.DirAplic;
    t.Idioma = idioma;
    EscribeToolsIni(s, t);
    EligeFicheroIdioma(s, idioma != 0);
    CargaTextos(s.FicheroIdioma);
}

Herramienta ParteHerramienta(const std::string& texto)
{
    const std::size_t igual = texto.find('=');
    if (igual == std::string::npos) return {};
    return {texto.substr(0, igual), texto.substr(igual + 1)};
}

}  // namespace veldix
