#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "medir.h"
#include "platform/ficheros.h"
#include "record/copia_ascii.h"
#include "record/lector_muestras.h"

namespace {

constexpr int kMuestras = 32767, kAnalogicos = 64, kDigitales = 64;

/// The largest record that is common, as octets.
std::string Binario()
{
    std::vector<std::int16_t> palabras;
    for (int i = 1; i <= kMuestras; ++i) {
        const std::int32_t cabeza[2] = {i, (i - 1) * 625};
        std::int16_t partes[4];
        std::memcpy(partes, cabeza, sizeof cabeza);
        palabras.insert(palabras.end(), partes, partes + 4);
        for (int c = 0; c < kAnalogicos; ++c)
            palabras.push_back(static_cast<std::int16_t>(std::lround(20000.0 * std::sin(i * 0.196 + c))));
        for (int w = 0; w < kDigitales / 16; ++w)
            palabras.push_back(static_cast<std::int16_t>(i / 50 * 77));
    }
    return {reinterpret_cast<const char*>(palabras.data()), 2 * palabras.size()};
}

/// The same lines field by field through a stream.
void CopiaPlana(const std::string& origen, const std::string& destino)
{
    veldix::LectorMuestras lector(origen, kAnalogicos, kDigitales);
    std::ofstream f(destino, std::ios::binary);
    for (const unsigned char* p = lector.Lee(); p != nullptr; p = lector.Lee()) {
        std::int32_t cabeza[2];
        std::memcpy(cabeza, p, sizeof cabeza);
        f << ' ' << cabeza[0] << ',' << cabeza[1];
        for (int c = 0; c < kAnalogicos; ++c) {
            std::int16_t x = 0;
            std::memcpy(&x, p + 8 + 2 * c, sizeof x);
            f << ',' << x;
        }
        for (int k = 0; k < kDigitales; ++k)
            f << ',' << (p[8 + 2 * kAnalogicos + k / 8] >> (k % 8) & 1);
        f << "\r\n";
    }
}

}  // namespace

int main()
{
    namespace fs = std::filesystem;
    const fs::path carpeta = fs::temp_directory_path() / "veldix_copia_bench";
    fs::create_directories(carpeta);
    veldix::RecordStore s;
    s.FicheroDat = carpeta / "rec.dat";
    s.FicheroAscii = carpeta / "copia";
    s.NumDigital = kDigitales;
    s.Muestras = veldix::Tabla2<float>(kMuestras, kAnalogicos);
    veldix::EscribeFichero(s.FicheroDat, Binario());
    const std::string plana = carpeta / "plana.DAT", sola = carpeta / "sola.DAT";
    CopiaPlana(s.FicheroDat, plana);
    const std::string texto = veldix::LeeOctetos(plana);
    const auto t = veldix::Mejores({[&] { CopiaPlana(s.FicheroDat, plana); },
                                    [&] {
                                        veldix::FicherosNuevos copia;
                                        veldix::EscribeAsciiDat(s, copia);
                                        copia.Confirma();
                                    },
                                    [&] { veldix::ReemplazaFichero(sola, texto); }},
                                   15);
    const bool iguales = texto == veldix::LeeOctetos(s.FicheroAscii + ".DAT");
    std::printf("EscribeAsciiDat / stream = %.2f, / writing its octets alone = %.2f   (%.1f ms, %.1f MiB)\n",
                t[1] / t[0], t[1] / t[2], t[1], static_cast<double>(texto.size()) / 1048576.0);
    if (!iguales) std::puts("the two copies differ");
    fs::remove_all(carpeta);
    return iguales ? 0 : 1;
}
