#include "record/copia_ascii.h"

#include <map>
#include <vector>

#include "platform/ficheros.h"
#include "record/abrir_registro.h"
#include "record/avance.h"
#include "record/leer_dat.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;
using prueba::ConFinales, prueba::LeeTodo, prueba::NumeroDeError;

/// A BINARY record `d/rec` of two whole samples of two analog channels and a piece of a third one; of its
/// digital channels 1 and 16 are set.
class Copia : public testing::Test {
protected:
    Copia()
    {
        fs::create_directory(c.Ruta("d"));
        fs::permissions(c.Ruta(), fs::perms(0777));
        fs::permissions(c.Ruta("d"), fs::perms(0777));
    }
    ~Copia() override { LimitaDisco(-1); }

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
    /// The files of the folder.
    std::map<std::string, std::string> Ficheros() const
    {
        std::map<std::string, std::string> todos;
        for (const auto& f : fs::directory_iterator(c.Ruta("d")))
            todos[f.path().filename()] = LeeTodo(f.path());
        return todos;
    }

    prueba::Carpeta c;
    prueba::RespondeCajas cajas;
    RecordStore s;
};

TEST_F(Copia, OctetsDifferOrDoNotReadBackAsTheSource)
{
    const std::string diecisiete = ",1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1,0";
    const struct {
        const char *linea1, *final, *copiado;
        int digitales;
        std::string estados;
        bool abre = true;
    } casos[] = {
        {"E,R", "BINARY\r\n", "ASCII\r\n\r\n", 17, diecisiete},
        {"E,R", "BINARY\r\n", "ASCII\r\n\r\n", 16, diecisiete.substr(0, 32)},
        {"E,R,", "BINARY\r\n", "ASCII\r\n\r\n", 0, ""},
        {"E,R,1997", "BINARY\r\n1\r\n", "ASCII\r\r\n1\r\n\r\n", 17, diecisiete},
        {"E,R,1997", "BINARY\r\n5", "ASCII\r\r\n5\r\n\r\n", 0, ""},
        {"E,R,1997", "BINARY\r\n10\r\n", "BASCII\r\r\n10\r\n\r\n", 1, ",1", false},
        {"E,R", "binary", "ASCII\r\n\r\n", 1, ",1"},
        {"E,R", "BINARY\n\x1A", "ASCII\r\n\r\n", 1, ",1"},
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
        for (int i = 1; i <= 3; ++i) {
            EXPECT_EQ(leida.Tiempos(i), s.Tiempos(i));
            for (int ch = 1; ch <= 2; ++ch) {
                EXPECT_EQ(leida.Muestras(i, ch), s.Muestras(i, ch));
                if (!s.MuestrasSec.Vacia()) {
                    EXPECT_EQ(leida.MuestrasSec(i, ch), s.MuestrasSec(i, ch));
                }
            }
            for (int d = 1; d <= k.digitales; ++d)
                EXPECT_EQ(leida.MuestrasDig(i, d), s.MuestrasDig(i, d));
        }
    }
    Abre(Cfg("E,R,1997", 1, "BINARY\r\n12\r\n"), 1);
    s.RevisionCfg = "1999";
    CopiaCabecera(s);
    EXPECT_EQ(LeeTodo(c.Ruta("d/copia.cfg")), LeeTodo(c.Ruta("d/rec.cfg")));
}

TEST_F(Copia, ConfigurationOver32767OctetsIsRewrittenOrLost)
{
    const std::string cfg = Cfg("E,R", 1, "BINARY\r\n");
    for (const std::size_t largo : {32767U, 32768U}) {
        const std::string larga = std::string(largo - cfg.size(), 'N') + cfg;
        Abre(larga, 1);
        const bool cabe = largo == 32767;
        EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), cabe ? 0 : 6);
        EXPECT_EQ(LeeTodo(c.Ruta("d/copia.cfg")),
                  cabe ? larga.substr(0, largo - 8) + "ASCII\r\n\r\n" : larga);
        EXPECT_EQ(LeeTodo(c.Ruta("d/copia.DAT")).size(), 2 * std::size(" 1,1000,-2,300,1\r"));
    }
}

TEST_F(Copia, FailureTouchesAFileOfTheUserOrHasAnotherNumber)
{
    c.Escribe("d/rec.HDR", std::string("h\0\n\xFF", 4));
    for (const char* extension : {"Dat", "cfg", "HDR"})
        c.Escribe(std::string("d/copia.") + extension, "de antes");
    fs::create_symlink("rec.cfg", c.Ruta("d/liga.cfg"));
    Abre();
    for (const auto& f : fs::directory_iterator(c.Ruta("d")))
        fs::permissions(f.path(), fs::perms(0666));
    const auto antes = Ficheros();
    fs::create_directory(c.Ruta("cerrada"));
    fs::permissions(c.Ruta("cerrada"), fs::perms(0555));
    s.ConvierteYSale = true;
    const std::pair<std::string, int> casos[] = {{"d/rec", 55},   {"d/REC", 55},    {"d/../d/Rec", 55},
                                                 {"d/liga", 55},  {"no/x", 76},     {"d/rec.dat/x", 76},
                                                 {"d/copia", 61}, {"cerrada/x", 70}};
    for (const auto& [destino, error] : casos) {
        s.FicheroAscii = c.Ruta(destino);
        EXPECT_EQ(ExisteCopia(s), error == 55 ? destino != "d/liga" : error == 61) << destino;
        LimitaDisco(error == 61 ? 20 : -1);
        {
            const prueba::SinPrivilegios nadie;
            EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), error) << destino;
        }
        LimitaDisco(-1);
        EXPECT_EQ(Ficheros(), antes) << destino;
        // Only behind the first refusal are the samples dropped.
        EXPECT_EQ(s.Muestras(1, 2), error == 55 ? 149.0F : 0.0F) << destino;
    }
    EXPECT_EQ(s.Muestras.Filas() * 100 + s.MuestrasDig.Filas() * 10 + s.MuestrasDig(1, 1), 330);
    EXPECT_EQ(s.Tiempos(2), 3000);

    s.FicheroAscii = c.Ruta("d/copia");
    std::string barra;
    ganchosRegistro.MuestraGasolino2 = [&](int maximo) { barra += "0/" + std::to_string(maximo); };
    ganchosRegistro.PonGasolino2 = [&](int valor) { barra += " " + std::to_string(valor); };
    ganchosRegistro.DescargaGasolino2 = [&] { barra += " gone"; };
    ConvierteAscii(s);
    ganchosRegistro = {};
    EXPECT_EQ(barra, "0/3 1 2 3 gone");
    auto despues = Ficheros();
    EXPECT_EQ(despues.size(), antes.size()) << "replaced under another spelling";
    EXPECT_EQ(despues["copia.HDR"], antes.at("rec.HDR"));
    EXPECT_TRUE(despues["copia.Dat"].starts_with(" 1,1000,-2,300,1\r\n 2,"))
        << "from the file, not from memory";

    fs::remove(c.Ruta("d/rec.cfg"));
    EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), 53);
    c.Escribe("d/rec.cfg", "x\r\n");
    EXPECT_EQ(NumeroDeError([&] { ConvierteAscii(s); }), 5);
}

}  // namespace
}  // namespace veldix
