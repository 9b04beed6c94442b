#include "batch/json.h"

#include <array>
#include <cstdio>

#include "platform/codigos.h"
#include "platform/numeros.h"

namespace veldix {

EscritorJson& EscritorJson::Abre(char c)
{
    Separa();
    salida_ += c;
    niveles_.push_back({c == '{'});
    return *this;
}

EscritorJson& EscritorJson::Cierra(char c)
{
    const Nivel nivel = niveles_.back();
    niveles_.pop_back();
    if (nivel.objeto && !nivel.vacio) Sangra();
    salida_ += c;
    if (niveles_.empty()) salida_ += '\n';
    return *this;
}

/// What stands before a value: a comma and, inside objects, a line of its own for each key.
void EscritorJson::Separa()
{
    if (trasClave_) {
        trasClave_ = false;
        return;
    }
    if (niveles_.empty()) return;
    if (!niveles_.back().vacio) salida_ += niveles_.back().objeto ? "," : ", ";
    niveles_.back().vacio = false;
    if (niveles_.back().objeto) Sangra();
}

void EscritorJson::Sangra()
{
    salida_ += '\n';
    salida_.append(2 * niveles_.size(), ' ');
}

EscritorJson& EscritorJson::Clave(std::string_view clave)
{
    Separa();
    Entrecomilla(clave);
    salida_ += ": ";
    trasClave_ = true;
    return *this;
}

void EscritorJson::Entrecomilla(std::string_view texto)
{
    salida_ += '"';
    while (!texto.empty()) {
        const std::size_t n = OctetosDeCaracter(texto);
        const auto c = static_cast<unsigned char>(texto[0]);
        if (c == '"' || c == '\\') {
            salida_ += '\\';
            salida_ += texto[0];
        } else if (c < 0x20 || c == 0x7F) {
            std::array<char, 8> b{};
            std::snprintf(b.data(), b.size(), "\\u%04x", c);
            salida_ += b.data();
        } else if (n == 1 && c >= 0x80) {
            salida_ += "\xEF\xBF\xBD";
        } else {
            salida_ += texto.substr(0, n);
        }
        texto.remove_prefix(n);
    }
    salida_ += '"';
}

EscritorJson& EscritorJson::Texto(std::string_view texto)
{
    Separa();
    Entrecomilla(texto);
    return *this;
}

EscritorJson& EscritorJson::Entero(long long valor)
{
    Separa();
    salida_ += std::to_string(valor);
    return *this;
}

EscritorJson& EscritorJson::Single(float valor)
{
    Separa();
    salida_ += TextoExacto(valor);
    return *this;
}

EscritorJson& EscritorJson::Logico(bool valor)
{
    Separa();
    salida_ += valor ? "true" : "false";
    return *this;
}

}  // namespace veldix
