#include "RemoveNodesBox.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace ko {

namespace {

const int namedAtMost = 10;

QString translated(const char* text, int n = -1)
{
    return QCoreApplication::translate("RemoveNodesBox", text, nullptr, n);
}

QString listed(const QStringList& names)
{
    QStringList lines;
    const QStringList named = names.mid(0, namedAtMost);
    for (const QString& name : named)
        lines.append(QStringLiteral("    ") + (name.isEmpty() ? translated("(unnamed)") : name));
    const int more = int(names.size()) - namedAtMost;
    if (more > 0)
        lines.append(QStringLiteral("    ") + translated("and %n more", more));
    return lines.join(QLatin1Char('\n'));
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
    box.setText(question + QStringLiteral("\n\n") + listed(names));
    QPushButton* remove = box.addButton(translated("Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == remove;
}

} // namespace ko
