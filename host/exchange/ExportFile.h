#ifndef KO_EXPORTFILE_H
#define KO_EXPORTFILE_H

#include "HostExport.h"

#include <QFile>
#include <QSaveFile>

namespace ko {

/// Where a list goes. A regular file is replaced when all is written, and is its owner's alone, because a
/// list holds passwords. A device or a pipe is written to as it is. A database is refused.
class KO_HOST_EXPORT ExportFile
{
public:
    explicit ExportFile(const QString& name);

    /// Whether what is written there appears where the program's own texts do.
    static bool isStandardOutput(const QString& name);

    /// False if nothing can be written there.
    bool open();

    QIODevice* device();

    /// All is written. False if it is not there in full; a file is then as it was.
    bool commit();

    /// What kept it from being written, in words for a person; after a failed write to device(), too.
    QString whyNot();

private:
    Q_DISABLE_COPY(ExportFile)
    bool openStream(int descriptor);

    const QString m_name;
    QSaveFile m_replacement;
    QFile m_stream;
    QString m_reason; ///< unless one of the two knows
};

} // namespace ko

#endif
