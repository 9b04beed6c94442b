#include "comun.h"
#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/textos.h"
#include "pruebas.h"
#include "shell/ajustes.h"
#include "tools/herramientas.h"
#include "tools/tools_ini.h"

namespace veldix::fuzz {

namespace {

std::vector<std::string> LineasDe(const std::string& ruta)
{
    return Lineas(DesdeUtf8OPagina(LeeOctetos(ruta)));
}

void ExigeErrorDeLectura(int numero)
{
    Exige(numero == error::kFinDeFichero || numero == error::kTipos || numero == error::kDesbordamiento ||
              numero == error::kSubindice,
          "error of settings");
}

bool Iguales(const ToolsIni& a, const ToolsIni& b)
{
    return a.Idioma == b.Idioma && a.DirDatos == b.DirDatos && a.DirPlantillas == b.DirPlantillas &&
           a.DirAplic == b.DirAplic && a.herramientas == b.herramientas;
}

void CompruebaSesion(RecordStore& s)
{
    const std::string ruta = RutaFicher(s), antes = LeeOctetos(ruta);
    const std::vector<std::string> lineas = LineasDe(ruta);
    if (const int e = NumeroDeError([&] { RepasaSesion(s, nullptr); })) {
        ExigeErrorDeLectura(e);
        Exige(LeeOctetos(ruta) == antes, "session that failed was written");
        return;
    }
    const std::vector<std::string> escritas = LineasDe(ruta);
    Exige(escritas.size() >= 2 && escritas.size() <= lineas.size(), "lines of the session");
    for (std::size_t i = 2; i < escritas.size(); ++i)
        Exige(escritas[i] == lineas[i], "line of the session");
    const std::string una = LeeOctetos(ruta);
    Exige(NumeroDeError([&] { RepasaSesion(s, nullptr); }) == 0 && LeeOctetos(ruta) == una,
          "second session differs");
}

void CompruebaHerramientas(const ToolsIni& t)
{
    for (const std::string& h : t.herramientas) {
        const Herramienta partida = ParteHerramienta(h);
        Exige(partida.nombre.empty() || partida.nombre + "=" + partida.orden == h, "tool");
    }
}

void CompruebaTools(RecordStore& s)
{
    ToolsIni t, otra;
    std::int16_t n = 0;
    const int e = NumeroDeError([&] { t = LeeToolsIni(s); });
    const int cabeza = NumeroDeError([&] { n = LeeTools(s); });
    if (e != 0) {
        ExigeErrorDeLectura(e);
        return;
    }
    Exige(cabeza == 0 && Filas(n) == static_cast<int>(t.herramientas.size()), "count of tools");
    Exige(s.Idioma == t.Idioma && LeeIdiomaTools(s) == t.Idioma, "language");
    Exige(s.DirDatos == t.DirDatos && s.DirPlantillas == t.DirPlantillas && s.DirAplic == t.DirAplic,
          "folders");
    CompruebaHerramientas(t);
    EscribeToolsIni(s, t);
    Exige(NumeroDeError([&] { otra = LeeToolsIni(s); }) == 0 && Iguales(t, otra), "tools written differ");
}

void CompruebaIdioma(RecordStore& s, std::int16_t idioma)
{
    ToolsIni antes, despues;
    const bool habia = NumeroDeError([&] { antes = LeeToolsIni(s); }) == 0;
    if (const int e = NumeroDeError([&] { CambiaIdiomaFicheros(s, idioma); })) {
        ExigeErrorDeLectura(e);
        return;
    }
    Exige(habia, "switched over broken tools");
    despues = LeeToolsIni(s);
    antes.Idioma = idioma;
    Exige(Iguales(antes, despues), "tools changed by the switch");
    RepasaSesion(s, nullptr);
    CargaTextos(s.FicheroIdioma);
    Exige(s.Idioma == idioma && Textos(kNumTextos) == "z", "language after the switch");
}

/// The folder of settings, with both language files whole.
const std::string& Carpeta()
{
    static const std::string& carpeta = [&]() -> const std::string& {
        std::string texto;
        for (int i = 1; i < kNumTextos; ++i)
            texto += "a\r\n";
        for (const char* nombre : {"vdotro.ini", "vdingles.ini"})
            EscribeFichero(UneRuta(CarpetaMemoria(), nombre), texto + "z\r\n");
        return CarpetaMemoria();
    }();
    return carpeta;
}

}  // namespace

/// ficher.ini, a form feed, tools.ini.
int Prueba_ajustes(Octetos entrada)
{
    const std::string_view texto = Texto(entrada);
    const std::size_t corte = std::min(texto.find('\f'), texto.size());
    RecordStore s;
    s.DirIni = Carpeta();
    EscribeFichero(RutaFicher(s), texto.substr(0, corte));
    EscribeFichero(RutaTools(s), texto.substr(std::min(corte + 1, texto.size())));
    CompruebaSesion(s);
    CompruebaTools(s);
    CompruebaIdioma(s, static_cast<std::int16_t>(texto.size() % 2));
    VaciaTextos();
    return 0;
}

}  // namespace veldix::fuzz
