#include "shell/forms/Conversion.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>

#include "platform/ficheros.h"
#include "platform/forms/ListaCarpetas.h"
#include "record/avance.h"
#include "shell/forms/Mensaje.h"
#include "shell/forms/gasolino2.h"
#include "shell/forms/poscamb.h"
#include "support/arbol.h"
#include "templates/forms/frmPlantilla.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;

/// A BINARY record opened by the menu.
class Convierte : public prueba::Arbol {
protected:
    Convierte()
    {
        Registro("bin", Cfg("SE UNO,R", "2", "BINARY"));
        c.Escribe("d/bin.dat",
                  std::string("\1\0\0\0\0\0\0\0\7\0\10\0\1\0\2\0\0\0\350\3\0\0\11\0\12\0\0\0", 28));
        Arranca();
    }

    void Abre(const char* dat = "d/bin.dat") { AbreRegistro(dat); }
    /// Opens the record, and the conversion by a button of the choice; types a name.
    void Empieza(const char* boton, const char* nombre)
    {
        frmPlantilla::unica.Descarga();
        Abre();
        Pulsa(boton, poscamb::unica.Cargado());
        ASSERT_TRUE(Conversion::unica.Cargado());
        Senda()->setText(nombre);
    }
    void Acepta() { Pulsa("Aceptar", Conversion::unica.Cargado()); }
    QLineEdit* Senda() const { return Hijo<QLineEdit>("Senda", Conversion::unica.Cargado()); }
    std::string Camin() const { return U(Hijo<QLabel>("camin", Conversion::unica.Cargado())->text()); }
    /// The windows that stand: p choice, c conversion, m help, t template.
    static std::string EnPie()
    {
        return std::string(poscamb::unica.Cargado() ? "p" : "") + (Conversion::unica.Cargado() ? "c" : "") +
               (Mensaje::unica.Cargado() ? "m" : "") + (frmPlantilla::unica.Cargado() ? "t" : "");
    }
};

TEST_F(Convierte, TheChoiceLeadsElsewhereOrOutlivesItsRecord)
{
    const std::tuple<const char*, const char*, bool> botones[] = {{"continuar", "t", true},
                                                                  {"Convertir_continuar", "c", false},
                                                                  {"Convertir_salir", "c", true},
                                                                  {"cmdcancel", "", false}};
    for (const auto& [boton, enPie, sale] : botones) {
        frmPlantilla::unica.Muestra();  // of an earlier record
        Abre();
        EXPECT_EQ(EnPie(), "p");
        store.ConvierteYSale = !sale;
        Pulsa(boton, poscamb::unica.Cargado());
        EXPECT_EQ(EnPie(), enPie) << boton;
        EXPECT_EQ(store.ConvierteYSale, std::string(enPie) == "c" ? sale : !sale) << boton;
        EXPECT_TRUE(store.RegistroAbierto);
    }
    Empieza("Convertir_continuar", "x");
    Pulsa("Ayuda", Conversion::unica.Cargado());
    EXPECT_EQ(EnPie(), "cm");
    Pulsa("OK", Mensaje::unica.Cargado());
    EXPECT_EQ(EnPie() + U(Senda()->text()), "c") << "anew";
    Pulsa("Ayuda", Conversion::unica.Cargado());
    Abre("d/rec.dat");
    EXPECT_EQ(EnPie(), "t") << "an ASCII record";
    for (const bool elegido : {false, true}) {
        Abre();
        if (elegido) Pulsa("Convertir_salir", poscamb::unica.Cargado());
        Accion("mnuCerrarComtrade")->trigger();
        EXPECT_EQ(EnPie(), "");
    }
    Empieza("Convertir_continuar", "x");
    Pulsa("Ayuda", Conversion::unica.Cargado());
    Pulsa("Cancelar", Conversion::unica.Cargado());
    EXPECT_EQ(EnPie(), "");
    Abre();
    QTest::keyClick(poscamb::unica.Cargado(), Qt::Key_Escape);
    EXPECT_EQ(EnPie(), "");
    EXPECT_TRUE(store.RegistroAbierto);
    EXPECT_FALSE(fs::exists(c.Ruta("d/x.DAT")));
}

TEST_F(Convierte, TheCopyIsMadeAgainstTheUserOrTheRecordGoesOnOtherwise)
{
    c.Escribe("d/vieja.dat", "old");
    Empieza("Convertir_continuar", "");
    EXPECT_EQ(Camin(), c.Ruta("d"));
    Acepta();
    EXPECT_EQ(EnPie(), "c") << "no name";
    Senda()->setText("VIEJA");
    cajas->Espera(Textos(167), Icono::Pregunta, Botones::AceptarCancelar, false);
    Acepta();
    EXPECT_EQ(U(Senda()->text()) + Camin(), c.Ruta("d"));
    EXPECT_EQ(prueba::LeeTodo(c.Ruta("d/vieja.dat")), "old");
    fs::create_directory(c.Ruta("d/sub"));
    Hijo<ListaCarpetas>("Dir1", Conversion::unica.Cargado())->Pon(c.Ruta("d/sub"));
    EXPECT_EQ(Camin(), c.Ruta("d/sub"));
    Senda()->setText("copia");
    std::string barra;
    ganchosRegistro.PonGasolino2 = [&, pon = ganchosRegistro.PonGasolino2](int valor) {
        EXPECT_EQ(Camin(), c.Ruta("d/sub/copia"));
        EXPECT_EQ(Conversion::unica.Cargado()->cursor().shape(), Qt::WaitCursor);
        const auto* b = gasolino2::unica.Cargado()->ProgressBar1;
        barra += std::to_string(b->value()) + "->";
        pon(valor);
        barra += std::to_string(b->value()) + "/" + std::to_string(b->maximum()) + " ";
    };
    Acepta();
    EXPECT_EQ(EnPie(), "t");
    EXPECT_EQ(barra, "0->1/2 1->2/2 2->2/2 ");
    EXPECT_FALSE(gasolino2::unica.Cargado());
    EXPECT_EQ(store.Muestras(2, 2), 10.0F);

    ganchosRegistro.PonGasolino2 = [](int) {};
    Empieza("Convertir_salir", "vieja");
    cajas->Espera(Textos(167), Icono::Pregunta, Botones::AceptarCancelar);
    Acepta();
    EXPECT_EQ(EnPie(), "");
    EXPECT_EQ(prueba::LeeTodo(c.Ruta("d/vieja.dat")), prueba::LeeTodo(c.Ruta("d/sub/copia.DAT")));
    EXPECT_EQ(store.Muestras(2, 2), 0.0F);
    EXPECT_TRUE(store.RegistroAbierto);
}

TEST_F(Convierte, AFailureIsSilentOrLeavesAWindow)
{
    Empieza("Convertir_continuar", "no/hay");
    cajas->Espera(Textos(168), Icono::Ninguno, Botones::AceptarCancelar);
    Acepta();
    EXPECT_EQ(EnPie(), "");
    Empieza("Convertir_continuar", "BIN");
    cajas->Espera(Textos(167), Icono::Pregunta, Botones::AceptarCancelar);
    cajas->Espera("Error 55: File already open", Icono::Critico);
    Acepta();
    EXPECT_EQ(EnPie(), "");
    fs::create_directory(c.Ruta("otra"));
    for (const char* nombre : {"/bin.dat", "/bin.cfg"})
        fs::copy(c.Ruta("d") + nombre, c.Ruta("otra") + nombre);
    Abre("otra/bin.dat");
    fs::remove_all(c.Ruta("otra"));
    Pulsa("Convertir_salir", poscamb::unica.Cargado());
    EXPECT_EQ(Camin(), U(QDir::currentPath())) << "the record's folder has gone";
    Senda()->setText("x");
    cajas->Espera("Error 53: File not found", Icono::Critico);
    Acepta();
    EXPECT_EQ(EnPie(), "");
}

}  // namespace
}  // namespace veldix
