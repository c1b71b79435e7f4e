#include "ReadOnlyNotice.h"

#include "PlainMessageBox.h"
#include "database/HostNodeDB.h"

#include <QCoreApplication>

namespace ko {

namespace ReadOnlyNotice {

QString text()
{
    return QCoreApplication::translate("ReadOnlyNotice",
                                       "You may look at this shared database but not change it. Its "
                                       "administrator can give you the role ko_editor.");
}

bool refuses(const HostNodeDB& db, QWidget* parent)
{
    if (!db.isReadOnly())
        return false;
    PlainMessageBox::ask(QMessageBox::Information, parent,
                         QCoreApplication::translate("ReadOnlyNotice", "Read-Only"), text());
    return true;
}

void watch(const HostNodeDB& db, QWidget* parent, const std::function<void()>& edit)
{
    const bool wasReadOnly = db.isReadOnly();
    edit();
    if (!wasReadOnly)
        refuses(db, parent);
}

} // namespace ReadOnlyNotice

} // namespace ko
