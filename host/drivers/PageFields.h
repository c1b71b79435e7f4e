#ifndef KO_PAGEFIELDS_H
#define KO_PAGEFIELDS_H

#include "HostExport.h"

#include <QList>
#include <QStringList>
#include <QVariant>

class QListWidget;
class QWidget;

namespace ko {

/// What of a page is filled in.
namespace PageFields {

/// With a name; not the line edits within other fields.
QList<QWidget*> of(const QWidget* page);

/// Of a choice the data, or the index without; of a list the texts.
QVariant value(const QWidget* field);

/// The names of those that tell one device from the others.
KO_HOST_EXPORT QStringList ofOneNode();

QStringList itemTexts(const QListWidget* list);

} // namespace PageFields

} // namespace ko

#endif
