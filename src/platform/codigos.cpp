#include "platform/codigos.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace veldix {

namespace {

bool Continua(std::string_view t, std::size_t i)
{
    return i < t.size() && (static_cast<unsigned char>(t[i]) & 0xC0U) == 0x80U;
}

/// The character of one octet below U+0100 in UTF-8.
std::string Latino(unsigned char c)
{
    if (c < 0x80) return std::string(1, static_cast<char>(c));
    return {static_cast<char>(0xC0 | (c >> 6)), static_cast<char>(0x80 | (c & 0x3F))};
}

/// One octet of a page as UTF-8, empty where the page leaves it undefined.
std::string Convierte(iconv_t cd, unsigned char c)
{
    char entrada = static_cast<char>(c);
    std::array<char, 8> salida{};
    char* de = &entrada;
    char* a = salida.data();
    std::size_t quedan = 1, caben = salida.size();
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    if (iconv(cd, &de, &quedan, &a, &caben) == static_cast<std::size_t>(-1)) return {};
    return std::string(salida.data(), a);
}

/// A page of 256 characters and its inverse.
struct Pagina {
    std::string nombre;
    std::array<std::string, 256> aUtf8;
    std::unordered_map<std::string, char> desdeUtf8;
};

bool Carga(Pagina& p, const std::string& nombre)
{
    const iconv_t cd = iconv_open("UTF-8", nombre.c_str());
    if (cd == reinterpret_cast<iconv_t>(-1)) return false;
    p.nombre = nombre;
    p.desdeUtf8.clear();
    for (unsigned c = 0; c < 256; ++c) {
        std::string u = Convierte(cd, static_cast<unsigned char>(c));
        if (u.empty() || c < 0x80) u = Latino(static_cast<unsigned char>(c));
        p.aUtf8[c] = u;
        p.desdeUtf8.emplace(std::move(u), static_cast<char>(c));
    }
    iconv_close(cd);
    return true;
}

Pagina& Actual()
{
    static Pagina pagina = [] {
        Pagina p;
        Carga(p, "WINDOWS-1252");
        return p;
    }();
    return pagina;
}

}  // namespace

std::size_t OctetosDeCaracter(std::string_view t)
{
    const auto c = static_cast<unsigned char>(t[0]);
    std::size_t n = 0;
    if (c >= 0xC2 && c <= 0xDF) n = 2;
    if (c >= 0xE0 && c <= 0xEF) n = 3;
    if (c >= 0xF0 && c <= 0xF4) n = 4;
    if (n == 0) return 1;
    for (std::size_t i = 1; i < n; ++i)
        if (!Continua(t, i)) return 1;
    const auto d = static_cast<unsigned char>(t[1]);
    const bool fuera = (c == 0xE0 && d < 0xA0) || (c == 0xED && d > 0x9F) || (c == 0xF0 && d < 0x90) ||
                       (c == 0xF4 && d > 0x8F);
    return fuera ? 1 : n;
}

bool EsUtf8(std::string_view t)
{
    while (!t.empty()) {
        const std::size_t n = OctetosDeCaracter(t);
        if (n == 1 && static_cast<unsigned char>(t[0]) >= 0x80) return false;
        t.remove_prefix(n);
    }
    return true;
}

bool EsAscii(std::string_view t)
{
    return std::none_of(t.begin(), t.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

void PonPaginaCodigos(const std::string& nombre)
{
    if (nombre.empty() || nombre == Actual().nombre) return;
    if (Pagina nueva; Carga(nueva, nombre)) Actual() = std::move(nueva);
}

const std::string& PaginaCodigos()
{
    return Actual().nombre;
}

std::string DesdePagina(std::string_view octetos)
{
    std::string r;
    r.reserve(octetos.size() + octetos.size() / 8);
    for (const char c : octetos) {
        const auto octeto = static_cast<unsigned char>(c);
        if (octeto < 0x80)
            r += c;
        else
            r += Actual().aUtf8[octeto];
    }
    return r;
}

std::string APagina(std::string_view texto, bool* entero)
{
    std::string r;
    r.reserve(texto.size());
    if (entero) *entero = true;
    while (!texto.empty()) {
        // Pages share the ASCII half.
        if (static_cast<unsigned char>(texto[0]) < 0x80) {
            r += texto[0];
            texto.remove_prefix(1);
            continue;
        }
        const std::size_t n = OctetosDeCaracter(texto);
        const auto sitio = Actual().desdeUtf8.find(std::string(texto.substr(0, n)));
        const bool hay = sitio != Actual().desdeUtf8.end();
        r += hay ? sitio->second : '?';
        if (!hay && entero) *entero = false;
        texto.remove_prefix(n);
    }
    return r;
}

std::string DesdeUtf8OPagina(std::string octetos)
{
    if (!EsUtf8(octetos)) return DesdePagina(octetos);
    if (octetos.starts_with("\xEF\xBB\xBF")) octetos.erase(0, 3);
    return octetos;
}

}  // namespace veldix
