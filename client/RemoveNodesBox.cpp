#include "RemoveNodesBox.h"

#include "NameList.h"

#include <QCoreApplication>
#include <QMessageBox>
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
    QMessageBox box(QMessageBox::Warning, translated("Remove Nodes"), QString(), QMessageBox::Cancel, parent);
    box.setObjectName(QStringLiteral("removeNodesBox"));
    box.setTextFormat(Qt::PlainText); // names are text, whatever they look like
    const QString question =
        names.size() == 1
            ? translated("Remove this node? It cannot be brought back.")
            : translated("Remove these %n nodes? They cannot be brought back.", int(names.size()));
    box.setText(question + QStringLiteral("\n\n") + listOfNames(names));
    QPushButton* remove = box.addButton(translated("Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == remove;
}

} // namespace ko
