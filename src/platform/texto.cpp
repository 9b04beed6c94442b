#include "platform/texto.h"

#include <algorithm>
#include <vector>

#include "platform/codigos.h"

namespace veldix {

namespace {

char Mayuscula(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char Minuscula(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Octet where character `n` (from 0) begins, the length of the text where there are fewer.
std::size_t Octeto(std::string_view texto, std::size_t n)
{
    std::size_t i = 0;
    for (; n > 0 && i < texto.size(); --n)
        i += OctetosDeCaracter(texto.substr(i));
    return i;
}

/// A text cut into its characters.
std::vector<std::string_view> Caracteres(std::string_view texto)
{
    std::vector<std::string_view> r;
    while (!texto.empty()) {
        const std::size_t n = OctetosDeCaracter(texto);
        r.push_back(texto.substr(0, n));
        texto.remove_prefix(n);
    }
    return r;
}

using Letras = std::vector<std::string_view>;

/// Whether `letra` is in the list between the brackets, exclusive, of p[abre] and p[cierra].
bool EnLista(std::string_view letra, const Letras& p, std::size_t abre, std::size_t cierra)
{
    std::size_t i = abre + 1;
    const bool niega = i < cierra && p[i] == "!";
    if (niega) ++i;
    bool dentro = false;
    for (; i < cierra; ++i) {
        if (i + 2 < cierra && p[i + 1] == "-") {
            dentro = dentro || (letra >= p[i] && letra <= p[i + 2]);
            i += 2;
        } else {
            dentro = dentro || letra == p[i];
        }
    }
    return dentro != niega;
}

/// Length in characters of the pattern's item at `j`: a closed list, or one character.
std::size_t LargoPieza(const Letras& p, std::size_t j)
{
    if (p[j] != "[") return 1;
    const auto cierra =
        std::find(p.begin() + static_cast<std::ptrdiff_t>(j) + 1, p.end(), std::string_view("]"));
    return cierra == p.end() ? 1 : static_cast<std::size_t>(cierra - p.begin()) - j + 1;
}

bool CoincideUna(std::string_view letra, const Letras& p, std::size_t j, std::size_t largo)
{
    if (largo > 1) return EnLista(letra, p, j, j + largo - 1);
    if (p[j] == "?") return true;
    if (p[j] == "#") return letra.size() == 1 && letra[0] >= '0' && letra[0] <= '9';
    return p[j] == letra;
}

}  // namespace

std::string_view Recorta(std::string_view texto)
{
    const std::size_t a = texto.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return texto.substr(a, texto.find_last_not_of(' ') - a + 1);
}

std::string Mayusculas(std::string_view texto)
{
    std::string r(texto);
    char antes = '\0';
    for (char& c : r) {
        const char octeto = c;
        // U+00E0 to U+00FE, where U+00F7 is the division sign
        const bool latina = antes == '\xC3' && octeto >= '\xA0' && octeto <= '\xBE' && octeto != '\xB7';
        c = latina ? static_cast<char>(octeto - 0x20) : Mayuscula(octeto);
        antes = octeto;
    }
    return r;
}

std::string UnaLinea(std::string_view texto)
{
    std::string r = SinFinesDeLinea(texto);
    std::erase(r, '\0');
    return r;
}

std::string SinFinesDeLinea(std::string_view texto)
{
    std::string r(texto);
    std::erase_if(r, [](char c) { return c == '\r' || c == '\n'; });
    return r;
}

std::size_t NumCaracteres(std::string_view texto)
{
    std::size_t n = 0;
    for (; !texto.empty(); ++n)
        texto.remove_prefix(OctetosDeCaracter(texto));
    return n;
}

std::string_view Izquierda(std::string_view texto, std::size_t n)
{
    return texto.substr(0, Octeto(texto, n));
}

std::string_view Derecha(std::string_view texto, std::size_t n)
{
    const std::size_t todos = NumCaracteres(texto);
    return todos <= n ? texto : texto.substr(Octeto(texto, todos - n));
}

std::string_view SinFinal(std::string_view texto, std::size_t n)
{
    const std::size_t todos = NumCaracteres(texto);
    return todos <= n ? std::string_view{} : Izquierda(texto, todos - n);
}

bool Coincide(std::string_view texto, std::string_view patron)
{
    const Letras t = Caracteres(texto);
    const Letras p = Caracteres(patron);
    constexpr std::size_t kNinguna = static_cast<std::size_t>(-1);
    std::size_t i = 0, j = 0, estrella = kNinguna, vuelta = 0;
    while (i < t.size()) {
        if (j < p.size() && p[j] == "*") {
            estrella = ++j;
            vuelta = i;
            continue;
        }
        if (j < p.size()) {
            const std::size_t largo = LargoPieza(p, j);
            if (CoincideUna(t[i], p, j, largo)) {
                ++i;
                j += largo;
                continue;
            }
        }
        if (estrella == kNinguna) return false;
        j = estrella;
        i = ++vuelta;
    }
    while (j < p.size() && p[j] == "*")
        ++j;
    return j == p.size();
}

bool IgualSinCaja(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Minuscula(x) == Minuscula(y); });
}

}  // namespace veldix
