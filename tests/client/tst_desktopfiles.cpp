#include "support/TestMain.h"

#include "Languages.h"
#include "Options.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace ko;

namespace {

QString contentOf(const char* name)
{
    QFile file(QLatin1String(KO_SOURCE_DIR "/client/desktop/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The words after two dashes, as a man page spells them or not.
QStringList optionsIn(QString text)
{
    static const QRegularExpression option(QStringLiteral("--([a-z][a-z-]*)"));
    QSet<QString> found;
    for (auto match = option.globalMatch(text.replace(QLatin1String("\\-"), QLatin1String("-")));
         match.hasNext();)
        found.insert(match.next().captured(1));
    QStringList sorted = found.values();
    sorted.sort();
    return sorted;
}

} // namespace

/// What is installed beside the program says what the program does.
class DesktopFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void namesAllOptions_data();
    void namesAllOptions();
    void takesFiles();
    void completesLanguages();
    void versionIsTheSame();
};

void DesktopFilesTest::namesAllOptions_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("completion") << contentOf("koclient.bash");
    QTest::newRow("man page") << contentOf("koclient.1");
}

void DesktopFilesTest::namesAllOptions()
{
    QFETCH(const QString, text);
    QVERIFY(!text.isEmpty());
    QCOMPARE(optionsIn(text), optionsIn(Options().helpText()));
}

void DesktopFilesTest::takesFiles()
{
    static const QRegularExpression option(QStringLiteral("--([a-z-]+) <FILE>"));
    QStringList withFile;
    for (auto match = option.globalMatch(Options().helpText()); match.hasNext();)
        withFile.append(QLatin1String("--") + match.next().captured(1));
    QVERIFY(!withFile.isEmpty());
    const QString line = QLatin1String("    ") + withFile.join(QLatin1String(" | ")) + QLatin1String(")\n");
    QVERIFY2(contentOf("koclient.bash").contains(line), qPrintable(line));
}

void DesktopFilesTest::completesLanguages()
{
    static const QRegularExpression list(
        QStringLiteral("--lang\\)\\s*COMPREPLY=\\(\\$\\(compgen -W \"([^\"]*)\""));
    QStringList codes;
    for (const Languages::Language& language : Languages::all())
        codes.append(QLatin1String(language.code));
    codes.sort();
    QCOMPARE(list.match(contentOf("koclient.bash")).captured(1).split(QLatin1Char(' ')), codes);
}

void DesktopFilesTest::versionIsTheSame()
{
    static const QRegularExpression version(QStringLiteral("project\\(KoNodeUI VERSION ([0-9.]+)"));
    const QString released = version.match(contentOf("../../CMakeLists.txt")).captured(1);
    QVERIFY(!released.isEmpty());
    QVERIFY(contentOf("koclient.1").contains(QLatin1String("\"koclient ") + released + QLatin1Char('"')));
    QVERIFY(contentOf("../../debian/changelog")
                .startsWith(QLatin1String("konodeui (") + released + QLatin1String(")")));
}

KO_TEST_MAIN(DesktopFilesTest)
#include "tst_desktopfiles.moc"
