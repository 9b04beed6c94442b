#include "platform/jet.h"

#include <algorithm>
#include <cstdlib>

#include "platform/ficheros.h"
#include "support/soporte.h"

namespace veldix {
namespace {

const std::string kDatos = VELDIX_DATA "/jet/";

/// All fields of a table, those of a row parted by "|", each row with a line end behind.
std::string Vuelca(Recordset r, std::initializer_list<const char*> campos)
{
    std::string todo;
    for (; !r.Eof(); r.MoveNext()) {
        for (const char* campo : campos)
            todo += r.Texto(campo) + "|";
        todo += "\n";
    }
    return todo;
}

TEST(Jet, FieldsOrNullsReadOtherThanTheyWereStored)
{
    setenv("MDBICONV", "ISO-8859-1", 1);
    const BaseJet base(kDatos + "uno.mdb");
    EXPECT_EQ(
        Vuelca(base.AbreTabla("vdosmedidas OSCILOS Uno"), {"$ID", "nombre", "NombreIngles", "Unidades"}),
        "1|Intensidad fase A|Phase A current|A|\n2|Tensión fase B||kV|\n5|ñandú|||\n");
    EXPECT_EQ(Vuelca(base.AbreTabla("PEst UNO"), {"ByteOscilo", "Descripcion"}),
              "0|Disparo|\n-1|No registrada|\n32767|Arranque señal|\n-1||\n-32768||\n12|Último|\n");
    const BaseJet tipos(kDatos + "movidas.mdb");
    EXPECT_EQ(tipos.Tablas(), (std::vector<std::string>{"Movidas", "Tipos"}));
    EXPECT_TRUE(Vuelca(tipos.AbreTabla("Tipos"), {"Corto", "Largo", "Texto"})
                    .starts_with("-32768|-2147483648|mínimos|\n32767|2147483647|máximos|\n0|0||\n-1|-1|x|\n"
                                 "|1|sin corto|\n2||sin largo|\n3|3||\n|||\n4|65536|ñ|\n5|5|añ|\n6|6|Ω€|\n"));
}

TEST(Jet, MovedRowsLoseTheirPlaceOrDeletedOnesComeBack)
{
    Recordset r = BaseJet(kDatos + "movidas.mdb").AbreTabla("Movidas");
    const std::vector<int> borradas{1, 33, 61, 100, 101, 102, 180, 200};
    std::vector<int> vistas, esperadas;
    for (int i = 1; i <= 200; ++i)
        if (std::find(borradas.begin(), borradas.end(), i) == borradas.end()) esperadas.push_back(i);
    for (; !r.Eof(); r.MoveNext()) {
        vistas.push_back(static_cast<int>(r.Numero("$Id")));
        EXPECT_NE(r.Texto("Nombre").find(" " + r.Texto("$Id") + " "), std::string::npos) << r.Texto("$Id");
    }
    EXPECT_EQ(vistas, esperadas);
    r.MoveLast();
    EXPECT_EQ(r.Texto("$Id"), "199");
    r.MoveFirst();
    EXPECT_EQ(r.Texto("$Id"), "2");
}

TEST(Jet, AFailureHasTheWrongNumber)
{
    const prueba::Carpeta c;
    const std::string buena = prueba::LeeTodo(kDatos + "vacio.mdb");
    std::string acc = buena;
    acc[0x14] = 2;
    const auto abre = [&](const std::string& nombre, const std::string& octetos) {
        return prueba::NumeroDeError([&] { BaseJet(c.Escribe(nombre, octetos)); });
    };
    EXPECT_EQ(abre("t.mdb", "no database") + abre("v.mdb", "") + abre("a.mdb", acc), 3 * 3343);
    EXPECT_EQ(abre("c.mdb", buena.substr(0, 9000)), 3343);
    for (const auto& [ruta, numero] :
         {std::pair{c.Ruta("no/x.mdb"), 3044}, {c.Ruta("x.mdb"), 3024}, {c.Ruta(), 3343}})
        EXPECT_EQ(prueba::NumeroDeError([&, &r = ruta] { BaseJet base(r); }), numero) << ruta;
    Recordset vacio = BaseJet(kDatos + "vacio.mdb").AbreTabla("VDOSMedidas oscilos vacio");
    EXPECT_TRUE(vacio.Eof());
    const auto numero = [](auto&& f) { return prueba::NumeroDeError(f); };
    EXPECT_EQ(numero([&] { vacio.MoveLast(); }), 3021);
    EXPECT_EQ(numero([&] { vacio.MoveNext(); }), 3021);
    EXPECT_EQ(numero([&] { vacio.Texto("Nombre"); }), 3021);
    EXPECT_EQ(numero([] { BaseJet(kDatos + "vacio.mdb").AbreTabla("PEst vacio"); }), 3265);
    Recordset uno = BaseJet(kDatos + "uno.mdb").AbreTabla("PEst UNO");
    EXPECT_EQ(numero([&] { uno.Texto("Byte"); }), 3265);
    EXPECT_EQ(numero([&] { uno.Numero("Descripcion"); }), 13);
}

}  // namespace
}  // namespace veldix
