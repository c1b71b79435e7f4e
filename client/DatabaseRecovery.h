#ifndef KO_DATABASERECOVERY_H
#define KO_DATABASERECOVERY_H

#include <QString>

class QWidget;

namespace ko {

struct StoreError;

/// What a user can do about a database that cannot be opened.
namespace DatabaseRecovery {

/// Says why \a file cannot be opened and does what the user chooses: of a damaged one puts the newest good
/// backup or what can still be read in its place and keeps it under another name; of others tries again or
/// takes another file, whose name \a file is then.
/// False if the user quits, and nothing has changed; otherwise \a file is to be opened again.
bool offer(QString* file, const StoreError& error, QWidget* parent);

} // namespace DatabaseRecovery

} // namespace ko

#endif
