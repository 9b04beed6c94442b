#pragma once

#include <QLabel>
#include <QTableWidget>

#include <initializer_list>
#include <string>

namespace veldix {

/// A grid of texts with a captioned corner and numbered rows; rows and columns count from 1. Enter goes to
/// the row below, Tab to the next cell while one is typed into, else out of the grid.
class Rejilla : public QTableWidget {
    Q_OBJECT

public:
    Rejilla(int columnas, QWidget* padre);

    /// Captions of the corner and of the columns.
    void PonTitulos(const std::string& esquina, std::initializer_list<std::string> columnas);
    /// Widths in characters, of the corner's column first.
    void PonAnchos(int esquina, std::initializer_list<int> columnas);

    /// Rows that go take their texts with them. Raises 5 below 0.
    void PonFilas(int filas);
    int Filas() const { return rowCount(); }

    /// The text of a cell, empty outside the grid.
    std::string Texto(int fila, int columna) const;
    void PonTexto(int fila, int columna, const std::string& texto);
    /// Takes what is being typed into a cell.
    void TerminaEdicion();

    QSize sizeHint() const override;

protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint siguiente) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    int Ancho(int caracteres) const;
    void BajaFila();

    QLabel* esquina_;
};

}  // namespace veldix
