#include "templates/modelos.h"

#include <algorithm>
#include <optional>

#include "platform/enteros.h"
#include "platform/jet.h"
#include "platform/numeros.h"
#include "platform/rutas.h"
#include "platform/texto.h"

namespace veldix {

namespace {

/// A model's own database and the name that its tables end in.
struct BaseModelo {
    BaseJet base;
    std::string nombre;
};

Recordset AbreMaestra(const RecordStore& s)
{
    return BaseJet(RutaModelos(s.RutaPrograma, "Modelos.mdb")).AbreTabla("Modelos");
}

std::optional<BaseModelo> BuscaModelo(const RecordStore& s, const std::string& nombre)
{
    constexpr std::size_t kExtension = 4;  // with its point
    for (Recordset modelos = AbreMaestra(s); !modelos.Eof(); modelos.MoveNext()) {
        if (!Coincide(UnaLinea(modelos.Texto("Modelo")), nombre)) continue;
        const std::string fichero = modelos.Texto("BaseDatos");
        return BaseModelo{BaseJet(RutaModelos(s.RutaPrograma, fichero)),
                          std::string(SinFinal(fichero, kExtension))};
    }
    return {};
}

}  // namespace

std::vector<std::string> ListaModelos(const RecordStore& s)
{
    std::vector<std::string> nombres;
    for (Recordset modelos = AbreMaestra(s); !modelos.Eof(); modelos.MoveNext())
        nombres.push_back(UnaLinea(modelos.Texto("Modelo")));
    return nombres;
}

void LeeModeloAnalog(RecordStore& s, const std::string& nombre)
{
    const std::optional<BaseModelo> modelo = BuscaModelo(s, nombre);
    if (!modelo) return;
    Recordset medidas = modelo->base.AbreTabla("VDOSMedidas oscilos " + modelo->nombre);
    medidas.MoveLast();
    constexpr double kMayor = 32767.0;  // no page counts further
    Tabla1<FilaCanal> canales(Entero16(std::min(medidas.Numero("$Id") + 1.0, kMayor)));
    int n = 0;
    for (medidas.MoveFirst(); !medidas.Eof(); medidas.MoveNext()) {
        ++n;
        canales(n) = {FormaDelimitada(n), UnaLinea(medidas.Texto("Nombre")),
                      UnaLinea(medidas.Texto("NombreIngles")), UnaLinea(medidas.Texto("Unidades"))};
    }
    s.NumAnalogPlan = Entero16(n);
    s.CanalesPlan = std::move(canales);
    s.ModeloCargado = true;
}

std::int16_t LeeModeloDigital(RecordStore& s, const std::string& nombre)
{
    constexpr std::int16_t kNoRegistrada = -1;
    const std::optional<BaseModelo> modelo = BuscaModelo(s, nombre);
    if (!modelo) return 0;
    std::vector<std::string> registradas;
    for (Recordset r = modelo->base.AbreTabla("PEst " + modelo->nombre); !r.Eof(); r.MoveNext())
        if (Entero16(r.Numero("ByteOscilo")) != kNoRegistrada)
            registradas.push_back(UnaLinea(r.Texto("Descripcion")));
    const std::int16_t cuenta = Entero16(static_cast<double>(registradas.size()));
    s.NombreDigPlan = {};
    if (cuenta > 0) s.NombreDigPlan = Tabla1<std::string>(cuenta);
    std::move(registradas.begin(), registradas.end(), s.NombreDigPlan.begin());
    s.NumDigitalPlan = cuenta;
    return cuenta;
}

}  // namespace veldix
