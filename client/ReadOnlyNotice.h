#ifndef KO_READONLYNOTICE_H
#define KO_READONLYNOTICE_H

#include <QString>

#include <functional>

class QWidget;

namespace ko {

class HostNodeDB;

/// For users who may only read a site: says so where they want to change something, before a window asks them
/// for it.
namespace ReadOnlyNotice {

/// What he reads.
QString text();

/// Whether \a db is read-only; then the user has been told.
bool refuses(const HostNodeDB& db, QWidget* parent);

/// Runs \a edit, and tells the user if the right to change anything was lost meanwhile: then nothing was
/// stored.
void watch(const HostNodeDB& db, QWidget* parent, const std::function<void()>& edit);

} // namespace ReadOnlyNotice

} // namespace ko

#endif
