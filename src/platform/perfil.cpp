#include "platform/perfil.h"

#include "platform/codigos.h"
#include "platform/errores.h"
#include "platform/ficheros.h"
#include "platform/texto.h"

namespace veldix {

namespace {

std::string_view SinMargenes(std::string_view t)
{
    const std::size_t a = t.find_first_not_of(" \t");
    if (a == std::string_view::npos) return {};
    return t.substr(a, t.find_last_not_of(" \t") - a + 1);
}

std::string_view SinComillas(std::string_view t)
{
    const bool comillas = t.size() >= 2 && t.front() == t.back() && (t.front() == '"' || t.front() == '\'');
    return comillas ? t.substr(1, t.size() - 2) : t;
}

}  // namespace

std::string ValorPerfil(const std::string& ruta, std::string_view seccion, std::string_view clave)
{
    std::string texto;
    if (!Intenta([&] { texto = DesdeUtf8OPagina(LeeOctetos(BuscaSinCaja(ruta))); })) return {};
    bool dentro = false;
    for (const std::string& linea : Lineas(texto)) {
        const std::string_view l = SinMargenes(linea);
        if (l.starts_with('[') && l.ends_with(']')) {
            dentro = IgualSinCaja(SinMargenes(l.substr(1, l.size() - 2)), seccion);
            continue;
        }
        const std::size_t igual = l.find('=');
        if (!dentro || igual == std::string_view::npos) continue;
        if (IgualSinCaja(SinMargenes(l.substr(0, igual)), clave))
            return std::string(SinComillas(SinMargenes(l.substr(igual + 1))));
    }
    return {};
}

void CargaPaginaCodigos(const std::string& ruta)
{
    PonPaginaCodigos(ValorPerfil(ruta, "TEXTO", "pagina"));
}

}  // namespace veldix
