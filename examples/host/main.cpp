// A program with a node database of its own, in memory: one dome camera is added and opened for editing.
// With --self-check it types names, presses OK, and ends with 0 if the database has them.

#include "MemoryNodeDB.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {

/// Types a name and presses OK as soon as the dialog is open.
void answerWith(const QString& name, QDialog* dialog)
{
    QTimer::singleShot(0, dialog, [dialog, name] {
        dialog->findChild<QLineEdit*>("nameLineEdit")->setText(name);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool check = application.arguments().contains("--self-check");

    example::MemoryNodeDB database;
    ko::AddNodeDialog add(&database, nullptr, nullptr, true, 0);
    if (check)
        answerWith("North dome", &add);
    add.exec();
    if (add.nodeId().isEmpty())
        return 1;

    const QString before = database.node(add.nodeId())->name();
    ko::EditNodeDialog edit(add.nodeId(), nullptr, false, 0, nullptr);
    if (check)
        answerWith("South dome", &edit);
    edit.exec();

    const QString after = database.node(add.nodeId())->name();
    std::printf("\"%s\" is now called \"%s\".\n", qPrintable(before), qPrintable(after));
    return !check || (before == "North dome" && after == "South dome") ? 0 : 1;
}
