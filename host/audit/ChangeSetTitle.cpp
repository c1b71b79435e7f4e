#include "audit/ChangeSetTitle.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace ko {

namespace ChangeSetTitle {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ChangeSetTitle)
};

struct Words
{
    Purpose purpose;
    const char* logged;
    const char* group; ///< all of its kind
    const char* one;   ///< %1 is the name of the node, or the subject
    const char* many;  ///< with the number of nodes; null: as one
};

const Words words[] = {
    {Purpose::Edit, QT_TRANSLATE_NOOP("LogEntry", "Changed without a dialog"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Properties"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Properties of %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "Properties of %n node(s)")},
    {Purpose::Recording, QT_TRANSLATE_NOOP("LogEntry", "Changed recordings"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Recording folders"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Recording folder of %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "Recording folders of %n camera(s)")},
    {Purpose::Credentials, QT_TRANSLATE_NOOP("LogEntry", "Changed users and passwords"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Users and passwords"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "User and password of %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "User and password of %n node(s)")},
    {Purpose::Add, QT_TRANSLATE_NOOP("LogEntry", "Added by the program"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Adding nodes"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Adding %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "Adding %n node(s)")},
    {Purpose::Remove, QT_TRANSLATE_NOOP("LogEntry", "Removed by the program"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Removing nodes"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Removing %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "Removing %n node(s)")},
    {Purpose::Import, QT_TRANSLATE_NOOP("LogEntry", "Imported a list"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Imports"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Import of %1"),
     nullptr},
    {Purpose::FillIn, QT_TRANSLATE_NOOP("LogEntry", "Filled in what cameras said"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "What cameras said"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "What %1 said"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "What %n camera(s) said")},
    {Purpose::Address, QT_TRANSLATE_NOOP("LogEntry", "Accepted new addresses"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "New addresses"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "New address of %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "New addresses of %n device(s)")},
    {Purpose::Scan, QT_TRANSLATE_NOOP("LogEntry", "Found by a scan"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Scans"), QT_TRANSLATE_NOOP("ChangeSetTitle", "A scan found %1"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "A scan found %n device(s)")},
    {Purpose::Check, QT_TRANSLATE_NOOP("LogEntry", "Noted what cameras are known by"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "What cameras are known by"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "What %1 is known by"),
     QT_TRANSLATE_N_NOOP("ChangeSetTitle", "What %n camera(s) are known by")},
    {Purpose::Settings, QT_TRANSLATE_NOOP("LogEntry", "Changed settings"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Settings"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Settings"),
     nullptr},
    {Purpose::Proxy, QT_TRANSLATE_NOOP("LogEntry", "Changed the global proxy"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Global proxy"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Global proxy"),
     nullptr},
    {Purpose::Environments, QT_TRANSLATE_NOOP("LogEntry", "Changed environments"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Environments"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Environments"),
     nullptr},
    {Purpose::Start, QT_TRANSLATE_NOOP("LogEntry", "Made the database"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "New database"), QT_TRANSLATE_NOOP("ChangeSetTitle", "New database"),
     nullptr},
    {Purpose::Restore, QT_TRANSLATE_NOOP("LogEntry", "Restored a backup"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Restored backup"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Restored backup"), nullptr},
    {Purpose::Undo, QT_TRANSLATE_NOOP("LogEntry", "Put back"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Put back"), QT_TRANSLATE_NOOP("ChangeSetTitle", "Put back"),
     nullptr},
    {Purpose::Reseal, QT_TRANSLATE_NOOP("LogEntry", "Sealed passwords anew"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Passwords sealed anew"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Passwords sealed anew"), nullptr},
    {Purpose::Unknown, QT_TRANSLATE_NOOP("LogEntry", "Changed by a newer version"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Change of a newer version"),
     QT_TRANSLATE_NOOP("ChangeSetTitle", "Change of a newer version"), nullptr},
};

const Words& wordsOf(Purpose purpose)
{
    return *std::find_if(std::begin(words), std::end(words),
                         [purpose](const Words& entry) { return entry.purpose == purpose; });
}

} // namespace

QString of(const ChangeSetRow& row)
{
    const Cause& cause = row.cause;
    if (cause.purpose == Purpose::Undo) {
        ChangeSetRow undone = row;
        undone.cause.purpose = cause.undone();
        undone.cause.subject.clear();
        if (undone.cause.purpose == Purpose::Undo)
            return kind(Purpose::Undo); // another program's
        return (cause.isRedo() ? Texts::tr("Redone: %1") : Texts::tr("Put back: %1")).arg(of(undone));
    }
    const Words& text = wordsOf(cause.purpose);
    if (text.many && row.nodes > 1)
        return Texts::tr(text.many, nullptr, row.nodes);
    if (row.isThinned && cause.subject.isEmpty())
        return kind(cause.purpose);
    const QString title = Texts::tr(text.one);
    return title.contains(QLatin1String("%1"))
               ? title.arg(cause.subject.isEmpty() ? nodes(row) : cause.subject)
               : title;
}

QString kind(Purpose purpose)
{
    return Texts::tr(wordsOf(purpose).group);
}

QString logged(Purpose purpose)
{
    return QCoreApplication::translate("LogEntry", wordsOf(purpose).logged);
}

QString nodes(const ChangeSetRow& row)
{
    if (row.nodes < 2)
        return row.firstName;
    const int others = row.nodes - 1;
    return QCoreApplication::translate("LogEntry", "%1 and %n other(s)", nullptr, others).arg(row.firstName);
}

QVector<Purpose> all()
{
    QVector<Purpose> purposes;
    for (const Words& entry : words)
        purposes.append(entry.purpose);
    return purposes;
}

} // namespace ChangeSetTitle

} // namespace ko
