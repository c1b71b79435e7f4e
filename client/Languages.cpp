#include "Languages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// Outside the namespace, as the macro demands.
static void initTranslations()
{
    Q_INIT_RESOURCE(client_translations);
}

namespace ko {

namespace Languages {

namespace {

const char settingsKey[] = "language";
const QLatin1String english("en");

/// All files of a language as one, so that a switch is one change.
class Translations : public QTranslator
{
public:
    explicit Translations(QObject* parent)
        : QTranslator(parent)
    {
    }

    void load(const QString& language)
    {
        const QString ours = QStringLiteral(":/translations");
        const struct
        {
            QString name;
            QString folder;
        } files[] = {
            {QStringLiteral("client_"), ours},
            {QStringLiteral("host_"), ours},
            {QStringLiteral("nodeui_"), ours},
            {QStringLiteral("qtbase_"), toolkitFolder()},
        };
        m_parts.clear();
        for (const auto& file : files) {
            auto part = std::make_unique<QTranslator>();
            if (part->load(file.name + language,
                           file.folder)) // what is not there stays as the sources have it
                m_parts.push_back(std::move(part));
        }
        m_language = language;
    }

    QString language() const { return m_language; }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* comment, int n) const override
    {
        for (const auto& part : m_parts) {
            QString translation = part->translate(context, text, comment, n);
            if (!translation.isNull())
                return translation;
        }
        return QString();
    }

private:
    static QString toolkitFolder()
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
        return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    }

    std::vector<std::unique_ptr<QTranslator>> m_parts;
    QString m_language;
};

Translations* installed()
{
    for (QObject* child : QCoreApplication::instance()->children()) {
        if (auto* translations = dynamic_cast<Translations*>(child))
            return translations;
    }
    return nullptr;
}

/// The system's own, with what its user has set, if it is of this language.
QLocale localeOf(const QString& code)
{
    const QLocale locale(code);
    const QLocale system = QLocale::system();
    const bool isSystems = system.language() == locale.language() || best({system.name()}) == code;
    return isSystems ? system : locale;
}

} // namespace

const QVector<Language>& all()
{
    static const QVector<Language> languages = {
        {"en", QStringLiteral("English")},
        {"cs", QStringLiteral("Čeština")},
        {"de", QStringLiteral("Deutsch")},
        {"es", QStringLiteral("Español")},
        {"fr", QStringLiteral("Français")},
        {"it", QStringLiteral("Italiano")},
        {"nl", QStringLiteral("Nederlands")},
        {"pl", QStringLiteral("Polski")},
        {"pt_BR", QStringLiteral("Português (Brasil)")},
        {"ru", QStringLiteral("Русский")},
        {"ja", QStringLiteral("日本語")},
    };
    return languages;
}

QString best(const QStringList& wanted)
{
    for (const QString& name : wanted) {
        QString exact = QString(name).replace(QLatin1Char('-'), QLatin1Char('_'));
        const QString language = exact.section(QLatin1Char('_'), 0, 0);
        QString found;
        for (const Language& each : all()) {
            const QLatin1String code(each.code);
            if (code == exact)
                return exact;
            if (found.isEmpty() &&
                (code == language || QString(code).startsWith(language + QLatin1Char('_'))))
                found = code;
        }
        if (!found.isEmpty())
            return found;
    }
    return english;
}

QString chosen()
{
    const QString code = QSettings().value(QLatin1String(settingsKey)).toString();
    const bool isOurs = std::any_of(all().begin(), all().end(), [&code](const Language& each) {
        return QLatin1String(each.code) == code;
    });
    return isOurs ? code : QString();
}

QString preferred()
{
    const QString code = chosen();
    return code.isEmpty() ? best(QLocale::system().uiLanguages()) : code;
}

void choose(const QString& code)
{
    QSettings settings;
    if (code.isEmpty())
        settings.remove(QLatin1String(settingsKey));
    else
        settings.setValue(QLatin1String(settingsKey), code);
    use(preferred());
}

void use(const QString& code)
{
    initTranslations();
    const QString language = best({code});
    QLocale::setDefault(localeOf(language));
    Translations* translations = installed();
    if (translations) {
        translations->load(language);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        return;
    }
    translations = new Translations(QCoreApplication::instance());
    translations->load(language);
    QCoreApplication::installTranslator(translations);
}

QString current()
{
    const Translations* translations = installed();
    return translations ? translations->language() : QString(english);
}

} // namespace Languages

} // namespace ko
