// A client with a node database of its own, in memory: one gate, opened in the library's edit dialog.
// With --self-check it types a name, presses OK, and ends with 0 if the database has the name.

#include "GateDriver.h"
#include "MemoryNodeDB.h"
#include "dialogs/EditNodeDialog.h"
#include "ko/PropertyKeys.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {

QString addGate(ko::NodeDB* database)
{
    const kom::smart<ko::NodeHint> hint =
        database->nodeDriver(example::GateType)->createNodeHint(example::GateType);
    hint->setName(QLatin1String("North gate"));
    hint->setStringProperty(ko::PropertyKeys::InfoFile, QString());
    database->newNodeHint(*hint);
    return database->lookupHint(*hint);
}

void rename(QDialog* dialog, const QString& name)
{
    dialog->findChild<QLineEdit*>(QLatin1String("nameLineEdit"))->setText(name);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool check = application.arguments().contains(QLatin1String("--self-check"));
    const QString newName = QLatin1String("South gate");

    example::MemoryNodeDB database;
    const QString id = addGate(&database);
    ko::EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    if (check)
        QTimer::singleShot(0, &dialog, [&dialog, newName] { rename(&dialog, newName); });
    dialog.exec();

    const QString name = database.node(id)->name();
    std::printf("The gate is called \"%s\".\n", qPrintable(name));
    return check && name != newName ? 1 : 0;
}
