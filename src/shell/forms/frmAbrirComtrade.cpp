#include "shell/forms/frmAbrirComtrade.h"

#include "platform/avisos.h"
#include "platform/ficheros.h"
#include "platform/forms/dialogo_fichero.h"
#include "platform/textos.h"
#include "record/abrir_registro.h"

namespace veldix {

namespace {

/// What opening changes before the samples: names and identity. A refused record gets them put back.
struct Antes {
    std::string dat = store.FicheroDat, cfg = store.FicheroCfg, hdr = store.FicheroHdr;
    GrupoIdentidad identidad = store;
    std::string estacionPlan = store.EstacionPlan;
    bool errorFormato = store.ErrorFormato;

    void Rutas() const
    {
        store.FicheroDat = dat;
        store.FicheroCfg = cfg;
        store.FicheroHdr = hdr;
    }
    void Todo() const
    {
        Rutas();
        static_cast<GrupoIdentidad&>(store) = identidad;
        store.EstacionPlan = estacionPlan;
        store.ErrorFormato = errorFormato;
        store.AnioMal = false;
    }
};

}  // namespace

bool frmAbrirComtrade::Carga()
{
    const auto elegido =
        EligeFichero({Rotulo(18, "Abrir fichero COMTRADE"), store.DirDatos, "Data Files (*.dat)", "dat"});
    return elegido && Abre(*elegido);
}

bool frmAbrirComtrade::Abre(const std::string& dat)
{
    const Antes antes;
    NombraPorTitulo(store, dat);
    if (store.FicheroDat.empty() || store.FicheroCfg.empty()) {
        Avisa(Textos(store.FicheroDat.empty() ? 174 : 173));
        antes.Rutas();
        return false;
    }
    AbrirRegistro(store);
    if (store.AnioMal) {
        antes.Todo();
        return false;
    }
    ReiniciaRegistro(store);
    return true;
}

}  // namespace veldix
