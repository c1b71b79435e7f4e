#ifndef KO_READALTERATIONS_H
#define KO_READALTERATIONS_H

#include "history/Alteration.h"

#include <QVector>

#include <optional>

class QWidget;

namespace ko {

class HostNodeDB;
struct ChangeSetRow;

/// What \a sets changed, one after another. Of many nodes, a window above \a parent shows how far reading is,
/// and can end it. None then, or if it cannot be read, which is said by itself.
std::optional<QVector<Alteration>> readAlterations(HostNodeDB& db, const QVector<ChangeSetRow>& sets,
                                                   QWidget* parent);

} // namespace ko

#endif
