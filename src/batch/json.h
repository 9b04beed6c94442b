#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldix {

/// Writes JSON text, an object or array inside another at most a few deep. Numbers have the fewest digits
/// that read back to the same value; texts are UTF-8, what is not valid in them becomes U+FFFD.
class EscritorJson {
public:
    EscritorJson& AbreObjeto() { return Abre('{'); }
    EscritorJson& CierraObjeto() { return Cierra('}'); }
    EscritorJson& AbreLista() { return Abre('['); }
    EscritorJson& CierraLista() { return Cierra(']'); }
    EscritorJson& Clave(std::string_view clave);

    EscritorJson& Texto(std::string_view texto);
    EscritorJson& Entero(long long valor);
    EscritorJson& Single(float valor);
    EscritorJson& Logico(bool valor);

    const std::string& Resultado() const { return salida_; }

private:
    EscritorJson& Abre(char c);
    EscritorJson& Cierra(char c);
    void Separa();
    void Sangra();
    void Entrecomilla(std::string_view texto);

    struct Nivel {
        bool objeto;
        bool vacio = true;
    };
    std::vector<Nivel> niveles_;
    bool trasClave_ = false;
    std::string salida_;
};

}  // namespace veldix
