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
        lista.show();
        lista.Pon(carpeta.Ruta());
        cambios.clear();
    }
    void Pulsa(std::initializer_list<Qt::Key> teclas)
    {
        for (const Qt::Key tecla : teclas)
            QTest::keyClick(&lista, tecla);
    }

    prueba::Carpeta carpeta;
    ListaCarpetas lista;
    QSignalSpy cambios{&lista, &ListaCarpetas::Cambio};
};

TEST_F(ListaCarpetasTest, ParentsOrSubfoldersAreMissingOrTheKeysDoNotEnterThem)
{
    QStringList lineas;
    for (QTreeWidgetItemIterator it(&lista); *it; ++it)
        lineas.append((*it)->text(0));
    const QString propia = Q(fs::path(carpeta.Ruta()).filename().string());
    EXPECT_EQ(lineas.constFirst(), QStringLiteral("/"));
    EXPECT_EQ(lineas.mid(lineas.indexOf(propia)), QStringList({propia, "a", "B", "c"}));

    Pulsa({Qt::Key_Down});
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    Pulsa({Qt::Key_Return});
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("a"));
    Pulsa({Qt::Key_Down, Qt::Key_Enter});
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("a/uno"));
    Pulsa({Qt::Key_Up, Qt::Key_Up, Qt::Key_Return});
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    Pulsa({Qt::Key_Return});
    EXPECT_EQ(cambios.count(), 3);
}

TEST_F(ListaCarpetasTest, ADoubleClickDoesNotEnterOrAMissingFolderMovesTheList)
{
    for (const char* ruta : {"", "/no/such/folder", "/etc/passwd"})
        EXPECT_EQ(prueba::NumeroDeError([&] { lista.Pon(ruta); }), 76) << ruta;
    const QPoint sitio = lista.visualItemRect(lista.findItems("B", Qt::MatchRecursive).value(0)).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, sitio);
    fs::remove(carpeta.Ruta("B"));
    prueba::RespondeCajas cajas;
    cajas.Espera("Error 76: Path not found", Icono::Critico);
    Pulsa({Qt::Key_Return});
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta());
    EXPECT_EQ(cambios.count(), 0);
    fs::create_directory(carpeta.Ruta("B"));
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, sitio);
    EXPECT_EQ(lista.Ruta(), carpeta.Ruta("B"));
}

TEST(ListaFicheros, APatternLooksAtTheCaseOrAChoiceIsToldTwice)
{
    const prueba::Carpeta carpeta;
    for (const char* nombre : {"b.CNF", "A.cnf", "c.cnfx", "d.dat"})
        carpeta.Escribe(nombre, "");
    fs::create_directories(carpeta.Ruta("z.cnf"));
    ListaFicheros lista;
    lista.show();
    lista.Pon(carpeta.Ruta(), "*.Cnf;*.dat");
    QSignalSpy clics(&lista, &ListaFicheros::Click), dobles(&lista, &ListaFicheros::DblClick);
    for (const char* nombre : {"A.cnf", "b.CNF", "d.dat"}) {
        QTest::keyClick(&lista, Qt::Key_Down);
        EXPECT_EQ(lista.Fichero(), nombre);
    }
    EXPECT_EQ(clics.count(), 3);
    const QPoint sitio = lista.visualItemRect(lista.currentItem()).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, sitio);  // once more, though it is chosen
    EXPECT_EQ(clics.count(), 4);
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_EQ(dobles.count(), 1);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, sitio);
    EXPECT_EQ(dobles.count(), 2);
}

}  // namespace
}  // namespace veldix
