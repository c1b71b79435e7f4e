#include "RemoveNodesBox.h"

#include "NameList.h"
#include "PlainMessageBox.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RemoveNodesBox)
};

} // namespace

Removal askToRemove(const QStringList& names, const QStringList& folders, QWidget* parent)
{
    QString text = names.size() == 1 ? Texts::tr("Remove this node? Edit > Undo brings it back.")
                                     : Texts::tr("Remove these %n nodes? Edit > Undo brings them back.",
                                                 nullptr, int(names.size()));
    text += QStringLiteral("\n\n") + listOfNames(names);
    if (!folders.isEmpty())
        text += QStringLiteral("\n\n") +
                Texts::tr("Nobody else uses %n recording folder(s):", nullptr, int(folders.size())) +
                QStringLiteral("\n\n") + listOfNames(folders);
    PlainMessageBox box(QMessageBox::Warning, Texts::tr("Remove Nodes"), text, QMessageBox::Cancel, parent);
    box.setObjectName(QStringLiteral("removeNodesBox"));
    if (!folders.isEmpty()) {
        box.setCheckBox(new QCheckBox(Texts::tr("Remove the recording &folders too")));
        box.checkBox()->setObjectName(QStringLiteral("foldersCheckBox"));
        box.checkBox()->setChecked(true);
    }
    QPushButton* remove = box.addButton(Texts::tr("&Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() != remove)
        return Removal::None;
    return box.checkBox() && box.checkBox()->isChecked() ? Removal::NodesAndFolders : Removal::Nodes;
}

} // namespace ko
