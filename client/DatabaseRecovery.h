#ifndef KO_DATABASERECOVERY_H
#define KO_DATABASERECOVERY_H

#include <QString>

class QWidget;

namespace ko {

struct StoreError;

/// What a user can do about a damaged database.
namespace DatabaseRecovery {

/// Saves what can be read of the damaged \a file beside it and offers that and the newest good backup.
/// True if one of them was put in the place of \a file, which is kept under another name then; false if
/// the user wants neither, or it failed, which has been told.
bool offer(const QString& file, const StoreError& damage, QWidget* parent);

} // namespace DatabaseRecovery

} // namespace ko

#endif
