#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>

#include <string>

namespace veldix {

/// The drives of the machine; hidden where the platform has none.
class ListaUnidades : public QComboBox {
    Q_OBJECT

public:
    explicit ListaUnidades(QWidget* padre = nullptr);

    /// The chosen drive's folder. Raises 68 where the drive does not respond.
    std::string Unidad() const;
    /// Chooses the drive that a path is on, without Cambio. None, where no drive of the list fits.
    void Pon(const std::string& ruta);

Q_SIGNALS:
    void Cambio();  ///< the user chose a drive
};

/// A folder with its ancestors above it and its sub-folders below it, each level indented. A double click or
/// Enter on a line moves the list to that folder.
class ListaCarpetas : public QTreeWidget {
    Q_OBJECT

public:
    /// Stands at the current folder of the program.
    explicit ListaCarpetas(QWidget* padre = nullptr);

    /// The folder, absolute, without a separator at its end unless it is a root.
    const std::string& Ruta() const { return ruta_; }
    /// Moves to a folder. Raises 76, and stays where it was, for one that does not exist.
    void Pon(const std::string& ruta);

    QSize sizeHint() const override;

Q_SIGNALS:
    void Cambio();  ///< Ruta has changed
    void Elige();   ///< the user chose a folder, be it the one where the list stands

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

private:
    void Entra(QTreeWidgetItem* linea);
    void Llena();
    void MuestraActual();

    std::string ruta_;
};

/// Moves folders to the chosen drive; where that does not respond, its message and false. Raises 76.
bool SigueUnidad(const ListaUnidades& unidades, ListaCarpetas& carpetas);

/// A list that reports each choice once. With nothing selected an arrow key takes the first line.
class ListaClic : public QListWidget {
    Q_OBJECT

public:
    explicit ListaClic(QWidget* padre = nullptr);
    /// The selected line, from 0, or -1.
    int Elegida() const;

Q_SIGNALS:
    void Click();  ///< a line was selected, or the selected one clicked again

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
};

/// The files of a folder that a pattern fits, in any case; several patterns are parted by ";".
class ListaFicheros : public ListaClic {
    Q_OBJECT

public:
    explicit ListaFicheros(QWidget* padre = nullptr);

    /// Lists a folder anew, with nothing selected. Raises 76 for one that does not exist.
    void Pon(const std::string& carpeta, const std::string& patron);
    /// Name of the selected file, empty where none is.
    std::string Fichero() const;

Q_SIGNALS:
    void DblClick();  ///< double click or Enter on a file

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

}  // namespace veldix
