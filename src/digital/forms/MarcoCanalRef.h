#pragma once

#include <QComboBox>
#include <QGroupBox>

#include <string>

namespace veldix {

/// The frame with the choice of the analog reference among the record's channels, by their long names.
class MarcoCanalRef : public QGroupBox {
    Q_OBJECT

public:
    MarcoCanalRef(const std::string& titulo, QWidget* padre);

    /// Row of `Canales`: 1 where nothing is selected.
    int CanalRef() const { return Combo1->currentIndex() < 0 ? 1 : Combo1->currentIndex() + 1; }

private:
    QComboBox* Combo1;
};

}  // namespace veldix
