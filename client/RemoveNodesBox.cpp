#include "RemoveNodesBox.h"

#include "NameList.h"
#include "PlainMessageBox.h"

#include <QCoreApplication>
#include <QPushButton>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RemoveNodesBox)
};

} // namespace

bool confirmRemoval(const QStringList& names, QWidget* parent)
{
    const QString question =
        names.size() == 1
            ? Texts::tr("Remove this node? Edit > Undo brings it back.")
            : Texts::tr("Remove these %n nodes? Edit > Undo brings them back.", nullptr, int(names.size()));
    PlainMessageBox box(QMessageBox::Warning, Texts::tr("Remove Nodes"),
                        question + QStringLiteral("\n\n") + listOfNames(names), QMessageBox::Cancel, parent);
    box.setObjectName(QStringLiteral("removeNodesBox"));
    QPushButton* remove = box.addButton(Texts::tr("&Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == remove;
}

} // namespace ko
