#ifndef KO_EXTENDEDCOMBOBOX_H
#define KO_EXTENDEDCOMBOBOX_H

#include "PlatformExport.h"

#include <QComboBox>

namespace ko {

/// A combo box whose list is as wide as its longest entry, and whose value a mouse wheel that merely
/// passes over it does not change.
class KO_PLATFORM_EXPORT ExtendedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ExtendedComboBox(QWidget* parent = nullptr);

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace ko

#endif
