#include "platform/forms/ListaCarpetas.h"

#include <QSignalSpy>
#include <QTest>

#include "platform/forms/escena.h"
#include "support/soporte.h"

namespace veldix {
namespace {

namespace fs = std::filesystem;

class ListaCarpetasTest : public testing::Test {
protected:
    ListaCarpetasTest()
    {
        for (const char* nombre : {"a/uno", "B", "c", ".oculta"})
            fs::create_directories(carpeta.Ruta(nombre));
        carpeta.Escribe("fichero", "");
        lista.resize(300, 400);
        lista.show();
        lista.Pon(carpeta.Ruta());
        cambios.clear();
    }
    QStringList Lineas() const
    {
        QStringList r;
        for (QTreeWidgetItemIterator it(const_cast<ListaCarpetas*>(&lista)); *it; ++it)
            r.append((*it)->text(0));
        return r;
    }
    QTreeWidgetItem* Linea(const char* nombre) const
    {
        return lista.findItems(QLatin1String(nombre), Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    prueba::Carpeta carpeta;
    ListaCarpetas lista;
    QSignalSpy cambios{&lista, &ListaCarpetas::Cambio};
};

TEST_F(ListaCarpetasTest, MuestraAscendientesYSubcarpetasSangradas)
{
    const QString propia = Q(fs::path(carpeta.Ruta()).filename().string());
    const QStringList lineas = Lineas();
    EXPECT_EQ(lineas.constFirst(), QStringLiteral("/"));
    EXPECT_EQ(lineas.mid(lineas.indexOf(propia)), QStringList({propia, "a", "B", "c"}));
    EXPECT_EQ(lista.currentItem()->text(0), propia);
    EXPECT_GT(lista.visualItemRect(Linea("a")).left(), lista.visualItemRect(lista.currentItem()).left());
}

TEST_F(ListaCarpetasTest, ElTecladoMueveYEntrarCambiaDeCarpeta)
{
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("a"));
    QTest::keyClick(&lista, Qt::Key_Down);
    QTest::keyClick(&lista, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("a/uno"));
    QTest::keyClick(&lista, Qt::Key_Up);
    QTest::keyClick(&lista, Qt::Key_Up);
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    EXPECT_EQ(cambios.count(), 3);
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(cambios.count(), 3);
}

TEST_F(ListaCarpetasTest, ElDobleClicEntra)
{
    const QPoint sitio = lista.visualItemRect(Linea("B")).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, sitio);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, sitio);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("B"));
}

TEST_F(ListaCarpetasTest, UnaCarpetaQueFaltaNoMueveLaLista)
{
    for (const std::string& ruta : {std::string(), carpeta.Ruta("nada"), carpeta.Ruta("fichero")}) {
        try {
            lista.Pon(ruta);
            ADD_FAILURE() << ruta;
        } catch (const ErrorEjecucion& e) {
            EXPECT_EQ(e.numero, error::kRutaNoEncontrada);
        }
    }
    prueba::RespondeCajas cajas;
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    lista.setCurrentItem(Linea("c"));
    fs::remove(carpeta.Ruta("c"));
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    EXPECT_EQ(cambios.count(), 0);
}

TEST(ListaUnidades, UnaUnidadQueNoRespondeEs68)
{
    ListaUnidades lista;
    EXPECT_EQ(lista.isHidden(), lista.count() == 0);
    lista.clear();
    lista.addItems({QStringLiteral("/"), QStringLiteral("/no/hay/unidad/")});
    lista.Pon("/tmp");
    EXPECT_EQ(lista.Unidad(), "/");
    lista.Pon("/NO/hay/unidad/registros");
    try {
        lista.Unidad();
        FAIL();
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.numero, error::kDispositivo);
    }
}

class ListaFicherosTest : public testing::Test {
protected:
    ListaFicherosTest()
    {
        for (const char* nombre : {"b.CNF", "A.cnf", "c.Cnf", "c.cnfx", "d.dat"})
            carpeta.Escribe(nombre, "");
        fs::create_directories(carpeta.Ruta("z.cnf"));
        lista.resize(200, 300);
        lista.show();
    }
    QPoint Sitio(int fila) const { return lista.visualItemRect(lista.item(fila)).center(); }

    prueba::Carpeta carpeta;
    ListaFicheros lista;
};

TEST_F(ListaFicherosTest, ElPatronNoMiraLaCaja)
{
    const struct {
        const char* patron;
        QStringList nombres;
    } casos[] = {
        {"*.cnf", {"A.cnf", "b.CNF", "c.Cnf"}},
        {"*.DAT", {"d.dat"}},
        {"*.dat;?.CNFX", {"c.cnfx", "d.dat"}},
        {"*.exe", {}},
    };
    for (const auto& caso : casos) {
        lista.Pon(carpeta.Ruta(), caso.patron);
        QStringList nombres;
        for (int i = 0; i < lista.count(); ++i)
            nombres.append(lista.item(i)->text());
        EXPECT_EQ(nombres, caso.nombres) << caso.patron;
    }
    EXPECT_THROW(lista.Pon(carpeta.Ruta("nada"), "*"), ErrorEjecucion);
}

TEST_F(ListaFicherosTest, CadaEleccionAvisaUnaVez)
{
    lista.Pon(carpeta.Ruta(), "*.cnf");
    QSignalSpy clics(&lista, &ListaFicheros::Click), dobles(&lista, &ListaFicheros::DblClick);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, Sitio(1));
    EXPECT_EQ(lista.Fichero(), "b.CNF");
    EXPECT_EQ(clics.count(), 1);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, Sitio(1));
    EXPECT_EQ(clics.count(), 2);
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(lista.Fichero(), "c.Cnf");
    EXPECT_EQ(clics.count(), 3);
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(dobles.count(), 1);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, Sitio(0));
    EXPECT_EQ(dobles.count(), 1);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, Sitio(0));
    EXPECT_EQ(lista.Fichero(), "A.cnf");
    EXPECT_EQ(dobles.count(), 2);
    clics.clear();
    lista.Pon(carpeta.Ruta(), "*.dat");
    EXPECT_EQ(lista.Fichero(), "");
    EXPECT_EQ(clics.count(), 0);
}

}  // namespace
}  // namespace veldix
