#include "ManualPages.h"

#include <QFile>
#include <QWidget>

#include <algorithm>

/// Outside the namespace, as the macro demands.
static void initManual()
{
    Q_INIT_RESOURCE(manual);
}

namespace ko {

namespace ManualPages {

namespace {

const char folder[] = ":/manual/";
const char first[] = "start.md";

const struct
{
    const char* window; ///< its object name
    const char* place;
} ofWindows[] = {
    {"MainWindow", first},
    {"SavedSearchesDialog", "start.md#searching"},
    {"saveSearchDialog", "start.md#searching"},
    {"removeSearchBox", "start.md#searching"},
    {"ManualWindow", "index.md#reading-this-manual"},
    {"AddNodeDialog", "nodes.md#adding"},
    {"EditNodeDialog", "nodes.md#editing"},
    {"EditSeveralDialog", "nodes.md#editing-several"},
    {"removeNodesBox", "nodes.md#removing"},
    {"NodeDBViewer", "nodes.md#everything-that-is-stored"},
    {"GenericNodeViewer", "nodes.md#everything-that-is-stored"},
    {"ImportReportDialog", "import.md#importing"},
    {"surveyProgress", "import.md#importing"},
    {"NodeOverviewDialog", "scan.md#two-scans"},
    {"FilterDialog", "scan.md#two-scans"},
    {"scanFindingsBox", "scan.md#two-scans"},
    {"AddressChangesDialog", "scan.md#seen-at-a-new-address"},
    {"NodeAuthenticateDialog", "passwords.md#many-cameras"},
    {"credentialsBox", "passwords.md#many-cameras"},
    {"keychainBox", "passwords.md#waiting-for-the-keychain"},
    {"CheckReportDialog", "checks.md#states"},
    {"acceptDevicesBox", "checks.md#another-device-than-before"},
    {"clearPasswordsBox", "checks.md#clear-passwords"},
    {"FillInDialog", "checks.md#filling-in"},
    {"RecordingFolderAssignmentDialog", "recordings.md#where-they-are-played-from"},
    {"RecordingFolderMassAssignmentDialog", "recordings.md#many-cameras"},
    {"RecordingTransponderCustomSettingsDialog", "recordings.md#where-they-are-played-from"},
    {"EnvironmentDialog", "environments.md#environments"},
    {"NetworkProxyDialog", "environments.md#proxy"},
    {"PreferencesDialog", "environments.md#preferences"},
    {"PutBackDialog", "history.md#undo"},
    {"HistoryDialog", "history.md#the-history"},
    {"HistoryLimitDialog", "history.md#keeping-less-of-it"},
    {"AuditLogDialog", "history.md#the-audit-log"},
    {"BackToDialog", "moment.md"},
    {"MomentWindow", "moment.md"},
    {"ConnectDialog", "sharing.md#connecting"},
    {"SharingDialog", "sharing.md#what-could-not-be-made"},
    {"SitePassphraseDialog", "sharing.md#the-passphrase"},
    {"recoveryBox", "backup.md#when-the-database-is-damaged"},
    {"notOpenedBox", "trouble.md#the-database-cannot-be-opened"},
    {"storeFailedBox", "trouble.md#changes-are-not-stored"},
    {"unsavedEditsBox", "nodes.md#editing"},
};

} // namespace

QStringList all()
{
    return {
        QStringLiteral("index.md"),   QStringLiteral("start.md"),        QStringLiteral("import.md"),
        QStringLiteral("scan.md"),    QStringLiteral("nodes.md"),        QStringLiteral("passwords.md"),
        QStringLiteral("checks.md"),  QStringLiteral("recordings.md"),   QStringLiteral("environments.md"),
        QStringLiteral("history.md"), QStringLiteral("moment.md"),       QStringLiteral("backup.md"),
        QStringLiteral("sharing.md"), QStringLiteral("command-line.md"), QStringLiteral("keyboard.md"),
        QStringLiteral("trouble.md")};
}

QString text(const QString& page)
{
    initManual();
    QFile file(QLatin1String(folder) + page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString title(const QString& page)
{
    return text(page).section(QLatin1Char('\n'), 0, 0).mid(2); // after "# "
}

QUrl url(const QString& page)
{
    return QUrl(QLatin1String("qrc") + QLatin1String(folder) + page);
}

QString anchor(const QString& heading)
{
    QString anchor;
    const QString lower = heading.toLower();
    for (const QChar c : lower) {
        if (c.isLetterOrNumber() || c == QLatin1Char('-'))
            anchor.append(c);
        else if (c == QLatin1Char(' '))
            anchor.append(QLatin1Char('-'));
    }
    return anchor;
}

bool contains(const QString& page, const QStringList& words)
{
    const QString all = text(page);
    return std::all_of(words.begin(), words.end(),
                       [&all](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
}

QList<QPair<QString, QString>> places()
{
    QList<QPair<QString, QString>> places;
    for (const auto& each : ofWindows)
        places.append({QString::fromLatin1(each.window), QString::fromLatin1(each.place)});
    return places;
}

QString ownOf(const QWidget& window)
{
    const auto* found = std::find_if(std::begin(ofWindows), std::end(ofWindows), [&window](const auto& each) {
        return window.objectName() == QLatin1String(each.window);
    });
    return found == std::end(ofWindows) ? QString() : QString::fromLatin1(found->place);
}

QString of(const QWidget* widget)
{
    for (; widget; widget = widget->window()->parentWidget()) {
        QString own = ownOf(*widget->window());
        if (!own.isEmpty())
            return own;
    }
    return QString::fromLatin1(first);
}

} // namespace ManualPages

} // namespace ko
