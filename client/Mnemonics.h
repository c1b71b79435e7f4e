#ifndef KO_MNEMONICS_H
#define KO_MNEMONICS_H

#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

namespace ko {

/// Gives the controls of every window that have none a letter to be pressed with Alt, no two of those that
/// are seen together the same: labels of fields, buttons, boxes and tabs. OK, Cancel and Close have their
/// keys already.
///
/// Holds for all windows of the program as long as the object lives. It is the program's and not the
/// library's, whose forms leave the letters to their host.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    explicit Mnemonics(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void assign();

    QVector<QPointer<QWidget>> m_windows; ///< in which something came into sight or changed
};

} // namespace ko

#endif
