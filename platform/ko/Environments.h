#ifndef KO_ENVIRONMENTS_H
#define KO_ENVIRONMENTS_H

#include "PlatformExport.h"

#include <QList>
#include <QPair>
#include <QString>

namespace ko {

/// The network environments: an ordered list of (identifier, name).
///
/// An identifier is a UUID in Qt's textual form with braces, made once and never changed. Which one is
/// active is the database's: NodeDB::activeEnvironment().
class KO_PLATFORM_EXPORT Environments
{
public:
    typedef QList<QPair<QString, QString>> List;

    virtual ~Environments();

    virtual List getList() const = 0;
    virtual void setList(const List& list) = 0;

    /// Forgets the environment and whatever else is kept for it; even one that the list set last no longer
    /// holds. An unknown identifier does nothing.
    virtual void remove(const QString& id) = 0;
};

} // namespace ko

#endif
