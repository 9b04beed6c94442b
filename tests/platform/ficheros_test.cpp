#include "platform/ficheros.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>

#include "platform/errores.h"
#include "platform/perfil.h"
#include "platform/tabla.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::Carpeta;
using prueba::LeeTodo;

template <class F>
int NumeroDe(F&& f)
{
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero;
    }
    return 0;
}

/// An ordinary user for the time of a test that root runs.
struct SinPrivilegios {
    SinPrivilegios() { EXPECT_EQ(seteuid(uid == 0 ? 65534 : uid), 0); }
    ~SinPrivilegios() { EXPECT_EQ(seteuid(uid), 0); }
    const uid_t uid = geteuid();
};

struct DiscoCorto {
    explicit DiscoCorto(long long octetos) { LimitaDisco(octetos); }
    ~DiscoCorto() { LimitaDisco(-1); }
};

std::size_t Entradas(const std::string& carpeta)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta), {}));
}

TEST(Ficheros, TellAMissingFileFromAMissingFolderAndFromAFolder)
{
    const Carpeta c;
    const std::string fichero = c.Escribe("a.dat", "x");
    const struct {
        std::string ruta;
        int lee, escribe;
    } casos[] = {{"", 75, 75},
                 {c.Ruta(), 75, 75},
                 {c.Ruta("falta.dat"), 53, 0},
                 {c.Ruta("no/falta.dat"), 76, 76},
                 {fichero + "/b.dat", 76, 76}};
    for (const auto& k : casos) {
        EXPECT_EQ(NumeroDe([&] { LeeOctetos(k.ruta); }), k.lee) << k.ruta;
        EXPECT_EQ(NumeroDe([&] { LectorTrozos{k.ruta}; }), k.lee) << k.ruta;
        EXPECT_EQ(NumeroDe([&] { ReemplazaFichero(k.ruta, "x"); }), k.escribe) << k.ruta;
        EXPECT_EQ(NumeroDe([&] { EscribeFichero(k.ruta, "x"); }), k.escribe) << k.ruta;
    }
}

TEST(Ficheros, WhatMayNotBeOpenedIsPermissionDenied)
{
    const Carpeta c;
    fs::create_directory(c.Ruta("cerrada"));
    const std::string oculto = c.Escribe("oculto", "x");
    const std::string dentro = c.Escribe("cerrada/dentro", "x");
    fs::permissions(c.Ruta(), fs::perms(0755));
    fs::permissions(oculto, fs::perms::none);
    fs::permissions(c.Ruta("cerrada"), fs::perms(0555));
    {
        const SinPrivilegios otro;
        EXPECT_EQ(NumeroDe([&] { LeeOctetos(oculto); }), 70);
        EXPECT_EQ(NumeroDe([&] { LectorTrozos{oculto}; }), 70);
        EXPECT_EQ(NumeroDe([&] { EscribeFichero(oculto, "y"); }), 70);
        EXPECT_EQ(NumeroDe([&] { ReemplazaFichero(dentro, "y"); }), 70);
        EXPECT_EQ(NumeroDe([&] { EscribeFichero(c.Ruta("cerrada/nuevo"), "y"); }), 70);
    }
    fs::permissions(c.Ruta("cerrada"), fs::perms(0755));
    EXPECT_EQ(LeeTodo(dentro), "x");
}

TEST(LectorTrozos, JoinsToTheWholeFileAndIsShortAtItsEndAlone)
{
    const Carpeta c;
    const std::string datos = std::string(70000, 'a') + std::string("\0\x1A\r\n", 4);
    LectorTrozos lector(c.Escribe("a.dat", datos));
    std::string leido, trozo(1000, ' ');
    std::size_t n;
    while ((n = lector.Lee(trozo)) == trozo.size())
        leido += trozo;
    EXPECT_TRUE(leido + trozo.substr(0, n) == datos);
    EXPECT_EQ(lector.Lee(trozo), 0U);
    EXPECT_TRUE(LeeOctetos(c.Ruta("a.dat")) == datos);
}

TEST(BuscaSinCaja, TheExactSpellingWinsAndOnlyTheLastNameIsSought)
{
    const Carpeta c;
    fs::create_directory(c.Ruta("Sub"));
    for (const char* nombre : {"Rec.CFG", "b.cfg", "B.CFG", "Sub/Uno.hdr"})
        c.Escribe(nombre, "");
    for (const auto& [busca, halla] : {std::pair{"rec.cfg", "Rec.CFG"},
                                       {"b.cfg", "b.cfg"},
                                       {"B.CFG", "B.CFG"},
                                       {"Sub/UNO.HDR", "Sub/Uno.hdr"},
                                       {"sub/Uno.hdr", "sub/Uno.hdr"},
                                       {"rec.cf", "rec.cf"}})
        EXPECT_EQ(BuscaSinCaja(c.Ruta(busca)), c.Ruta(halla));
}

TEST(ReemplazaFichero, ADiskThatFillsAtAnyOctetLeavesTheOldFileAndNothingElse)
{
    const Carpeta c;
    const std::string viejo = "old contents\r\n", nuevo = "1\r\n/datos\r\n/plantillas\r\n";
    const std::string ruta = c.Escribe("tools.ini", viejo);
    for (std::size_t n = 0; n < nuevo.size(); ++n) {
        const DiscoCorto disco(static_cast<long long>(n));
        EXPECT_EQ(NumeroDe([&] { ReemplazaFichero(ruta, nuevo); }), 61) << n;
        ASSERT_EQ(LeeTodo(ruta), viejo) << n;
        ASSERT_EQ(Entradas(c.Ruta()), 1U) << n;
    }
    const DiscoCorto disco(static_cast<long long>(nuevo.size()));
    ReemplazaFichero(ruta, nuevo);
    EXPECT_EQ(LeeTodo(ruta), nuevo);
    EXPECT_EQ(Entradas(c.Ruta()), 1U);
}

TEST(ReemplazaFichero, KeepsPermissionsAndAFolderInItsWay)
{
    const Carpeta c;
    const std::string ruta = c.Escribe("ficher.ini", "x");
    for (const mode_t modo : {0600U, 0640U, 0664U}) {
        ASSERT_EQ(chmod(ruta.c_str(), modo), 0);
        ReemplazaFichero(ruta, "y");
        struct stat s {};
        ASSERT_EQ(stat(ruta.c_str(), &s), 0);
        EXPECT_EQ(s.st_mode & 07777U, modo);
    }
    fs::create_directories(c.Ruta("carpeta/dentro"));
    EXPECT_EQ(NumeroDe([&] { ReemplazaFichero(c.Ruta("carpeta"), "y"); }), 75);
    EXPECT_EQ(Entradas(c.Ruta()), 2U);
}

TEST(EscribeFichero, AFullDiskLeavesTheHalfThatFitted)
{
    const Carpeta c;
    const std::string ruta = c.Escribe("a.cnf", "a longer old template");
    const DiscoCorto disco(3);
    EXPECT_EQ(NumeroDe([&] { EscribeFichero(ruta, "ver 1.1"); }), 61);
    EXPECT_EQ(LeeTodo(ruta), "ver");
}

TEST(CarpetaPrograma, KeepsLinksAmongFoldersHoweverItWasStarted)
{
    const Carpeta c;
    fs::create_directories(c.Ruta("real/EXE"));
    c.Escribe("real/EXE/programa", "#!/bin/sh\n");
    fs::permissions(c.Ruta("real/EXE/programa"), fs::perms(0755));
    fs::create_directory_symlink("real", c.Ruta("enlace"));
    const std::string esperada = c.Ruta("enlace/EXE");
    EXPECT_EQ(CarpetaPrograma((esperada + "/programa").c_str()), esperada);

    const fs::path antes = fs::current_path();
    fs::current_path(c.Ruta());
    EXPECT_EQ(CarpetaPrograma("enlace/EXE/programa"), esperada);
    fs::current_path(antes);

    const std::string caminos = std::getenv("PATH");
    setenv("PATH", ("/nowhere:" + esperada + ":" + caminos).c_str(), 1);
    EXPECT_EQ(CarpetaPrograma("programa"), esperada);
    setenv("PATH", caminos.c_str(), 1);
}

TEST(ValorPerfil, SectionsKeysAndQuotes)
{
    const Carpeta c;
    const std::string ruta = c.Escribe("perfil.ini",
                                       "path=outside\r\n[Otra]\r\npath=wrong\r\n[qorvant]\r\n"
                                       "path2=no\r\n Path  =  \"/opt/a b/conv\" \r\nigual=a=b\r\n"
                                       "sola=\"x\r\nvacia=\r\n[TEXTO]\r\npagina=CP850");
    using Tres = std::array<const char*, 3>;
    for (const auto& [seccion, clave, valor] : {Tres{"QORVANT", "path", "/opt/a b/conv"},
                                                {"Qorvant", "IGUAL", "a=b"},
                                                {"QORVANT", "sola", "\"x"},
                                                {"QORVANT", "vacia", ""},
                                                {"QORVANT", "pagina", ""},
                                                {"TEXTO", "pagina", "CP850"},
                                                {"TEXTO", "path", ""},
                                                {"FALTA", "path", ""},
                                                {"QORVANT", "pat", ""}})
        EXPECT_EQ(ValorPerfil(ruta, seccion, clave), valor) << seccion << ' ' << clave;
    EXPECT_EQ(ValorPerfil(c.Ruta("falta.ini"), "TEXTO", "pagina"), "");
}

TEST(Tablas, AnIndexOutOfBoundsNeverReachesANeighbour)
{
    Tabla2<float> t(2, 3);
    for (const auto& [f, k] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 4}, {2, -2}, {INT_MIN, INT_MAX}})
        EXPECT_EQ(NumeroDe([&, f = f, k = k] { t(f, k) = 1; }), 9) << f << ' ' << k;
    EXPECT_EQ(NumeroDe([&] { t.fila(3); }), 9);
    EXPECT_EQ(NumeroDe([&] { t.UBound(3); }), 9);
    t.fila(2)[0] = 5;
    EXPECT_EQ(t(2, 1), 5.0F);

    Tabla1<std::string> u(0, 2);
    for (const int i : {-1, 3, INT_MAX, INT_MIN})
        EXPECT_EQ(NumeroDe([&] { u(i) = "x"; }), 9) << i;
    EXPECT_EQ(NumeroDe([&] { u(0) = "x"; }), 0);

    Tabla1<float> nunca;
    Tabla2<float> tampoco;
    EXPECT_EQ(NumeroDe([&] { nunca(1) = 0; }), 9);
    EXPECT_EQ(NumeroDe([&] { nunca.UBound(); }), 9);
    EXPECT_EQ(NumeroDe([&] { tampoco.LBound(1); }), 9);
    EXPECT_EQ(NumeroDe([&] { tampoco.fila(1); }), 9);
}

TEST(Tablas, SizesThatCannotBe)
{
    EXPECT_EQ(NumeroDe([] { Tabla1<float>{0}; }), 9);
    EXPECT_EQ(NumeroDe([] { Tabla1<std::string>(1, -5); }), 9);
    EXPECT_EQ(NumeroDe([] { Tabla2<float>(3, 0); }), 9);
    EXPECT_EQ(NumeroDe([] { Tabla2<float>(0, 3); }), 9);
    EXPECT_EQ(NumeroDe([] { Tabla2<float>(32767, 8192); }), 0);
    EXPECT_EQ(NumeroDe([] { Tabla2<float>(32767, 8193); }), 7);  // 98 KiB over 1 GiB
    EXPECT_EQ(NumeroDe([] { Tabla2<float>(INT_MAX, INT_MAX); }), 7);
    EXPECT_EQ(NumeroDe([] { Tabla1<std::string>{INT_MAX}; }), 7);
    EXPECT_EQ(NumeroDe([] { Tabla1<std::uint8_t>(INT_MIN, INT_MAX); }), 7);
}

TEST(Tablas, ALargeTableStartsAtZeroAndACopyIsItsOwn)
{
    Tabla2<float> t(1024, 4096);  // 16 MiB
    for (int f = 1; f <= 1024; ++f)
        ASSERT_TRUE(t(f, 1) == 0.0F && t(f, 4096) == 0.0F) << f;
    t(1024, 4096) = 7;
    Tabla2<float> copia = t;
    copia(1024, 4096) = 8;
    EXPECT_EQ(t(1024, 4096), 7.0F);
    t = Tabla2<float>(1, 1);
    EXPECT_EQ(t(1, 1), 0.0F);
    EXPECT_EQ(copia(1024, 4096), 8.0F);
}

}  // namespace
}  // namespace veldix
