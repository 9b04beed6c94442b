#include "templates/forms/frmAnalog.h"
#include "templates/forms/frmBaseModelo.h"
#include "templates/forms/paginas.h"
#include "templates/modelos.h"

namespace veldix {
namespace {

using prueba::ConFinales;

class Analogicos : public prueba::Paginas {
protected:
    static Rejilla& Tabla() { return *Da<Rejilla>("vaSpread1"); }
    static std::string Fila(int r)
    {
        return Tabla().Texto(r, 1) + "/" + Tabla().Texto(r, 2) + "/" + Tabla().Texto(r, 3);
    }
    /// Types into a cell as a user does: a click, the text, Enter.
    static void Escribe(int fila, int columna, const char* texto)
    {
        Rejilla& t = Tabla();
        const QPoint p = t.visualRect(t.model()->index(fila - 1, columna - 1)).center();
        QTest::mouseClick(t.viewport(), Qt::LeftButton, {}, p);
        QTest::keyClicks(&t, QString(*texto));
        const auto editores = t.viewport()->findChildren<QLineEdit*>();
        QLineEdit* editor =
            *std::find_if(editores.begin(), editores.end(), [](auto* e) { return !e->isHidden(); });
        QTest::keyClicks(editor, texto + 1);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();  // the editor closes behind the key
        EXPECT_EQ(t.currentRow(), std::min(fila, t.Filas() - 1)) << "Enter goes down";
    }
    static void Identifica(const char* texto)
    {
        auto* caja = Da<QPlainTextEdit>("txtIdentif");
        caja->setPlainText(texto);
        caja->moveCursor(QTextCursor::End);
    }
    /// A new template with nothing to start from.
    static void SinNada()
    {
        const std::string carpeta = store.DirPlantillas;
        store = RecordStore{};
        store.DirPlantillas = carpeta;
        frmPlantilla::unica.Muestra();
        Pulsa("cmdNueva");
    }
};

TEST_F(Analogicos, FromScratchTypedRowsAreLostOrEmptyOnesPass)
{
    SinNada();
    EXPECT_EQ(Texto("txtnumAnalog"), "0");
    cajas.Espera(Textos(244), Icono::Ninguno);
    cajas.Espera(Textos(244), Icono::Ninguno);
    Pulsa("cmdOK");
    Da<QLineEdit>("txtnumAnalog")->clear();
    Pulsa("cmdOK");
    Identifica(" L\u00A0nea 1 ");
    QTest::keyClick(Da<QPlainTextEdit>("txtIdentif"), Qt::Key_Return);
    EXPECT_EQ(Da<QWidget>("txtnumAnalog"), frmAnalog::unica.Cargado()->focusWidget());
    Teclea("txtnumAnalog", "12");
    EXPECT_EQ(U(Tabla().horizontalHeaderItem(1)->text()) + U(Da<QLabel>("esquina")->text()), "CircuitoCanal");
    Escribe(1, 1, "VA%");
    Escribe(2, 2, " L1 ");
    QTest::keyClicks(Da<QLineEdit>("txtnumAnalog"), "0");
    QTest::keyClick(Da<QLineEdit>("txtnumAnalog"), Qt::Key_Backspace);
    EXPECT_EQ(std::to_string(Tabla().Filas()) + Fila(1) + Fila(2), "12VA%/// L1 /");
    cajas.Espera(Textos(275) + "3", Icono::Ninguno);
    Pulsa("cmdOK");
    QTest::keyClick(Da<QLineEdit>("txtnumAnalog"), Qt::Key_Backspace);  // 1
    Pulsa("cmdOK");
    EXPECT_EQ(Pagina(), "frmTrifasic");
    const FilaCanal& fila = store.CanalesPlan(1);
    EXPECT_EQ(store.EstacionPlan + "|" + fila.Numero + fila.Nombre, "L\u00A0nea 1|1VA%");
    EXPECT_EQ(store.CanalesPlan.Cuantos() + store.NumCanalPlan, 2);
}

TEST_F(Analogicos, WithARecordTheTableFollowsTheNumberFromTheWrongRows)
{
    Pulsa("cmdNueva");
    EXPECT_EQ(Texto("txtnumAnalog") + U(Da<QPlainTextEdit>("txtIdentif")->toPlainText()), "3REC");
    EXPECT_EQ(Fila(1) + Fila(3), "VR//UR//");
    Escribe(1, 1, "otro");
    Teclea("txtnumAnalog", "5");
    EXPECT_EQ(Fila(1) + Fila(3) + Fila(5), "VR//UR////");
    Identifica("A\nB ");
    Pulsa("cmdvolver");
    EXPECT_EQ(store.EstacionPlan + std::to_string(store.CanalesPlan.Cuantos()), "AB 5");
    EXPECT_TRUE(store.VuelveAnalog && Pagina() == "frmPlantilla");
    Pulsa("cmdNueva");
    EXPECT_EQ(Texto("txtnumAnalog"), "3");
    for (const char* malo : {"-", "3x", "40000"}) {
        cajas.Espera(malo[0] == '4' ? "Error 6: Overflow" : "Error 13: Type mismatch", Icono::Critico);
        frmAnalog::unica.Cargado()->findChild<QLineEdit*>("txtnumAnalog")->setText(malo);
        EXPECT_EQ(Pagina(), "frmPlantilla") << malo;
        Pulsa("cmdNueva");
    }
    Pulsa("cmdcancel");
    EXPECT_TRUE(!store.VuelveAnalog && Pagina().empty());
}

TEST_F(Analogicos, AModelsChannelsOrAFailedDatabaseLeadToTheWrongPage)
{
    SinNada();
    const auto abre = [this](int texto) {
        if (texto > 0) cajas.Espera(Textos(texto), Icono::Critico);
        Pulsa("cmdmodelos");
        EXPECT_EQ(Pagina(), "frmBaseModelo");
    };
    abre(245);
    Teclea("lblNomModelo", "x");
    cajas.Espera(Textos(245), Icono::Critico);
    Pulsa("cmdOK");
    Pulsa("cmdCancelar");
    store.RutaPrograma = c.Ruta("VELDIX/EXE");
    abre(0);
    EXPECT_EQ(Da<QListWidget>("List1")->count(), 6);
    for (const auto& [modelo, error] : {std::pair{"Relé 2", "9: Subscript out of range"},
                                        {"Vac[íi]o", "3021: No current record"},
                                        {"Ausente", "3024: Database file not found"}}) {
        cajas.Espera(std::string("Error ") + error, Icono::Critico);
        Da<QLineEdit>("lblNomModelo")->setText(modelo);
        Pulsa("cmdOK");
    }
    cajas.Espera(Textos(245), Icono::Critico);  // its file is said to lie in a folder that is not there
    Teclea("lblNomModelo", "Lejos", "cmdOK");
    Teclea("lblNomModelo", "nadie", "cmdOK");
    EXPECT_TRUE(Pagina() == "frmBaseModelo" && store.CanalesPlan.Vacia() && !store.ModeloCargado);
    frmBaseModelo::unica.Cargado()->close();  // as Cancelar does
    abre(0);
    Clic("List1", 1, true);
    Pulsa("cmdOK");
    EXPECT_EQ(Texto("txtnumAnalog") + U(Da<QPlainTextEdit>("txtIdentif")->toPlainText()), "3Relé 1");
    EXPECT_EQ(Fila(2) + Fila(3), "Tensión fase B//kVñandú//");
    EXPECT_EQ(store.CanalesPlan.Cuantos(), 6);  // by the last identifier
    Pulsa("cmdOK", 2);
    EXPECT_EQ(Pagina() + U(Da<QListWidget>("List1")->item(3)->text()), "frmDigitalÚltimo");
    Pulsa("cmdvolver");
    Pulsa("cmdOK");
    EXPECT_EQ(Da<QListWidget>("List1")->count(), 0) << "a model's signals are offered once";
}

TEST_F(Analogicos, WithARecordOrAModificationAModelGivesTheWrongCountOrName)
{
    Pulsa("cmdNueva");
    Pulsa("cmdmodelos");
    Teclea("lblNomModelo", "nadie", "cmdOK");  // the record has channels
    EXPECT_EQ(Texto("txtnumAnalog") + U(Da<QPlainTextEdit>("txtIdentif")->toPlainText()) + Fila(1),
              "3nadieVR//");
    Pulsa("cmdvolver");
    Elige("p.cnf", "cmdModif");
    Pulsa("cmdmodelos");
    Teclea("lblNomModelo", "*1", "cmdOK");  // the first that fits
    EXPECT_EQ(Texto("txtnumAnalog") + Fila(1), "4Intensidad fase A/Phase A current/A");
    EXPECT_EQ(Fila(4), "//") << "a row that the model lacks";
    EXPECT_EQ(LeeModeloDigital(store, "Relé 2") + store.NumDigitalPlan, 0) << "none is recorded";
}

}  // namespace
}  // namespace veldix
