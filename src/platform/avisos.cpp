#include "platform/avisos.h"

#include <cstdio>
#include <utility>

#include "platform/texto.h"
#include "platform/textos.h"

namespace veldix {

namespace {

bool AlError(const Caja& caja)
{
    std::fprintf(stderr, "%s\n", caja.texto.c_str());
    return true;
}

MuestraCaja g_cajas = AlError;
std::function<void()> g_puntero;

}  // namespace

void PonCajas(MuestraCaja muestra)
{
    g_cajas = muestra ? std::move(muestra) : AlError;
}

void Avisa(const std::string& texto, Icono icono)
{
    g_cajas({texto, icono, Botones::Aceptar});
}

bool Pregunta(const std::string& texto, Icono icono)
{
    return g_cajas({texto, icono, Botones::AceptarCancelar});
}

void AvisaSeparadores(const std::string& texto)
{
    for (const auto& [patron, aviso] : {std::pair{"*%*", 176}, std::pair{"*$*", 177}}) {
        if (!Coincide(texto, patron)) continue;
        PunteroNormal();
        Avisa(Textos(aviso), Icono::Critico);
    }
}

void AvisaError(const ErrorEjecucion& e)
{
    Avisa(TextoError(e), Icono::Critico);
}

void PonPunteroNormal(std::function<void()> pon)
{
    g_puntero = std::move(pon);
}

void PunteroNormal()
{
    if (g_puntero) g_puntero();
}

}  // namespace veldix
