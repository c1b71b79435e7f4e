#ifndef KO_FORMFIELDS_H
#define KO_FORMFIELDS_H

#include <QList>
#include <QMap>
#include <QVariant>

class QWidget;

namespace ko {

/// What is entered in the editor of a node, by the names of its fields: an editor of another type, or of
/// another node, has the same names for the same things.
namespace FormFields {

typedef QMap<QString, QVariant> Values;

/// Check boxes first: one may move the number of a port, which then is set to what was entered.
QList<QWidget*> in(const QWidget* form);

Values values(const QWidget* form);

/// As if it were typed, so that the editor does not replace it with a proposal.
void enter(QWidget* field, const QVariant& value);

} // namespace FormFields

} // namespace ko

#endif
