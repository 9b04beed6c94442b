#include <set>

#include "comun.h"
#include "platform/codigos.h"
#include "platform/perfil.h"
#include "pruebas.h"

namespace veldix::fuzz {

namespace {

/// A page, whatever its name asked for, gives valid text for all octets and keeps ASCII.
void CompruebaPagina()
{
    std::set<std::string> vistos;
    std::string todos;
    for (int c = 0; c < 256; ++c) {
        const std::string octeto(1, static_cast<char>(c)), texto = DesdePagina(octeto);
        Exige(!texto.empty() && EsUtf8(texto), "octet without a character");
        Exige(c >= 128 || texto == octeto, "ASCII changed");
        const bool nuevo = vistos.insert(texto).second && OctetosDeCaracter(texto) == texto.size();
        Exige(!nuevo || APagina(texto) == octeto, "octet that does not come back");
        todos += octeto;
    }
    Exige(EsUtf8(DesdePagina(todos)), "text of a page");
}

}  // namespace

int Prueba_perfil(Octetos entrada)
{
    const FicheroMemoria fichero(Texto(entrada));
    for (const char* clave : {"pagina", "PAGINA", "intros", "", "=", "a b"}) {
        const std::string valor = ValorPerfil(fichero.Ruta(), "texto", clave);
        Exige(valor.find_first_of("\r\n") == std::string::npos, "value of two lines");
        Exige(EsUtf8(valor), "value that is no text");
    }
    Exige(ValorPerfil(fichero.Ruta(), "TEXTO", "pagina") == ValorPerfil(fichero.Ruta(), "texto", "Pagina"),
          "case of a key");
    CargaPaginaCodigos(fichero.Ruta());
    CompruebaPagina();
    PonPaginaCodigos("WINDOWS-1252");
    Exige(PaginaCodigos() == "WINDOWS-1252", "page not put back");
    return 0;
}

}  // namespace veldix::fuzz
