#ifndef KO_SCANFINDINGS_H
#define KO_SCANFINDINGS_H

#include "history/Alteration.h"
#include "model/Cause.h"

#include <QObject>
#include <QSet>

namespace ko {

class HostNodeDB;

/// What scans add to the database while it lives. Nobody agreed to that, so it can be taken back.
class ScanFindings : public QObject
{
    Q_OBJECT

public:
    /// The database outlives it.
    explicit ScanFindings(HostNodeDB& db);

    /// The names of what was added and is still there.
    QStringList names();

    /// Takes out, as one change set, what was added and is still as the scan left it. Returns how many nodes
    /// went.
    int takeBack();

    /// Asks whether to keep them, if there are any. Returns what was done, for the user.
    QString ask(QWidget* parent);

private:
    QVector<Alteration> additions();

    HostNodeDB& m_db;
    QSet<QString> m_inserted;
    QVector<qint64> m_sets; ///< change sets of scans
    Cause m_cause;          ///< of the last of them
};

} // namespace ko

#endif
