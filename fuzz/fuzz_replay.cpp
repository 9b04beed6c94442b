#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/ficheros.h"
#include "pruebas.h"

namespace fs = std::filesystem;

namespace {

struct Objetivo {
    const char* nombre;
    int (*prueba)(std::span<const std::uint8_t>);
};

#define OBJETIVO(x)                  \
    Objetivo                         \
    {                                \
#x, veldix::fuzz::Prueba_##x \
    }
constexpr Objetivo kObjetivos[] = {OBJETIVO(cfg),    OBJETIVO(dat_ascii), OBJETIVO(dat_bin),
                                   OBJETIVO(cnf),    OBJETIVO(ajustes),   OBJETIVO(textos),
                                   OBJETIVO(perfil), OBJETIVO(avi),       OBJETIVO(jet)};

std::vector<fs::path> Ficheros(const fs::path& carpeta)
{
    std::vector<fs::path> r;
    for (const auto& entrada : fs::directory_iterator(carpeta))
        if (entrada.is_regular_file()) r.push_back(entrada.path());
    std::sort(r.begin(), r.end());
    return r;
}

class Replay : public testing::TestWithParam<Objetivo> {};

TEST_P(Replay, SeedsHold)
{
    const auto semillas = Ficheros(fs::path(VELDIX_SOURCE) / "fuzz/seeds" / GetParam().nombre);
    EXPECT_FALSE(semillas.empty());
    for (const fs::path& semilla : semillas) {
        const std::string octetos = veldix::LeeOctetos(semilla.string());
        try {
            GetParam().prueba({reinterpret_cast<const std::uint8_t*>(octetos.data()), octetos.size()});
        } catch (const std::exception& e) {
            ADD_FAILURE() << semilla << ": " << e.what();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Replay, testing::ValuesIn(kObjetivos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

}  // namespace
