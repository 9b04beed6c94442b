#include "digital/forms/MarcoCanalRef.h"

#include <QVBoxLayout>

#include "platform/forms/escena.h"
#include "record/record_store.h"

namespace veldix {

MarcoCanalRef::MarcoCanalRef(const std::string& titulo, QWidget* padre)
    : QGroupBox(Q(titulo), padre), Combo1(new QComboBox(this))
{
    setObjectName("Frame1");
    Combo1->setObjectName("Combo1");
    Combo1->setAccessibleName(title());
    Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Combo1->setMinimumContentsLength(12);
    for (int r = 1; r <= store.NumCanalAnalog; ++r)
        Combo1->addItem(Q(EtiquetaCanal(store, r)));
    setFocusProxy(Combo1);
    (new QVBoxLayout(this))->addWidget(Combo1);
}

}  // namespace veldix
