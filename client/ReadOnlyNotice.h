#ifndef KO_READONLYNOTICE_H
#define KO_READONLYNOTICE_H

#include <QString>

class QWidget;

namespace ko {

class HostNodeDB;

/// For who may only read a site: says so where he wants to change something, before a window asks him for it.
namespace ReadOnlyNotice {

/// What he reads.
QString text();

/// Whether \a db is read-only; then the user has been told.
bool refuses(const HostNodeDB& db, QWidget* parent);

} // namespace ReadOnlyNotice

} // namespace ko

#endif
