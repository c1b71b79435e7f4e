#include "Options.h"

#include "sharing/SiteAddress.h"

#include <QCoreApplication>

namespace ko {

namespace {

struct Option
{
    const char* name;
    const char* text;
    const char* value; ///< what it takes; empty for a switch
};

const Option options[] = {
    {"db",
     QT_TRANSLATE_NOOP("Application",
                       "Opens this node database: a file, which is made if it is not there, or a "
                       "shared one, postgresql://user@host/database."),
     "FILE"},
    {"lang",
     QT_TRANSLATE_NOOP("Application",
                       "Uses this language, such as de or pt_BR, whatever is chosen elsewhere."),
     "CODE"},
    {"import",
     QT_TRANSLATE_NOOP("Application", "Adds the cameras of a list (CSV) and ends. No window is needed."),
     "FILE"},
    {"export", QT_TRANSLATE_NOOP("Application", "Writes all cameras into a list (CSV) and ends."), "FILE"},
    {"without-passwords", QT_TRANSLATE_NOOP("Application", "Leaves the passwords out of --export."), ""},
    {"backup",
     QT_TRANSLATE_NOOP("Application", "Copies the database, which may be in use, into a file and ends."),
     "FILE"},
    {"restore",
     QT_TRANSLATE_NOOP("Application", "Restores the database, which may be in use, from a backup and ends. "
                                      "The present content is kept as a backup."),
     "FILE"},
    {"share",
     QT_TRANSLATE_NOOP("Application",
                       "Copies the database with its history to an empty one on a server, whose address "
                       "follows (postgresql://user@host/database), and ends. Called again, it continues."),
     "FILE"},
    {"verify-log",
     QT_TRANSLATE_NOOP("Application",
                       "Checks whether anybody has altered the logs of the database, says what, and ends."),
     ""},
    {"thin-history",
     QT_TRANSLATE_NOOP("Application",
                       "Removes what was before and after each change from the history, where it is older "
                       "than this many days, and ends. Who changed something, and when, is kept."),
     "DAYS"},
};

const Option toolkitOptions[] = {
    {"platform", "", "NAME"},
    {"platformpluginpath", "", "FOLDER"},
    {"platformtheme", "", "NAME"},
    {"plugin", "", "NAME"},
    {"style", "", "NAME"},
    {"stylesheet", "", "FILE"},
    {"qwindowgeometry", "", "SIZE"},
    {"qwindowicon", "", "FILE"},
    {"qwindowtitle", "", "TEXT"},
    {"geometry", "", "SIZE"},
    {"icon", "", "FILE"},
    {"title", "", "TEXT"},
    {"session", "", "NAME"},
    {"display", "", "NAME"},
    {"name", "", "NAME"},
    {"reverse", "", ""},
    {"widgetcount", "", ""},
    {"nograb", "", ""},
    {"dograb", "", ""},
    {"sync", "", ""},
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Application)
};

} // namespace

Options::Options()
{
    const auto add = [this](const Option& option) {
        QCommandLineOption added(QLatin1String(option.name), QString(), QLatin1String(option.value));
        if (*option.text)
            added.setDescription(Texts::tr(option.text));
        else
            added.setFlags(QCommandLineOption::HiddenFromHelp);
        m_parser.addOption(added);
    };
    // The toolkit's options have one dash, which must not be read as a row of one-letter options.
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    m_parser.setApplicationDescription(Texts::tr(
        "Shows, adds, edits and removes the nodes of a video-surveillance system.\n"
        "Without an option that does something and ends, such as --import, it opens a window, and takes "
        "the toolkit's options (-platform, -style and others) too."));
    m_parser.addHelpOption();
    m_parser.addVersionOption();
    for (const Option& option : options)
        add(option);
    for (const Option& option : toolkitOptions)
        add(option);
}

QString Options::read(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        return m_parser.errorText();
    const QStringList others = m_parser.positionalArguments();
    if (others.size() > int(isSet("share")))
        return Texts::tr("Unexpected argument: %1").arg(others.constLast());
    if (isSet("share") && !SiteAddress::isSite(site()))
        return Texts::tr("After --share FILE comes the address of a database, "
                         "postgresql://user@host/database.");
    if (SiteAddress::isSite(value("db")) && isSet("restore"))
        return Texts::tr("A backup cannot be restored into a shared database.");
    for (const QString& address : {value("db"), site()}) {
        QString refusal = SiteAddress::isSite(address) ? SiteAddress::refusal(address) : QString();
        if (!refusal.isEmpty())
            return refusal;
    }
    return asksForHelp() || isSet("version") ? QString() : badValue();
}

/// An empty value is what a script passes whose variable is not set: it is not meant as a missing option.
QString Options::badValue() const
{
    for (const Option& option : options) {
        if (*option.value && isSet(option.name) && value(option.name).isEmpty())
            return Texts::tr("The value after --%1 is empty.").arg(QLatin1String(option.name));
    }
    if (isSet("thin-history") && value("thin-history").toInt() < 1)
        return Texts::tr("--thin-history needs a number of days.");
    return QString();
}

QString Options::site() const
{
    return m_parser.positionalArguments().value(0);
}

QString Options::helpText() const
{
    return m_parser.helpText().trimmed();
}

QString Options::toolkitOption() const
{
    for (const Option& option : toolkitOptions) {
        if (isSet(option.name))
            return QLatin1Char('-') + QLatin1String(option.name);
    }
    return QString();
}

} // namespace ko
