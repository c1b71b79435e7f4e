#include "RemoveNodesBox.h"

#include "NameList.h"
#include "PlainMessageBox.h"

#include <QCoreApplication>
#include <QPushButton>

namespace ko {

namespace {

QString translated(const char* text, int n = -1)
{
    return QCoreApplication::translate("RemoveNodesBox", text, nullptr, n);
}

} // namespace

bool confirmRemoval(const QStringList& names, QWidget* parent)
{
    const QString question =
        names.size() == 1
            ? translated("Remove this node? It cannot be brought back.")
            : translated("Remove these %n nodes? They cannot be brought back.", int(names.size()));
    PlainMessageBox box(QMessageBox::Warning, translated("Remove Nodes"),
                        question + QStringLiteral("\n\n") + listOfNames(names), QMessageBox::Cancel, parent);
    box.setObjectName(QStringLiteral("removeNodesBox"));
    QPushButton* remove = box.addButton(translated("&Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == remove;
}

} // namespace ko
