#include "shell/forms/frmDirect.h"

#include "support/escenario.h"

namespace veldix {
namespace {

constexpr const char* kTools = "0\n/x\r\n/y\r\n/z\r\n2\r\n\"Uno=/opt/u, v\"\r\n\"A=\"\"b\"\"\"\r\n";

class frmDirectTest : public prueba::Escenario {
protected:
    frmDirectTest()
    {
        for (const char* nombre : {"reg/sub", "pla", "apl", "nueva", "ini"})
            std::filesystem::create_directories(carpeta.Ruta(nombre));
        store.DirIni = carpeta.Ruta("ini");
        store.DirDatos = carpeta.Ruta("reg");
        store.DirPlantillas = carpeta.Ruta("pla");
        store.DirAplic = carpeta.Ruta("apl");
        carpeta.Escribe("ini/tools.ini", kTools);
    }

    template <class Control>
    static Control* Da(const char* nombre)
    {
        return Escenario::Da<Control>(nombre, frmDirect::unica.Cargado());
    }
    /// Opens with folders of the test's in the fields.
    void Abre(const char* oscilos, const char* plantillas, const char* aplic)
    {
        frmDirect::unica.CargaNueva().show();
        Da<QLineEdit>("txtoscilos")->setText(Q(carpeta.Ruta(oscilos)));
        Da<QLineEdit>("txtplantillas")->setText(Q(carpeta.Ruta(plantillas)));
        Da<QLineEdit>("txtaplic")->setText(Q(carpeta.Ruta(aplic)));
    }
    std::string Campo(const char* nombre) const
    {
        return U(Da<QLineEdit>(nombre)->text()).substr(carpeta.Ruta().size() + 1);
    }
    static void Acepta() { Pulsa("cmdOK", frmDirect::unica.Cargado()); }
    std::string Tools() const { return prueba::LeeTodo(carpeta.Ruta("ini/tools.ini")); }

    prueba::Carpeta carpeta;
};

TEST_F(frmDirectTest, ChecksRunInAnotherOrderOrLoseAFolderThatWasGood)
{
    const struct {
        const char *oscilos, *plantillas, *aplic, *que;
    } casos[] = {{"ini/tools.ini", "nueva", "nueva", "registros"},
                 {"nueva", "falta", "falta", "plantillas"},
                 {"nueva", "nueva", "falta", "herramientas"}};
    int cambiadas = 0;
    for (const auto& caso : casos) {
        store.DirDatos = store.DirPlantillas = store.DirAplic = carpeta.Ruta("reg");
        Abre(caso.oscilos, caso.plantillas, caso.aplic);
        cajas.Espera(std::string("El directorio de ") + caso.que + " no existe.", Icono::Critico);
        Acepta();
        EXPECT_EQ(store.DirDatos, carpeta.Ruta(cambiadas > 0 ? "nueva" : "reg"));
        EXPECT_EQ(store.DirPlantillas, carpeta.Ruta(cambiadas > 1 ? "nueva" : "reg"));
        EXPECT_EQ(store.DirAplic, carpeta.Ruta("reg"));
        EXPECT_EQ(Tools(), kTools);
        ++cambiadas;
    }
}

TEST_F(frmDirectTest, AcceptingLosesTheToolsOfTheFile)
{
    Abre("reg", "pla", "nueva");
    Acepta();
    EXPECT_EQ(Tools(), "0\r\n" + carpeta.Ruta("reg") + "\r\n" + carpeta.Ruta("pla") + "\r\n" +
                           carpeta.Ruta("nueva") + "\r\n2\r\n\"Uno=/opt/u, v\"\r\n\"A=\"\"b\"\"\"\r\n");
    EXPECT_FALSE(frmDirect::unica.Cargado());

    carpeta.Escribe("ini/tools.ini", "1\r\n/x\r\n/y\r\n");
    Abre("nueva", "pla", "apl");
    cajas.Espera("Error 62: Input past end of file", Icono::Critico);
    Acepta();
    EXPECT_EQ(store.DirDatos, carpeta.Ruta("nueva"));
    EXPECT_TRUE(frmDirect::unica.Cargado());
    EXPECT_EQ(Tools(), "1\r\n/x\r\n/y\r\n");
}

TEST_F(frmDirectTest, AListOrADriveFillsAnotherField)
{
    store.DirDatos += '/';
    frmDirect::unica.CargaNueva().show();
    EXPECT_EQ(Campo("txtoscilos"), "reg/");
    auto* dir = Da<ListaCarpetas>("diroscilos");
    QTest::keyClick(dir, Qt::Key_Down);
    QTest::keyClick(dir, Qt::Key_Return);
    ASSERT_TRUE(frmDirect::unica.Cargado()) << "Enter in the list is not the default button";
    EXPECT_EQ(Campo("txtoscilos") + Campo("txtaplic"), "reg/subapl");

    auto* drv = Da<ListaUnidades>("drvplantillas");
    drv->addItems({Q(carpeta.Ruta("nueva")), Q(carpeta.Ruta("falta"))});
    drv->setCurrentIndex(1);
    QTest::keyClick(drv, Qt::Key_Up);
    EXPECT_EQ(Campo("txtplantillas"), "nueva");
    cajas.Espera("La unidad no está disponible.", Icono::Critico);
    QTest::keyClick(drv, Qt::Key_Down);
    EXPECT_EQ(Campo("txtplantillas"), "nueva");
}

TEST_F(frmDirectTest, LostFoldersAreToldMoreThanOnceOrEscapeChangesThem)
{
    store.DirDatos = store.DirPlantillas = carpeta.Ruta("falta");
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Abre("nueva", "nueva", "nueva");
    EXPECT_EQ(Da<ListaCarpetas>("diraplic")->Ruta(), carpeta.Ruta("apl"));
    QTest::keyClick(Da<QLineEdit>("txtoscilos"), Qt::Key_Escape);
    EXPECT_FALSE(frmDirect::unica.Cargado());
    EXPECT_EQ(store.DirDatos, carpeta.Ruta("falta"));
    EXPECT_EQ(Tools(), kTools);
}

}  // namespace
}  // namespace veldix
