#ifndef KO_NUMBEREDTEXTS_H
#define KO_NUMBEREDTEXTS_H

#include "kogen/PropertySet.h"

#include <QStringList>

namespace ko {

/// Texts as a property: a set whose names, "01", "02" and so on, keep their order.
namespace NumberedTexts {

/// At most 99.
kogen::PropertySet toSet(const QStringList& texts);
QStringList fromSet(const kogen::PropertySet& set);

} // namespace NumberedTexts

} // namespace ko

#endif
