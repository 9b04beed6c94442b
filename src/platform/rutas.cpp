#include "platform/rutas.h"

#include "platform/ficheros.h"
#include "platform/texto.h"

namespace veldix {

std::string RutaIconos(const std::string& rutaPrograma, const std::string& fichero)
{
    const std::size_t corte = Mayusculas(rutaPrograma).rfind("EXE");
    if (corte == std::string::npos) return {};
    const std::string carpeta = BuscaSinCaja(rutaPrograma.substr(0, corte) + "Iconos");
    return BuscaSinCaja(UneRuta(carpeta, fichero));
}

std::string RutaModelos(const std::string& rutaPrograma, const std::string& fichero)
{
    constexpr std::size_t kDelPrograma = 10;  // "VELDIX/EXE"
    const std::string carpeta = BuscaSinCaja(std::string(SinFinal(rutaPrograma, kDelPrograma)) + "Models");
    return BuscaSinCaja(UneRuta(carpeta, fichero));
}

std::string RutaIni(const std::string& rutaPrograma)
{
    return std::string(SinFinal(rutaPrograma, 3)) + "ini";
}

}  // namespace veldix
