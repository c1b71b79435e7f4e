#ifndef KO_KNOWNFOLDERS_H
#define KO_KNOWNFOLDERS_H

#include <QObject>

class QLineEdit;

namespace ko {

class HostNodeDB;

/// Offers the paths of the recording folders that there are, where one is typed: while it is typed those that
/// hold it, all by the key Down. Two cameras that record into one folder are to have one spelling of it.
class KnownFolders : public QObject
{
    Q_OBJECT

public:
    /// For all windows of the program; the database outlives it.
    KnownFolders(const HostNodeDB& db, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh(QLineEdit& field) const;

    const HostNodeDB& m_db;
};

} // namespace ko

#endif
