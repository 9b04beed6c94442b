#include "comun.h"
#include "platform/avi.h"
#include "pruebas.h"

namespace veldix::fuzz {

namespace {

void Comprueba(const PeliculaAvi& p, std::size_t octetos)
{
    Exige(p.milisegundosPorCuadro >= 1 && p.milisegundosPorCuadro <= 60000, "rate");
    Exige(p.ancho >= 1 && p.ancho <= 16384 && p.alto >= 1 && p.alto <= 16384, "size of the picture");
    Exige(!p.cuadros.empty() && !p.cuadros.front().empty(), "first frame");
    std::size_t suma = 0;
    for (const auto& cuadro : p.cuadros)
        suma += cuadro.size() + 8;
    Exige(suma < octetos, "frames larger than the file");
}

}  // namespace

int Prueba_avi(Octetos entrada)
{
    const auto pelicula = InterpretaAvi(entrada);
    if (pelicula) Comprueba(*pelicula, entrada.size());
    const FicheroMemoria fichero(Texto(entrada));
    const auto otra = LeeAvi(fichero.Ruta());
    Exige(pelicula.has_value() == otra.has_value(), "film of a file");
    Exige(!pelicula || pelicula->cuadros == otra->cuadros, "frames of a file");
    return 0;
}

}  // namespace veldix::fuzz
