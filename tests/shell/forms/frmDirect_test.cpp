#include "shell/forms/frmDirect.h"

#include <QTest>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/textos.h"
#include "record/record_store.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTools =
    "0\n/x\r\n/y\r\n/z\r\n3\r\n\"Uno=/opt/u, v\"\r\n\"\"\r\n\"A=\"\"b\"\"\"\r\n";

class frmDirectTest : public testing::Test {
protected:
    frmDirectTest()
    {
        for (const char* nombre : {"reg/sub", "pla", "apl", "nueva", "ini"})
            fs::create_directories(carpeta.Ruta(nombre));
        store = RecordStore{};
        store.Idioma = 1;
        store.DirIni = carpeta.Ruta("ini");
        store.DirDatos = carpeta.Ruta("reg");
        store.DirPlantillas = carpeta.Ruta("pla");
        store.DirAplic = carpeta.Ruta("apl");
        carpeta.Escribe("ini/tools.ini", kTools);
        CargaTextos(VELDIX_SOURCE "/runtime/VELDIX/ini/vdotro.ini");
    }
    ~frmDirectTest() override
    {
        frmDirect::unica.Descarga();
        store = RecordStore{};
        VaciaTextos();
    }

    void Abre() { frmDirect::unica.CargaNueva().show(); }
    template <class Control>
    static Control* Da(const char* nombre)
    {
        return frmDirect::unica.Cargado()->findChild<Control*>(QLatin1String(nombre));
    }
    static std::string Campo(const char* nombre) { return U(Da<QLineEdit>(nombre)->text()); }
    void Teclea(const char* nombre, const std::string& ruta) { Da<QLineEdit>(nombre)->setText(Q(ruta)); }
    static void Pulsa(const char* boton) { QTest::mouseClick(Da<QPushButton>(boton), Qt::LeftButton); }
    std::string Tools() const { return prueba::LeeTodo(carpeta.Ruta("ini/tools.ini")); }

    prueba::Carpeta carpeta;
    prueba::RespondeCajas cajas;
};

TEST_F(frmDirectTest, LasComprobacionesPasanEnOrdenYDejanLoComprobado)
{
    const std::string nueva = carpeta.Ruta("nueva"), mala = carpeta.Ruta("falta");
    const struct {
        std::string oscilos, plantillas, aplic;
        const char* aviso;
        int cambiadas;  // of the three, from the first
    } casos[] = {
        {mala, mala, mala, "El directorio de registros no existe.", 0},
        {"", nueva, nueva, "El directorio de registros no existe.", 0},
        {carpeta.Ruta("ini/tools.ini"), nueva, nueva, "El directorio de registros no existe.", 0},
        {nueva, mala, mala, "El directorio de plantillas no existe.", 1},
        {nueva, nueva, "", "El directorio de herramientas no existe.", 2},
    };
    const std::array viejas{store.DirDatos, store.DirPlantillas, store.DirAplic};
    for (const auto& caso : casos) {
        std::tie(store.DirDatos, store.DirPlantillas, store.DirAplic) =
            std::tie(viejas[0], viejas[1], viejas[2]);
        Abre();
        Teclea("txtoscilos", caso.oscilos);
        Teclea("txtplantillas", caso.plantillas);
        Teclea("txtaplic", caso.aplic);
        cajas.Espera(caso.aviso, Icono::Critico);
        Pulsa("cmdOK");
        EXPECT_EQ(store.DirDatos, caso.cambiadas > 0 ? nueva : viejas[0]);
        EXPECT_EQ(store.DirPlantillas, caso.cambiadas > 1 ? nueva : viejas[1]);
        EXPECT_EQ(store.DirAplic, viejas[2]);
        EXPECT_TRUE(frmDirect::unica.Cargado());
        EXPECT_EQ(Tools(), kTools);
    }
}

TEST_F(frmDirectTest, AceptarReescribeElFicheroConSusHerramientas)
{
    Abre();
    EXPECT_EQ(Campo("txtplantillas"), carpeta.Ruta("pla"));
    Teclea("txtaplic", carpeta.Ruta("nueva"));
    Pulsa("cmdOK");
    EXPECT_EQ(Tools(), "0\r\n" + carpeta.Ruta("reg") + "\r\n" + carpeta.Ruta("pla") + "\r\n" +
                           carpeta.Ruta("nueva") +
                           "\r\n3\r\n\"Uno=/opt/u, v\"\r\n\"\"\r\n\"A=\"\"b\"\"\"\r\n");
    EXPECT_EQ(store.Idioma, 0);
    EXPECT_EQ(store.DirAplic, carpeta.Ruta("nueva"));
    EXPECT_FALSE(frmDirect::unica.Cargado());
}

TEST_F(frmDirectTest, UnFalloTrasLasComprobacionesDejaElFichero)
{
    const struct {
        const char* octetos;
        const char* caja;
    } casos[] = {
        {nullptr, "Error 53: File not found"},
        {"1\r\n/x\r\n/y\r\n", "Error 62: Input past end of file"},
        {"1\r\n/x\r\n/y\r\n/z\r\n2\r\n\"a=b\"\r\n", "Error 62: Input past end of file"},
        {"uno\r\n/x\r\n/y\r\n/z\r\n0\r\n", "Error 13: Type mismatch"},
    };
    for (const auto& caso : casos) {
        Abre();
        Teclea("txtoscilos", carpeta.Ruta("nueva"));
        fs::remove(carpeta.Ruta("ini/tools.ini"));
        if (caso.octetos) carpeta.Escribe("ini/tools.ini", caso.octetos);
        cajas.Espera(caso.caja, Icono::Critico);
        Pulsa("cmdOK");
        EXPECT_EQ(store.DirDatos, carpeta.Ruta("nueva"));
        EXPECT_TRUE(frmDirect::unica.Cargado());
        EXPECT_EQ(ExisteFichero(carpeta.Ruta("ini/tools.ini")), caso.octetos != nullptr);
        if (caso.octetos) {
            EXPECT_EQ(Tools(), caso.octetos);
        }
    }
}

TEST_F(frmDirectTest, LaListaLlenaElCampoPorTeclado)
{
    store.DirDatos += '/';
    Abre();
    EXPECT_EQ(Campo("txtoscilos"), carpeta.Ruta("reg") + '/');
    auto* dir = Da<ListaCarpetas>("diroscilos");
    QTest::keyClick(dir, Qt::Key_Down);
    QTest::keyClick(dir, Qt::Key_Return);
    EXPECT_EQ(Campo("txtoscilos"), carpeta.Ruta("reg/sub"));
    EXPECT_EQ(Campo("txtaplic"), carpeta.Ruta("apl"));
    EXPECT_TRUE(frmDirect::unica.Cargado()) << "Enter in the list is not the default button";
}

TEST_F(frmDirectTest, LaUnidadMueveLaListaOAvisa)
{
    Abre();
    auto* drv = Da<ListaUnidades>("drvplantillas");
    drv->addItems({Q(carpeta.Ruta("nueva")), Q(carpeta.Ruta("falta"))});
    drv->show();
    drv->setCurrentIndex(1);
    QTest::keyClick(drv, Qt::Key_Up);
    EXPECT_EQ(Campo("txtplantillas"), carpeta.Ruta("nueva"));
    EXPECT_EQ(Da<ListaCarpetas>("dirplantillas")->Ruta(), carpeta.Ruta("nueva"));
    cajas.Espera("La unidad no está disponible.", Icono::Critico);
    QTest::keyClick(drv, Qt::Key_Down);
    EXPECT_EQ(Campo("txtplantillas"), carpeta.Ruta("nueva"));
}

TEST_F(frmDirectTest, UnaCarpetaPerdidaAvisaUnaVezYSePuedeEnmendar)
{
    store.DirDatos = store.DirPlantillas = carpeta.Ruta("falta");
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Abre();
    EXPECT_EQ(Campo("txtoscilos"), carpeta.Ruta("falta"));
    EXPECT_EQ(Da<ListaCarpetas>("diraplic")->Ruta(), carpeta.Ruta("apl"));
    Teclea("txtoscilos", carpeta.Ruta("nueva"));
    Teclea("txtplantillas", carpeta.Ruta("nueva"));
    Pulsa("cmdOK");
    EXPECT_EQ(store.DirPlantillas, carpeta.Ruta("nueva"));
}

TEST_F(frmDirectTest, CancelarNoCambiaNada)
{
    for (const bool tecla : {false, true}) {
        Abre();
        EXPECT_EQ(frmDirect::unica.Cargado()->windowTitle(), QStringLiteral("Configuración de directorios"));
        Teclea("txtoscilos", carpeta.Ruta("nueva"));
        if (tecla)
            QTest::keyClick(Da<QLineEdit>("txtoscilos"), Qt::Key_Escape);
        else
            Pulsa("cmdcancel");
        EXPECT_TRUE(QTest::qWaitFor([] { return frmDirect::unica.Cargado() == nullptr; }, 2000));
        EXPECT_EQ(store.DirDatos, carpeta.Ruta("reg"));
        EXPECT_EQ(Tools(), kTools);
    }
}

}  // namespace
}  // namespace veldix
