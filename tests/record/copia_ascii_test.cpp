#include "record/copia_ascii.h"

#include <map>
#include <sstream>
#include <vector>

#include "platform/ficheros.h"
#include "record/abrir_registro.h"
#include "record/avance.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::ConFinales, prueba::LeeTodo, prueba::NumeroDeError;

/// A BINARY record `d/rec` of two whole samples of two analog channels and a piece of a third one; of its
/// digital channels 1 and 16 are set.
class CopiaAscii : public testing::Test {
protected:
    CopiaAscii()
    {
        fs::create_directory(c.Ruta("d"));
        fs::permissions(c.Ruta(), fs::perms(0777));
        fs::permissions(c.Ruta("d"), fs::perms(0777));
    }
    ~CopiaAscii() override { LimitaDisco(-1); }

    static std::string Cfg(const char* linea1, int digitales, std::string_view final)
    {
        std::string lineas = std::string(linea1) + "|2,2A," + std::to_string(digitales) + "D";
        for (const char* canal : {"|1,IA", "|2,IB"})
            lineas += std::string(canal) + ",A,C,kA,0.5,-1,0,-9,9,2,1,P";
        for (int k = 1; k <= digitales; ++k)
            lineas += "|" + std::to_string(k) + ",D,0";
        return ConFinales(lineas + "|50|1|0,3|f1|f2").append(final);
    }
    void Abre(const std::string& cfg, int digitales)
    {
        const auto palabras = static_cast<std::size_t>(digitales + 15) / 16;
        std::vector<std::int16_t> dat;
        for (const std::int16_t i : {1, 2}) {
            dat.insert(dat.end(), {i, 0, static_cast<std::int16_t>(2000 * i - 1000), 0, -2, 300});
            for (std::size_t w = 0; w < palabras; ++w)
                dat.push_back(w == 0 ? std::int16_t{-0x7FFF} : std::int16_t{0});
        }
        dat.insert(dat.end(), {3, 0});
        c.Escribe("d/rec.dat", std::string(reinterpret_cast<const char*>(dat.data()), 2 * dat.size()) + "x");
        c.Escribe("d/rec.cfg", cfg);
        NombraPorTronco(s, c.Ruta("d/rec.dat"));
        ASSERT_EQ(AbrirRegistro(s), 0);
        s.FicheroAscii = c.Ruta("d/copia");
    }
    void Abre() { Abre(Cfg("E,R", 1, "BINARY\r\n"), 1); }
    /// Of each sample its time, both values, the primary ones of 1997 and the first states.
    static std::string Valores(const RecordStore& r)
    {
        std::ostringstream o;
        for (int i = 1; i <= r.Muestras.Filas(); ++i) {
            o << r.Tiempos(i) << ' ' << r.Muestras(i, 1) << ' ' << r.Muestras(i, 2);
            if (!r.MuestrasSec.Vacia()) o << ' ' << r.MuestrasPrim(i, 2) << ' ' << r.MuestrasSec(i, 2);
            for (int d = 1; d <= r.MuestrasDig.Columnas(); ++d)
                o << ' ' << r.MuestrasDig(i, d);
            o << ';';
        }
        return o.str();
    }
    /// The files of the folder.
    std::map<std::string, std::string> Ficheros() const
    {
        std::map<std::string, std::string> todos;
        for (const auto& f : fs::directory_iterator(c.Ruta("d")))
            todos[f.path().filename()] = f.is_directory() ? "" : LeeTodo(f.path());
        return todos;
    }

    prueba::Carpeta c;
    prueba::RespondeCajas cajas;
    RecordStore s;
};

TEST_F(CopiaAscii, OctetsDifferOrDoNotReadBackAsTheSource)
{
    const std::string diecisiete = ",1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1,0";
    const struct {
        const char *linea1, *final, *copiado;
        int digitales;
        std::string estados;
        bool abre = true;
    } casos[] = {
        {"E,R", "BINARY\r\n", "ASCII\r\n\r\n", 17, diecisiete},
        {"E,R", "BINARY\n\x1A", "ASCII\r\n\r\n", 16, diecisiete.substr(0, 32)},
        {"E,R,1997", "BINARY\r\n1\r\n", "ASCII\r\r\n1\r\n\r\n", 17, diecisiete},
        {"E,R,1997", "BINARY\r\n5", "ASCII\r\r\n5\r\n\r\n", 0, ""},
        {"E,R,1997", "BINARY\r\n10\r\n", "BASCII\r\r\n10\r\n\r\n", 1, ",1", false},
    };
    const prueba::Separa coma(",", ".");
    for (const auto& k : casos) {
        SCOPED_TRACE(std::string(k.linea1) + k.final + std::to_string(k.digitales));
        Abre(Cfg(k.linea1, k.digitales, k.final), k.digitales);
        ConvierteAscii(s);
        EXPECT_EQ(LeeTodo(c.Ruta("d/copia.DAT")),
                  " 1,1000,-2,300" + k.estados + "\r\n 2,3000,-2,300" + k.estados + "\r\n");
        EXPECT_EQ(LeeTodo(c.Ruta("d/copia.cfg")), Cfg(k.linea1, k.digitales, k.copiado));
        EXPECT_FALSE(ExisteFichero(c.Ruta("d/copia.hdr")));

        RecordStore leida;
        NombraPorTronco(leida, c.Ruta("d/copia.DAT"));
        if (!k.abre) cajas.Espera(Textos(277), Icono::Ninguno);
        ASSERT_EQ(AbrirRegistro(leida), k.abre ? 0 : -1);
        if (!k.abre) continue;
        EXPECT_EQ(leida.TimeMult, 0) << "that of 1997 is lost";
        EXPECT_EQ(Valores(leida), Valores(s));
    }
}

TEST_F(CopiaAscii, LongRecordLosesOrRepeatsAPiece)
{
    std::vector<std::int16_t> dat;
    std::string lineas;
    for (int i = 0; i < 30000; ++i) {
        const auto x = static_cast<std::int16_t>(i * 2 - 32768);
        dat.insert(dat.end(), {x, std::int16_t{-1}, 0, std::int16_t{-0x8000}, x, 1});
        lineas +=
            " " + std::to_string(x < 0 ? x : x - 65536) + ",-2147483648," + std::to_string(x) + ",1\r\n";
    }
    s.FicheroDat = c.Escribe("d/l.dat", {reinterpret_cast<const char*>(dat.data()), 2 * dat.size()});
    s.Muestras = Tabla2<float>(30000, 1);
    s.NumDigital = 1;
    s.FicheroAscii = c.Ruta("d/copia");
    std::string barra;
    ganchosRegistro.MuestraGasolino2 = [&](int maximo) { barra = "0/" + std::to_string(maximo); };
    ganchosRegistro.PonGasolino2 = [&](int valor) { barra += valor <= 2 ? " " + std::to_string(valor) : ""; };
    ganchosRegistro.DescargaGasolino2 = [&] { barra += " gone"; };
    FicherosNuevos copia;
    EscribeAsciiDat(s, copia);
    ganchosRegistro = {};
    EXPECT_FALSE(ExisteFichero(c.Ruta("d/copia.DAT"))) << "before the others are written";
    copia.Confirma();
    EXPECT_TRUE(LeeTodo(c.Ruta("d/copia.DAT")) == lineas);
    EXPECT_EQ(barra, "0/30000 1 2 gone");
}

TEST_F(CopiaAscii, EndOfAnOddConfigurationIsRewrittenOrTheCopyIsNotMade)
{
    const std::string cfg = Cfg("E,R", 1, "BINARY\n");  // an octet longer as a copy
    const struct {
        std::size_t largo;
        const char* revision;
        int error;
    } casos[] = {{32767, "1991", 0}, {32768, "1991", 6}, {32768, "1999", 6},
                 {32767, "1999", 0}, {7, "1991", 5},     {10, "1997", 5}};
    for (const auto& k : casos) {
        SCOPED_TRACE(std::to_string(k.largo) + k.revision);
        Abre();
        s.RevisionCfg = k.revision;
        const std::size_t sobra = k.largo > cfg.size() ? k.largo - cfg.size() - 1 : 0;
        const std::string larga =
            k.largo > cfg.size() ? std::string(sobra, 'N') + cfg : std::string(k.largo - 2, 'N') + "\n";
        c.Escribe("d/rec.cfg", larga);
        EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), k.error);
        const std::string lineas = Une(Lineas(larga));
        const bool reescrita = k.error == 0 && s.RevisionCfg == "1991";
        ASSERT_EQ(lineas.size(), k.largo);
        EXPECT_EQ(LeeTodo(c.Ruta("d/copia.cfg")),
                  reescrita ? lineas.substr(0, k.largo - 8) + "ASCII\r\n\r\n" : lineas);
        EXPECT_TRUE(ExisteFichero(c.Ruta("d/copia.DAT")));
        fs::remove(c.Ruta("d/copia.DAT"));
    }
}

TEST_F(CopiaAscii, FailureTouchesAFileOfTheUserOrHasAnotherNumber)
{
    c.Escribe("d/rec.HDR", std::string("h\0\n\xFF", 4));
    for (const char* nombre : {"copia.Dat", "copia.cfg", "copia.HDR", "REC.dat"})
        c.Escribe(std::string("d/") + nombre, "de antes");
    for (const auto& [copia, propio] :
         {std::pair(".DAT", "rec.dat"), {".cfg", "rec.cfg"}, {".hdr", "rec.HDR"}}) {
        fs::create_symlink(propio, c.Ruta(std::string("d/liga") + copia + copia));
        fs::create_directory(c.Ruta(std::string("d/carpeta") + copia + copia));
    }
    Abre(Cfg("E,R,1997", 1, "BINARY\r\n1\r\n"), 1);
    c.Escribe("d/r.v2.dat", LeeTodo(s.FicheroDat));
    for (const auto& f : fs::directory_iterator(c.Ruta("d")))
        fs::permissions(f.path(), fs::perms(0777));
    fs::create_directory(c.Ruta("cerrada"));
    fs::permissions(c.Ruta("cerrada"), fs::perms(0555));
    s.ConvierteYSale = true;
    const auto antes = Ficheros();
    const struct {
        const char *destino, *dat;
        int error;
        int disco = -1;  ///< octets until it is full
    } casos[] = {
        {"rec", "rec", 55},         {"rEc", "rec", 55},         {"../d/Rec", "rec", 55},
        {"liga.DAT", "rec", 55},    {"liga.cfg", "rec", 55},    {"liga.hdr", "rec", 55},
        {"rec", "r.v2", 55},        {"no/x", "rec", 76},        {"rec.dat/x", "rec", 76},
        {"carpeta.DAT", "rec", 75}, {"carpeta.cfg", "rec", 75}, {"carpeta.hdr", "rec", 75},
        {"copia", "r.v2", 53},      {"copia", "otro", 53},      {"../cerrada/x", "rec", 70},
        {"copia", "rec", 61, 20},   {"copia", "rec", 61, 38},   {"copia", "rec", 61, 60},
    };
    for (const auto& k : casos) {
        SCOPED_TRACE(std::string(k.dat) + " to " + k.destino);
        s.FicheroDat = c.Ruta(std::string("d/") + k.dat + ".dat");
        s.FicheroAscii = c.Ruta(std::string("d/") + k.destino);
        LimitaDisco(k.disco);
        {
            const prueba::SinPrivilegios nadie;
            EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), k.error);
        }
        LimitaDisco(-1);
        EXPECT_EQ(Ficheros(), antes);
        // Only behind the first refusal are the samples dropped.
        EXPECT_EQ(s.MuestrasPrim(1, 2), k.error == 55 ? 149.0F : 0.0F);
    }
    EXPECT_EQ(Valores(s), "1000 0 0 0 0 0;3000 0 0 0 0 0;0 0 0 0 0 0;");

    // Where only owners may rename, a file of another's keeps its companions too.
    fs::create_directory(c.Ruta("de_todos"));
    fs::permissions(c.Escribe("de_todos/x.cfg", "suyo"), fs::perms(0666));
    fs::permissions(c.Ruta("de_todos"), fs::perms(01777));
    s.FicheroAscii = c.Ruta("de_todos/x");
    const bool ajeno = geteuid() == 0;
    {
        const prueba::SinPrivilegios nadie;
        EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), ajeno ? 70 : 0);
    }
    EXPECT_EQ(ExisteFichero(c.Ruta("de_todos/x.DAT")), !ajeno);
}

/// Names that are there, one that is typed, and the one whose files the copy becomes.
TEST_F(CopiaAscii, FilesOfTwoRecordsAreMixed)
{
    const struct {
        std::vector<const char*> hay;
        const char *tecleado, *dat, *cfg;
    } casos[] = {
        {{}, "x", "x.DAT", "x.cfg"},
        {{"x.dat", "x.CFG"}, "x", "x.dat", "x.CFG"},
        {{"X.dat", "X.cfg"}, "x", "X.dat", "X.cfg"},
        {{"X.dat", "X.cfg", "x.dat", "x.cfg"}, "x", "x.dat", "x.cfg"},
        {{"x.DAT", "X.dat", "X.cfg"}, "x", "x.DAT", "x.cfg"},
        {{"x.cfg", "X.Dat"}, "x", "X.Dat", "X.cfg"},
        {{"x.DAT", "x.dAt", "x.daT"}, "x", "x.DAT", "x.cfg"},
        {{"x.dAT", "x.Dat", "x.daT"}, "x", "x.Dat", "x.cfg"},
    };
    Abre();
    c.Escribe("d/rec.hdr", "h");
    for (const auto& k : casos) {
        for (const char* nombre : k.hay)
            c.Escribe(std::string("d/") + nombre, nombre);
        s.FicheroAscii = c.Ruta(std::string("d/") + k.tecleado);
        EXPECT_EQ(ExisteCopia(s), !k.hay.empty());
        ConvierteAscii(s);
        auto todos = Ficheros();
        EXPECT_TRUE(todos[k.dat].starts_with(" 1,1000,")) << k.dat;
        EXPECT_TRUE(todos[k.cfg].ends_with("ASCII\r\n\r\n")) << k.cfg;
        EXPECT_EQ(todos[std::string(k.dat).substr(0, 1) + ".hdr"], "h") << k.dat;
        for (const char* nombre : k.hay)
            if (std::string_view(nombre) != k.dat && std::string_view(nombre) != k.cfg) {
                EXPECT_EQ(todos[nombre], nombre);
            }
        for (const auto& [nombre, octetos] : todos)
            if (!nombre.starts_with("rec")) fs::remove(c.Ruta("d/" + nombre));
    }
}

}  // namespace
}  // namespace veldix
