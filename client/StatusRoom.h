#ifndef KO_STATUSROOM_H
#define KO_STATUSROOM_H

#include <QObject>
#include <QVector>

class QStatusBar;
class QWidget;

namespace ko {

/// Makes room in a status bar, which else cuts its message off, or paints none at all: what may wait takes no
/// room as long as the message, and what is more important than it, would not fit.
class StatusRoom : public QObject
{
    Q_OBJECT

public:
    /// Owned by the bar, as these are, which stand in it; the first gives way first, and the last one that is
    /// shown only to a message.
    StatusRoom(QStatusBar* bar, const QVector<QWidget*>& yielding);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void share();

    QStatusBar* const m_bar;
    const QVector<QWidget*> m_yielding;
};

} // namespace ko

#endif
