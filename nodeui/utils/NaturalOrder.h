#ifndef KO_NATURALORDER_H
#define KO_NATURALORDER_H

#include "NodeUIExport.h"

#include <QString>

namespace ko {

/// As people count: "Camera 2" before "Camera 10", whatever the locale. Less than, equal to or greater than
/// 0, as QString::compare() returns it; 0 only for texts that are alike but for zeros before numbers and, if
/// it does not matter, case.
KO_NODEUI_EXPORT int compareNaturally(const QString& a, const QString& b, Qt::CaseSensitivity sensitivity);

} // namespace ko

#endif
