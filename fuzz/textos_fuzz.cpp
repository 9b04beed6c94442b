#include "comun.h"
#include "platform/codigos.h"
#include "platform/ficheros.h"
#include "platform/textos.h"
#include "pruebas.h"

namespace veldix::fuzz {

int Prueba_textos(Octetos entrada)
{
    const FicheroMemoria fichero(Texto(entrada));
    const std::vector<std::string> lineas = Lineas(Texto(entrada));
    const auto hay = static_cast<int>(std::min<std::size_t>(lineas.size(), kNumTextos));
    const int error = NumeroDeError([&] { CargaTextos(fichero.Ruta()); });
    Exige(error == (hay < kNumTextos ? error::kFinDeFichero : 0), "error of a short file");
    for (int n = 1; n <= kNumTextos; ++n) {
        const bool cargada = n <= hay;
        const std::string texto = cargada ? DesdePagina(lineas[static_cast<std::size_t>(n - 1)]) : "";
        Exige(Textos(n) == texto, "line");
        Exige(Rotulo(n, "propio") == (cargada ? texto : "propio"), "caption");
        Exige(!cargada || APagina(texto) == lineas[static_cast<std::size_t>(n - 1)], "octets of a line");
    }
    VaciaTextos();
    Exige(Textos(1).empty(), "text left behind");
    return 0;
}

}  // namespace veldix::fuzz
