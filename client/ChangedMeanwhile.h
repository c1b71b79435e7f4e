#ifndef KO_CHANGEDMEANWHILE_H
#define KO_CHANGEDMEANWHILE_H

#include "database/NodeEditors.h"
#include "ko/TrContext.h"
#include "ko/Types.h"
#include "model/Cause.h"

#include <QLabel>
#include <QSet>

class QDialog;

namespace ko {

class HostNodeDB;

/// A quiet line in the editor of a node: who else changed or removed the node while it is open, and who edits
/// it at another desk. Not there as long as nobody has or does.
class ChangedMeanwhile : public QLabel
{
    Q_OBJECT
    KO_TR_CONTEXT(ChangedMeanwhile)

public:
    /// \a db outlives the dialog.
    static void addTo(QDialog& dialog, HostNodeDB& db, const QString& id, NodeEditors::Access access);
    ~ChangedMeanwhile() override;

private:
    ChangedMeanwhile(HostNodeDB& db, const QString& id, NodeEditors::Access access, QWidget* parent);
    void later(const QString& id);
    void look();
    void showText();
    QString changeText() const;
    QString editorsText() const;

    HostNodeDB& m_db;
    const QString m_id;
    const NodeEditors::Access m_access;
    qint64 m_seen;       ///< no newer change set of the node was there when it was looked last
    QSet<qint64> m_ours; ///< change sets of this program
    Cause m_cause;       ///< of what another one did last
    bool m_isLate = false;
};

} // namespace ko

#endif
