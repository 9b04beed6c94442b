#include "templates/forms/Rejilla.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/errores.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"

namespace veldix {

namespace {

/// A cell that tells its whole text where the column cuts it.
class Celda : public QTableWidgetItem {
public:
    QTableWidgetItem* clone() const override { return new Celda(*this); }
    QVariant data(int papel) const override
    {
        if (papel == Qt::ToolTipRole) return Ayuda(text());
        return QTableWidgetItem::data(papel);
    }
};

}  // namespace

Rejilla::Rejilla(int columnas, QWidget* padre) : QTableWidget(0, columnas, padre), esquina_(new QLabel)
{
    setTabKeyNavigation(false);
    setWordWrap(false);
    setItemPrototype(new Celda);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked | SelectedClicked);
    esquina_->setObjectName("esquina");
    esquina_->setAlignment(Qt::AlignCenter);
    if (auto* boton = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        auto* lleno = new QVBoxLayout(boton);
        lleno->setContentsMargins(0, 0, 0, 0);
        lleno->addWidget(esquina_);
    } else {
        esquina_->setParent(this);
        esquina_->hide();
    }
}

void Rejilla::PonTitulos(const std::string& esquina, std::initializer_list<std::string> columnas)
{
    esquina_->setText(Q(esquina));
    QStringList titulos;
    for (const std::string& titulo : columnas)
        titulos << Q(titulo);
    setHorizontalHeaderLabels(titulos);
}

int Rejilla::Ancho(int caracteres) const
{
    return caracteres * fontMetrics().horizontalAdvance('0') + 2 * fontMetrics().averageCharWidth();
}

void Rejilla::PonAnchos(int esquina, std::initializer_list<int> columnas)
{
    verticalHeader()->setFixedWidth(Ancho(esquina));
    int c = 0;
    for (const int caracteres : columnas)
        setColumnWidth(c++, Ancho(caracteres));
}

QSize Rejilla::sizeHint() const
{
    constexpr int kFilasALaVista = 16;
    const int ancho = verticalHeader()->width() + horizontalHeader()->length() +
                      verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    const int alto = horizontalHeader()->sizeHint().height() +
                     kFilasALaVista * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
    return {ancho, alto};
}

void Rejilla::PonFilas(int filas)
{
    if (filas < 0) Lanza(error::kArgumento);
    setRowCount(filas);
}

std::string Rejilla::Texto(int fila, int columna) const
{
    const QTableWidgetItem* celda = item(fila - 1, columna - 1);
    return celda ? U(celda->text()) : std::string();
}

void Rejilla::PonTexto(int fila, int columna, const std::string& texto)
{
    QTableWidgetItem* celda = item(fila - 1, columna - 1);
    if (!celda && texto.empty()) return;
    if (!celda) setItem(fila - 1, columna - 1, celda = new Celda);
    celda->setText(Q(texto));
}

void Rejilla::TerminaEdicion()
{
    if (state() != EditingState) return;
    for (QLineEdit* editor : viewport()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (editor->isHidden()) continue;  // of an earlier edition, on its way out
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void Rejilla::keyPressEvent(QKeyEvent* evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (!enter || rowCount() == 0 || state() == EditingState || evento->modifiers() & ~Qt::KeypadModifier)
        QTableWidget::keyPressEvent(evento);
    else
        BajaFila();
}

void Rejilla::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint siguiente)
{
    QTableWidget::closeEditor(editor, siguiente);
    if (siguiente == QAbstractItemDelegate::SubmitModelCache) BajaFila();
}

void Rejilla::BajaFila()
{
    if (currentRow() + 1 < rowCount()) setCurrentCell(currentRow() + 1, currentColumn());
}

}  // namespace veldix
