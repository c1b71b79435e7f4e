#ifndef KO_ADDANDNEXT_H
#define KO_ADDANDNEXT_H

#include "FormFields.h"

#include <QObject>

class QPushButton;

namespace ko {

class AddNodeDialog;

/// A button that adds what is entered and then asks for another node that is like it: of its type, with all
/// that devices of one site have in common.
class AddAndNext : public QObject
{
    Q_OBJECT

public:
    /// What the next dialog begins with.
    struct Kept
    {
        int type = 0; ///< index in the list of types
        FormFields::Values values;
    };

    /// The dialog owns it.
    explicit AddAndNext(AddNodeDialog* dialog);

    void begin(const Kept& kept);

    /// Whether the dialog was left by the button.
    bool isWanted() const { return m_isWanted; }
    const Kept& kept() const { return m_kept; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addAndGoOn();

    AddNodeDialog* const m_dialog;
    QPushButton* const m_ok;
    QPushButton* const m_next;
    Kept m_kept;
    bool m_isWanted = false;
};

} // namespace ko

#endif
