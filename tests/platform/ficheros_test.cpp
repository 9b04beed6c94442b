#include "platform/ficheros.h"

#include <sys/stat.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <tuple>

#include "platform/perfil.h"
#include "platform/tabla.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::Carpeta, prueba::LeeTodo, prueba::NumeroDeError, prueba::SinPrivilegios;

TEST(Ficheros, FailWithTheNumberOfWhatIsMissingOrForbidden)
{
    const Carpeta c;
    const std::string oculto = c.Escribe("oculto", "x"), dentro = c.Ruta("cerrada/dentro");
    fs::create_directory(c.Ruta("cerrada"));
    fs::permissions(c.Escribe("cerrada/dentro", "x"), fs::perms(0444));
    fs::permissions(c.Ruta(), fs::perms(0777));
    fs::permissions(oculto, fs::perms::none);
    fs::permissions(c.Ruta("cerrada"), fs::perms(0555));
    const std::tuple<std::string, int, int, int> casos[] = {{"", 75, 75, 75},
                                                            {c.Ruta(), 75, 75, 75},
                                                            {oculto + "/b.dat", 76, 76, 76},
                                                            {c.Ruta("no/falta.dat"), 76, 76, 76},
                                                            {c.Ruta("falta.dat"), 53, 0, 0},
                                                            {oculto, 70, 70, 70},
                                                            {dentro, 0, 70, 70},
                                                            {c.Ruta("cerrada/nuevo"), 53, 70, 70}};
    {
        const SinPrivilegios nadie;
        for (const auto& [ruta, lee, reemplaza, escribe] : casos) {
            EXPECT_EQ(NumeroDeError([&, r = ruta] { LeeOctetos(r); }), lee) << ruta;
            EXPECT_EQ(NumeroDeError([&, r = ruta] { ReemplazaFichero(r, "y"); }), reemplaza) << ruta;
            EXPECT_EQ(NumeroDeError([&, r = ruta] { EscribeFichero(r, "y"); }), escribe) << ruta;
        }
    }
    EXPECT_EQ(LeeTodo(dentro), "x");
    fs::permissions(c.Ruta("cerrada"), fs::perms(0755));
}

TEST(BuscaSinCaja, TheExactSpellingWinsAndOnlyTheLastNameIsSought)
{
    const Carpeta c;
    fs::create_directory(c.Ruta("Sub"));
    for (const char* nombre : {"Rec.CFG", "REC.cfg", "b.cfg", "B.CFG", "Sub/Uno.hdr"})
        c.Escribe(nombre, "");
    EXPECT_EQ(BuscaSinCaja(c.Ruta("rec.cfg")), c.Ruta("REC.cfg"));
    EXPECT_EQ(BuscaSinCaja(c.Ruta("b.cfg")), c.Ruta("b.cfg"));
    EXPECT_EQ(BuscaSinCaja(c.Ruta("Sub/UNO.HDR")), c.Ruta("Sub/Uno.hdr"));
    EXPECT_EQ(BuscaSinCaja(c.Ruta("sub/Uno.hdr")), c.Ruta("sub/Uno.hdr"));
}

TEST(ReemplazaFichero, AFullDiskLeavesTheOldFileAndNothingElse)
{
    const Carpeta c;
    const std::string ruta = c.Escribe("tools.ini", "old contents\r\n");
    fs::create_symlink("tools.ini", c.Ruta("enlace"));
    fs::permissions(ruta, fs::perms(0664));
    for (int n = 0; n <= 5; ++n) {
        LimitaDisco(n);
        EXPECT_EQ(NumeroDeError([&] { ReemplazaFichero(c.Ruta("enlace"), "nuevo"); }), n < 5 ? 61 : 0) << n;
        LimitaDisco(-1);
        EXPECT_EQ(LeeTodo(ruta), n < 5 ? "old contents\r\n" : "nuevo") << n;
        EXPECT_EQ(std::distance(fs::directory_iterator(c.Ruta()), {}), 2) << n;
    }
    EXPECT_EQ(fs::status(ruta).permissions(), fs::perms(0664));
    EXPECT_TRUE(fs::is_symlink(c.Ruta("enlace")));
    const mode_t antes = umask(0027);
    ReemplazaFichero(c.Ruta("otro"), "x");
    umask(antes);
    EXPECT_EQ(fs::status(c.Ruta("otro")).permissions(), fs::perms(0640)) << "the user's mask";
}

TEST(CarpetaPrograma, KeepsLinksAmongFoldersHoweverItWasStarted)
{
    const Carpeta c;
    fs::create_directories(c.Ruta("real/EXE"));
    fs::permissions(c.Escribe("real/EXE/programa", "#!/bin/sh\n"), fs::perms(0755));
    fs::create_directory_symlink("real", c.Ruta("enlace"));
    fs::create_symlink("enlace/EXE/programa", c.Ruta("veldix"));
    const std::string esperada = c.Ruta("enlace/EXE"), caminos = std::getenv("PATH");
    const fs::path antes = fs::current_path();
    fs::current_path(c.Ruta());
    setenv("PATH", ("/nowhere:" + esperada + ":" + caminos).c_str(), 1);
    for (const std::string& argv0 : {esperada + "/programa", std::string("enlace/EXE/programa"),
                                     std::string("programa"), c.Ruta("veldix")})
        EXPECT_EQ(CarpetaPrograma(argv0.c_str()), esperada) << argv0;
    setenv("PATH", caminos.c_str(), 1);
    fs::current_path(antes);
}

TEST(ValorPerfil, SectionsKeysAndQuotes)
{
    const Carpeta c;
    const std::string ruta =
        c.Escribe("perfil.ini",
                  "path=outside\r\n[qorvant]\r\npath2=no\r\n Path  =  \"/opt/a b/conv\" \r\n"
                  "igual=a=b\r\nsola=\"x\r\n[TEXTO]\r\npagina=CP850");
    const std::tuple<const char*, const char*, const char*> casos[] = {
        {"QORVANT", "path", "/opt/a b/conv"}, {"Qorvant", "IGUAL", "a=b"},
        {"QORVANT", "sola", "\"x"},           {"QORVANT", "pagina", ""},
        {"TEXTO", "pagina", "CP850"},         {"TEXTO", "path", ""}};
    for (const auto& [seccion, clave, valor] : casos)
        EXPECT_EQ(ValorPerfil(ruta, seccion, clave), valor) << seccion << ' ' << clave;
}

TEST(Tablas, RefuseIndicesAndSizesThatCannotBeAndAreCopiedWhole)
{
    Tabla2<float> t(2, 3);
    for (const auto& [f, k] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 4}, {INT_MIN, INT_MAX}})
        EXPECT_EQ(NumeroDeError([&, f = f, k = k] { t(f, k) = 1; }), 9) << f << ' ' << k;
    EXPECT_EQ(NumeroDeError([&] { t.fila(3); }), 9);
    Tabla1<std::string> u(0, 2);
    for (const int i : {-1, 3, INT_MIN, 0})
        EXPECT_EQ(NumeroDeError([&] { u(i) = "x"; }), i == 0 ? 0 : 9) << i;
    EXPECT_EQ(NumeroDeError([] { Tabla1<float>().UBound(); }), 9);
    EXPECT_EQ(NumeroDeError([] { Tabla2<float>().fila(1); }), 9);

    EXPECT_EQ(NumeroDeError([] { Tabla1<float>{0}; }), 9);
    EXPECT_EQ(NumeroDeError([] { Tabla2<float>(32767, 8193); }), 7);  // 98 KiB over 1 GiB
    EXPECT_EQ(NumeroDeError([] { Tabla1<std::string>{INT_MAX}; }), 7);
    for (const int filas : {1, 1024}) {  // 16 KiB and 16 MiB
        Tabla2<float> lleno(filas, 4096);
        EXPECT_EQ(lleno(filas, 4096), 0.0F);
        lleno(filas, 4096) = 7;
        Tabla2<float> copia = lleno;
        lleno = Tabla2<float>(1, 1);
        EXPECT_EQ(copia(filas, 4096), 7.0F);
    }
}

}  // namespace
}  // namespace veldix
