#include "platform/forms/ListaCarpetas.h"

#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>

#include "platform/ficheros.h"
#include "platform/forms/escena.h"
#include "platform/forms/etiquetas.h"
#include "platform/forms/formulario.h"
#include "platform/textos.h"

namespace veldix {

namespace {

constexpr int kSangria = 12;

bool EsEntrar(const QKeyEvent& evento)
{
    return evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
}

QStringList UnidadesDelSistema()
{
    QStringList unidades;
#ifdef Q_OS_WIN
    const auto raices = QDir::drives();
    for (const QFileInfo& raiz : raices)
        unidades.append(raiz.absoluteFilePath());
#endif
    return unidades;
}

/// The folder and its ancestors, the root first.
QStringList Camino(const QString& ruta)
{
    QStringList camino{ruta};
    for (QDir carpeta(ruta); !carpeta.isRoot() && carpeta.cdUp();)
        camino.prepend(carpeta.path());
    return camino;
}

QTreeWidgetItem* NuevaLinea(const QString& nombre, const QString& ruta, const QIcon& icono)
{
    auto* linea = new QTreeWidgetItem({nombre});
    linea->setIcon(0, icono);
    linea->setData(0, Qt::UserRole, ruta);
    linea->setToolTip(0, Ayuda(ruta));
    return linea;
}

}  // namespace

ListaUnidades::ListaUnidades(QWidget* padre) : QComboBox(padre)
{
    addItems(UnidadesDelSistema());
    setVisible(count() > 0);
    connect(this, &QComboBox::activated, this, &ListaUnidades::Cambio);
}

std::string ListaUnidades::Unidad() const
{
    const std::string unidad = U(currentText());
    if (!ExisteCarpeta(unidad)) Lanza(error::kDispositivo);
    return unidad;
}

void ListaUnidades::Pon(const std::string& ruta)
{
    int hallada = -1;
    for (int i = 0; i < count(); ++i)
        if (Q(ruta).startsWith(itemText(i), Qt::CaseInsensitive)) hallada = i;
    setCurrentIndex(hallada);
}

ListaCarpetas::ListaCarpetas(QWidget* padre) : QTreeWidget(padre)
{
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setIndentation(kSangria);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* linea) { Entra(linea); });
    const std::string aqui = U(QDir::currentPath());
    Pon(ExisteCarpeta(aqui) ? aqui : U(QDir::rootPath()));
}

void ListaCarpetas::Pon(const std::string& ruta)
{
    if (!ExisteCarpeta(ruta)) Lanza(error::kRutaNoEncontrada);
    const std::string nueva = U(QDir::cleanPath(QDir(Q(ruta)).absolutePath()));
    const bool cambia = nueva != ruta_;
    ruta_ = nueva;
    Llena();
    if (cambia) Q_EMIT Cambio();
}

void ListaCarpetas::Llena()
{
    clear();
    QTreeWidgetItem* actual = invisibleRootItem();
    const QIcon abierta = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QStringList camino = Camino(Q(ruta_));
    for (const QString& carpeta : camino) {
        const QString nombre = QDir(carpeta).dirName();
        auto* linea = NuevaLinea(nombre.isEmpty() ? carpeta : nombre, carpeta, abierta);
        actual->addChild(linea);
        actual = linea;
    }
    const QIcon cerrada = style()->standardIcon(QStyle::SP_DirIcon);
    const auto hijas =
        QDir(Q(ruta_)).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    QList<QTreeWidgetItem*> lineas;
    for (const QFileInfo& hija : hijas)
        lineas.append(NuevaLinea(hija.fileName(), hija.filePath(), cerrada));
    actual->addChildren(lineas);
    expandAll();
    setCurrentItem(actual);
    MuestraActual();
}

/// The folder with some of what is above and below it, sideways no further than it is indented.
void ListaCarpetas::MuestraActual()
{
    scrollToItem(currentItem(), PositionAtCenter);
    QScrollBar* barra = horizontalScrollBar();
    const int sangria = visualItemRect(currentItem()).left() + barra->value();
    barra->setValue(qMax(0, sangria - viewport()->width() / 2));
}

/// Lines are as wide as the list at least, so that all of it takes clicks; wider ones scroll.
void ListaCarpetas::resizeEvent(QResizeEvent* evento)
{
    QTreeWidget::resizeEvent(evento);
    header()->setMinimumSectionSize(viewport()->width());
}

void ListaCarpetas::showEvent(QShowEvent* evento)
{
    QTreeWidget::showEvent(evento);
    MuestraActual();
}

void ListaCarpetas::Entra(QTreeWidgetItem* linea)
{
    if (!linea) return;
    const std::string destino = U(linea->data(0, Qt::UserRole).toString());
    Atrapa(FormularioDe(this), [&] {
        Pon(destino);
        Q_EMIT Elige();
    });
}

void ListaCarpetas::keyPressEvent(QKeyEvent* evento)
{
    if (!EsEntrar(*evento)) {
        QTreeWidget::keyPressEvent(evento);
        return;
    }
    evento->accept();
    Entra(currentItem());
}

QSize ListaCarpetas::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 34, fontMetrics().height() * 14};
}

bool SigueUnidad(const ListaUnidades& unidades, ListaCarpetas& carpetas)
{
    try {
        carpetas.Pon(unidades.Unidad());
        return true;
    } catch (const ErrorEjecucion& e) {
        if (e.numero != error::kDispositivo) throw;
    }
    Avisa(Textos(149), Icono::Critico);
    return false;
}

ListaClic::ListaClic(QWidget* padre) : QListWidget(padre)
{
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (Elegida() >= 0) Q_EMIT Click();
    });
}

int ListaClic::Elegida() const
{
    const auto elegidos = selectedItems();
    return elegidos.isEmpty() ? -1 : row(elegidos.constFirst());
}

/// The view's own arrow would pass over the first line.
void ListaClic::keyPressEvent(QKeyEvent* evento)
{
    const bool flecha = evento->key() == Qt::Key_Down || evento->key() == Qt::Key_Up;
    if (!flecha || count() == 0 || Elegida() >= 0) {
        QListWidget::keyPressEvent(evento);
        return;
    }
    evento->accept();
    setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
}

void ListaClic::mousePressEvent(QMouseEvent* evento)
{
    const QListWidgetItem* pulsado = itemAt(evento->position().toPoint());
    const bool otraVez = evento->button() == Qt::LeftButton && pulsado && pulsado->isSelected();
    QListWidget::mousePressEvent(evento);
    if (otraVez) Q_EMIT Click();
}

ListaFicheros::ListaFicheros(QWidget* padre) : ListaClic(padre)
{
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemDoubleClicked, this, &ListaFicheros::DblClick);
}

void ListaFicheros::Pon(const std::string& carpeta, const std::string& patron)
{
    if (!ExisteCarpeta(carpeta)) Lanza(error::kRutaNoEncontrada);
    clear();
    const QStringList patrones = Q(patron).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    addItems(QDir(Q(carpeta)).entryList(patrones, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

std::string ListaFicheros::Fichero() const
{
    return Elegida() < 0 ? std::string() : U(item(Elegida())->text());
}

void ListaFicheros::keyPressEvent(QKeyEvent* evento)
{
    static const QMetaMethod doble = QMetaMethod::fromSignal(&ListaFicheros::DblClick);
    if (!EsEntrar(*evento) || Elegida() < 0 || !isSignalConnected(doble)) {
        ListaClic::keyPressEvent(evento);
        return;
    }
    evento->accept();
    Q_EMIT DblClick();
}

}  // namespace veldix
