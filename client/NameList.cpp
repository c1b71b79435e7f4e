#include "NameList.h"

#include "ko/OutsideText.h"

#include <QCoreApplication>

namespace ko {

namespace {

const int namedAtMost = 10;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NameList)
};

} // namespace

QString listOfNames(const QStringList& names)
{
    QStringList lines;
    const QStringList named = names.mid(0, namedAtMost);
    for (const QString& name : named)
        lines.append(QStringLiteral("    ") +
                     (name.isEmpty() ? Texts::tr("(unnamed)") : OutsideText::visible(name)));
    const int more = int(names.size()) - namedAtMost;
    if (more > 0)
        lines.append(QStringLiteral("    ") + Texts::tr("and %n more", nullptr, more));
    return lines.join(QLatin1Char('\n'));
}

} // namespace ko
