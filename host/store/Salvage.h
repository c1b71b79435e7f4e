#ifndef KO_SALVAGE_H
#define KO_SALVAGE_H

#include "model/StoreError.h"

#include <QTemporaryDir>

namespace ko {

/// What can still be read of a damaged database: a new one in a folder beside it, which goes with this
/// object.
///
/// The damaged file is read and stays as it is; its copy is mended as far as that takes. Belongs to no
/// thread.
class KO_HOST_EXPORT Salvage
{
public:
    /// May take as long as copying the file twice. \a database must not be open in this process.
    explicit Salvage(const QString& database);

    /// The database with what was saved; empty if nothing could be read, see error().
    QString file() const { return m_error ? QString() : m_folder.filePath(QLatin1String("saved.kodb")); }

    /// How many nodes are in file().
    qint64 nodeCount() const { return m_nodes; }

    const StoreError& error() const { return m_error; }

private:
    Q_DISABLE_COPY(Salvage)
    void run(const QString& database);

    QTemporaryDir m_folder;
    qint64 m_nodes = 0;
    StoreError m_error;
};

} // namespace ko

#endif
