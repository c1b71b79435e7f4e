#include "NameList.h"

#include "ko/OutsideText.h"

#include <QCoreApplication>

namespace ko {

namespace {

const int namedAtMost = 10;

QString translated(const char* text, int n = -1)
{
    return QCoreApplication::translate("NameList", text, nullptr, n);
}

} // namespace

QString listOfNames(const QStringList& names)
{
    QStringList lines;
    const QStringList named = names.mid(0, namedAtMost);
    for (const QString& name : named)
        lines.append(QStringLiteral("    ") +
                     (name.isEmpty() ? translated("(unnamed)") : OutsideText::visible(name)));
    const int more = int(names.size()) - namedAtMost;
    if (more > 0)
        lines.append(QStringLiteral("    ") + translated("and %n more", more));
    return lines.join(QLatin1Char('\n'));
}

} // namespace ko
