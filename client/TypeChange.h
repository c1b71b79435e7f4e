#ifndef KO_TYPECHANGE_H
#define KO_TYPECHANGE_H

#include <QMap>
#include <QObject>
#include <QVariant>

class QComboBox;
class QDialog;
class QWidget;

namespace ko {

/// Keeps what the user has entered in the dialog that adds a node when he chooses another type: the dialog
/// makes a new editor then, and forgets the old one.
class TypeChange : public QObject
{
    Q_OBJECT

public:
    /// The dialog owns it.
    explicit TypeChange(QDialog* dialog);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    typedef QMap<QString, QVariant> Values; ///< by the names of the fields

    QList<QWidget*> fields() const;
    Values values() const;
    void remember();
    void restore();

    QDialog* const m_dialog;
    QComboBox* const m_types;
    Values m_fresh;   ///< as the editor began
    Values m_entered; ///< also in fields that this type does not have
};

} // namespace ko

#endif
