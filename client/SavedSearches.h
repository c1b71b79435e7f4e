#ifndef KO_SAVEDSEARCHES_H
#define KO_SAVEDSEARCHES_H

#include "ko/Types.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace ko {

/// A search that somebody gave a name.
struct SavedSearch
{
    QString name;
    QString text;
    ENodeType type = AllNodeTypes; ///< that is shown
};

/// Those of this user, kept in the user's settings, in the order of their names. No name is there twice.
namespace SavedSearches {

QVector<SavedSearch> all();

/// In the place of the one with that name, if there is one.
void save(const SavedSearch& search);
void remove(const QString& name);

/// False if there is one with the new name, or none with the old one, or the new one is empty.
bool rename(const QString& from, const QString& to);

} // namespace SavedSearches

} // namespace ko

#endif
