#ifndef KO_CHANGEDMEANWHILE_H
#define KO_CHANGEDMEANWHILE_H

#include "ko/TrContext.h"
#include "ko/Types.h"
#include "model/Cause.h"

#include <QLabel>
#include <QSet>

class QDialog;

namespace ko {

class HostNodeDB;

/// A quiet line in the editor of a node: who else changed or removed the node while it is open. Not there as
/// long as nobody has.
class ChangedMeanwhile : public QLabel
{
    Q_OBJECT
    KO_TR_CONTEXT(ChangedMeanwhile)

public:
    /// \a db outlives the dialog.
    static void addTo(QDialog& dialog, HostNodeDB& db, const QString& id);

private:
    ChangedMeanwhile(HostNodeDB& db, const QString& id, QWidget* parent);
    void later(const QString& id);
    void look();
    void showText();

    HostNodeDB& m_db;
    const QString m_id;
    qint64 m_seen;       ///< no newer change set of the node was there when it was looked last
    QSet<qint64> m_ours; ///< change sets of this program
    Cause m_cause;       ///< of what another one did last
    bool m_isLate = false;
};

} // namespace ko

#endif
