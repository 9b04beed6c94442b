#include "tools/tools_ini.h"

#include "platform/fichero_ajustes.h"
#include "platform/numeros.h"
#include "platform/texto.h"

namespace veldix {

namespace {

/// A tool's line without its double quotes; "" of fewer than two characters.
std::string SinExtremos(const std::string& linea)
{
    const std::size_t n = NumCaracteres(linea);
    return n < 2 ? std::string() : std::string(SinFinal(Derecha(linea, n - 1), 1));
}

/// The default folders, for a store or for a file's contents.
template <class Destino>
void LeeCarpetas(LectorLineas& lineas, Destino& d)
{
    d.DirDatos = lineas.Lee();
    d.DirPlantillas = lineas.Lee();
    d.DirAplic = lineas.Lee();
}

}  // namespace

std::string RutaTools(const RecordStore& s)
{
    return UneRuta(s.DirIni, "tools.ini");
}

ToolsIni LeeToolsIni(const RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    ToolsIni t;
    t.Idioma = Entero16Local(lineas.Lee());
    LeeCarpetas(lineas, t);
    const std::int16_t n = Entero16Local(lineas.Lee());
    if (n < 0) Lanza(error::kSubindice);
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

void EscribeHerramientas(const RecordStore& s, ToolsIni t)
{
    t.Idioma = s.Idioma;
    t.DirDatos = s.DirDatos;
    t.DirPlantillas = s.DirPlantillas;
    t.DirAplic = s.DirAplic;
    EscribeToolsIni(s, t);
}

std::int16_t LeeTools(RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    s.Idioma = Entero16Local(lineas.Lee());
    LeeCarpetas(lineas, s);
    return Entero16Local(lineas.Lee());
}

void LeeDirectorios(RecordStore& s)
{
    LectorLineas lineas = AbreAjustes(RutaTools(s));
    lineas.Lee();
    LeeCarpetas(lineas, s);
}

std::int16_t LeeIdiomaTools(const RecordStore& s)
{
    return Entero16Local(AbreAjustes(RutaTools(s)).Lee());
}

}  // namespace veldix
