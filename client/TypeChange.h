#ifndef KO_TYPECHANGE_H
#define KO_TYPECHANGE_H

#include "FormFields.h"

#include <QObject>

class QComboBox;
class QDialog;
class QWidget;

namespace ko {

/// Keeps what the user has entered in the dialog that adds a node when another type is chosen: the dialog
/// makes a new editor then, and forgets the old one.
class TypeChange : public QObject
{
    Q_OBJECT

public:
    /// The dialog owns it.
    explicit TypeChange(QDialog* dialog);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void remember();
    void restore();

    QComboBox* const m_types;
    QWidget* const m_form;
    FormFields::Values m_fresh;   ///< as the editor began
    FormFields::Values m_entered; ///< also in fields that this type does not have
};

} // namespace ko

#endif
