#include "support/soporte.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

namespace veldix::prueba {

namespace fs = std::filesystem;

Carpeta::Carpeta()
{
    std::string plantilla = (fs::temp_directory_path() / "veldix.XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("no temporary folder");
    ruta_ = plantilla;
}

Carpeta::~Carpeta()
{
    std::error_code ec;
    fs::remove_all(ruta_, ec);
}

std::string Carpeta::Ruta(std::string_view nombre) const
{
    return nombre.empty() ? ruta_.string() : (ruta_ / nombre).string();
}

std::string Carpeta::Escribe(std::string_view nombre, std::string_view octetos) const
{
    const std::string ruta = Ruta(nombre);
    std::ofstream f(ruta, std::ios::binary);
    f.write(octetos.data(), static_cast<std::streamsize>(octetos.size()));
    f.close();
    if (!f) throw std::runtime_error("cannot write " + ruta);
    return ruta;
}

std::string LeeTodo(const std::string& ruta)
{
    std::ifstream f(ruta, std::ios::binary);
    if (!f) throw std::runtime_error("cannot read " + ruta);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::string ConFinales(std::string_view lineas, std::string_view fin)
{
    std::string texto;
    for (const char c : lineas)
        texto += c == '|' ? fin : std::string_view(&c, 1);
    return texto.append(fin);
}

RespondeCajas::RespondeCajas()
{
    PonCajas([this](const Caja& caja) {
        if (esperadas_.empty()) {
            ADD_FAILURE() << "unexpected box: " << caja.texto;
            return false;
        }
        const Esperada e = esperadas_.front();
        esperadas_.pop_front();
        EXPECT_EQ(e.caja.texto, caja.texto);
        EXPECT_EQ(e.caja.icono, caja.icono) << caja.texto;
        EXPECT_EQ(e.caja.botones, caja.botones) << caja.texto;
        return e.aceptar;
    });
}

RespondeCajas::~RespondeCajas()
{
    PonCajas(nullptr);
    for (const Esperada& e : esperadas_)
        ADD_FAILURE() << "a box never came: " << e.caja.texto;
}

void RespondeCajas::Espera(std::string texto, Icono icono, Botones botones, bool aceptar)
{
    esperadas_.push_back({{std::move(texto), icono, botones}, aceptar});
}

}  // namespace veldix::prueba
