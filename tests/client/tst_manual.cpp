#include "AllWindows.h"
#include "support/TestMain.h"

#include "Languages.h"
#include "ManualPages.h"
#include "Options.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QXmlStreamReader>

#include <algorithm>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

typedef std::function<void(const QTextFragment& fragment)> Look;

void visitFragments(const QTextDocument& document, const Look& look)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            look(fragment.fragment());
    }
}

/// Every page of the manual, read as the window reads it.
void visitPages(const std::function<void(const QString& page, const QTextDocument& document)>& look)
{
    const QStringList pages = ManualPages::all();
    for (const QString& page : pages) {
        QTextDocument document;
        document.setMarkdown(ManualPages::text(page));
        look(page, document);
    }
}

QStringList anchorsOf(const QString& page)
{
    QStringList anchors;
    QTextDocument document;
    document.setMarkdown(ManualPages::text(page));
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0)
            anchors.append(ManualPages::anchor(block.text()));
    }
    return anchors;
}

bool isThere(const QString& place)
{
    const QString page = place.section('#', 0, 0);
    return ManualPages::all().contains(page) &&
           (!place.contains('#') || anchorsOf(page).contains(place.section('#', 1)));
}

QString withoutDots(QString text)
{
    while (text.endsWith('.') || text.endsWith(':') || text.endsWith(' '))
        text.chop(1);
    return text;
}

/// A text of the program as the manual writes it.
QString plain(QString text)
{
    return withoutDots(text.replace("&&", "\n").remove('&').replace('\n', '&'));
}

/// Everything that the program says, as its translators are given it, and the toolkit's buttons.
QStringList textsOfTheProgram()
{
    QStringList texts = {"OK", "Cancel", "Yes", "No", "Close"};
    for (const char* room : {"client", "host", "nodeui"}) {
        QFile file(
            QString("%1/%2/translations/%2_de.ts").arg(QLatin1String(KO_SOURCE_DIR), QLatin1String(room)));
        if (!file.open(QIODevice::ReadOnly))
            return QStringList();
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement &&
                reader.name() == QLatin1String("source"))
                texts.append(plain(reader.readElementText()));
        }
    }
    return texts;
}

const QAction* entry(const QMainWindow& window, const QString& path)
{
    const QList<QAction*> menus = window.menuBar()->actions();
    for (const QAction* menu : menus) {
        const QList<QAction*> entries = menu->menu()->actions();
        for (const QAction* entry : entries) {
            if (plain(menu->text()) + " > " + plain(entry->text()) == path)
                return entry;
        }
    }
    return nullptr;
}

QStringList found(const QString& text, const char* expression)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(QLatin1String(expression)).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QStringList keysOf(const QAction* action)
{
    QStringList keys;
    const QList<QKeySequence> shortcuts = action->shortcuts();
    for (const QKeySequence& key : shortcuts)
        keys.append(key.toString());
    keys.removeAll(QString());
    return keys;
}

} // namespace

/// What the manual says is so, and it is where the user looks for it.
class tst_Manual : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyWindowHasAPlace();
    void placesAreThere();
    void linksLeadSomewhere();
    void everyPageIsInTheContents();
    void namesAreInTheProgram();
    void keysAreThoseOfTheProgram();
    void optionsAreThoseOfTheProgram();
    void keyOpensThePageOfTheWindow();
    void isReadBesideADialog();
    void menuOpensIt();
    void searchFindsPages();
    void wayBack();
    void headingIsAtTheTop();
    void saysThatItIsInEnglish();

private:
    ManualWindow* manual() const;
    QString shown() const { return child<QTextBrowser>(manual(), "manualTextBrowser")->source().toString(); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_Manual::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
}

void tst_Manual::cleanup()
{
    m_window.reset();
    m_host.reset();
}

ManualWindow* tst_Manual::manual() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* manual = qobject_cast<ManualWindow*>(window))
            return manual;
    }
    return nullptr;
}

/// A box without a name is explained with the window that asks.
void tst_Manual::everyWindowHasAPlace()
{
    cleanup();
    QStringList without;
    int count = 0;
    testsupport::AllWindows().visit([&](const QString& name, QWidget* window) {
        ++count;
        const bool isPart = qobject_cast<QMessageBox*>(window) && window->parentWidget();
        if (ManualPages::ownOf(*window).isEmpty() && !isPart)
            without.append(name + ": " + window->objectName());
    });
    QVERIFY2(without.isEmpty(), qPrintable(without.join('\n')));
    QVERIFY(count > 30);
}

void tst_Manual::placesAreThere()
{
    QString sources;
    for (const char* folder : {"client", "nodeui/dialogs"}) {
        const QDir dir(QLatin1String(KO_SOURCE_DIR) + '/' + folder);
        const QFileInfoList files = dir.entryInfoList({"*.cpp", "*.ui"});
        for (const QFileInfo& info : files) {
            QFile file(info.filePath());
            if (info.fileName() != "ManualPages.cpp" && file.open(QIODevice::ReadOnly))
                sources += QString::fromUtf8(file.readAll());
        }
    }
    const auto places = ManualPages::places();
    for (const auto& place : places) {
        QVERIFY2(isThere(place.second), qPrintable(place.second));
        QVERIFY2(sources.contains('"' + place.first + '"'), qPrintable(place.first));
    }
}

void tst_Manual::linksLeadSomewhere()
{
    int links = 0;
    visitPages([&links](const QString& page, const QTextDocument& document) {
        visitFragments(document, [&](const QTextFragment& fragment) {
            const QTextCharFormat format = fragment.charFormat();
            if (format.isImageFormat()) {
                for (const char* end : {".png", "-dark.png"}) {
                    const QString file =
                        ":/manual/" + QString(format.toImageFormat().name()).replace(".png", end);
                    QVERIFY2(QFile::exists(file), qPrintable(page + ": " + file));
                }
            }
            if (format.anchorHref().isEmpty())
                return;
            ++links;
            const QString place =
                format.anchorHref().startsWith('#') ? page + format.anchorHref() : format.anchorHref();
            QVERIFY2(isThere(place), qPrintable(page + ": " + place));
        });
    });
    QVERIFY(links > 40);
}

void tst_Manual::everyPageIsInTheContents()
{
    QStringList listed = {"index.md"};
    QTextDocument document;
    document.setMarkdown(ManualPages::text("index.md"));
    visitFragments(document, [&listed](const QTextFragment& fragment) {
        const QString page = fragment.charFormat().anchorHref();
        if (!page.isEmpty())
            listed.append(page);
    });
    QCOMPARE(listed, ManualPages::all());
    QStringList files = QDir(QLatin1String(KO_SOURCE_DIR) + "/docs/manual").entryList({"*.md"});
    QStringList pages = ManualPages::all();
    pages.sort();
    QCOMPARE(pages, files);
}

/// They are the text in italics.
void tst_Manual::namesAreInTheProgram()
{
    const QStringList texts = textsOfTheProgram();
    QVERIFY(texts.size() > 500);
    QStringList unknown;
    int names = 0;
    visitPages([&](const QString& page, const QTextDocument& document) {
        visitFragments(document, [&](const QTextFragment& fragment) {
            const QString name = withoutDots(fragment.text());
            if (!fragment.charFormat().fontItalic() || (page == "index.md" && name == "in italics"))
                return;
            ++names;
            const bool isKnown =
                name.contains(" > ") ? entry(*m_window, name) != nullptr : texts.contains(name);
            if (!isKnown)
                unknown.append(page + ": " + name);
        });
    });
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join('\n')));
    QVERIFY(names > 100);
}

void tst_Manual::keysAreThoseOfTheProgram()
{
    const QString page = ManualPages::text("keyboard.md");
    const QStringList lines = page.split('\n');
    QStringList told;
    for (const QString& line : lines) {
        const QStringList keys = found(line.section('|', 1, 1), "`([^`]+)`");
        told += keys;
        QStringList real;
        const QStringList paths = found(line, "\\*([^*]+ > [^*]+)\\*");
        for (const QString& path : paths) {
            QVERIFY2(entry(*m_window, path), qPrintable(path));
            real += keysOf(entry(*m_window, path));
        }
        if (line.startsWith("| `") && !paths.isEmpty())
            QCOMPARE(keys, real);
    }
    const QList<QAction*> actions = m_window->findChildren<QAction*>(QRegularExpression("^action"));
    for (const QAction* action : actions) {
        const QStringList keys = keysOf(action);
        for (const QString& key : keys)
            QVERIFY2(told.contains(key), qPrintable(key));
    }
    visitPages([&](const QString& name, const QTextDocument&) {
        const QStringList keys = found(ManualPages::text(name), "\\(`((?:Ctrl|Alt|F\\d)[^`]*)`\\)");
        for (const QString& key : keys)
            QVERIFY2(told.contains(key), qPrintable(name + ": " + key));
    });
}

void tst_Manual::optionsAreThoseOfTheProgram()
{
    const char option[] = "(--[a-z][a-z-]+)";
    const QStringList real = found(Options().helpText(), option);
    QVERIFY(real.contains("--verify-log"));
    visitPages([&](const QString& page, const QTextDocument&) {
        const QStringList told = found(ManualPages::text(page), option);
        for (const QString& each : told)
            QVERIFY2(real.contains(each), qPrintable(page + ": " + each));
    });
    for (const QString& each : real)
        QVERIFY2(each == "--help-all" || ManualPages::text("command-line.md").contains(each),
                 qPrintable(each));
}

void tst_Manual::keyOpensThePageOfTheWindow()
{
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    QVERIFY(manual());
    QVERIFY(manual()->isVisible());
    QCOMPARE(shown(), QString("qrc:/manual/start.md"));
    const ModalAnswer answer([this](QDialog* dialog) {
        QTest::keyClick(dialog, Qt::Key_F1);
        QCOMPARE(shown(), QString("qrc:/manual/environments.md#preferences"));
        dialog->reject();
    });
    child<QAction>(m_window.get(), "actionPreferences")->trigger();
    QVERIFY(answer.fired());
    QVERIFY(manual()->isVisible());
}

/// Also when it was there before the dialog.
void tst_Manual::isReadBesideADialog()
{
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    const ModalAnswer answer([this](QDialog* dialog) {
        auto* pages = child<QListWidget>(manual(), "pagesListWidget");
        const QPoint place = pages->visualItemRect(pages->item(3)).center();
        const QPoint inWindow = pages->viewport()->mapTo(manual(), place);
        QTest::mouseClick(manual()->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow);
        QCOMPARE(shown(), QString("qrc:/manual/scan.md"));
        QVERIFY(dialog->isVisible());
        dialog->reject();
    });
    child<QAction>(m_window.get(), "actionAdd")->trigger();
    QVERIFY(answer.fired());
}

void tst_Manual::menuOpensIt()
{
    child<QAction>(m_window.get(), "actionManual")->trigger();
    QCOMPARE(shown(), QString("qrc:/manual/start.md"));
    m_window.reset();
    QVERIFY(!manual()); // it does not outlive the window
}

void tst_Manual::searchFindsPages()
{
    ManualWindow window;
    window.show();
    auto* search = child<QLineEdit>(&window, "searchLineEdit");
    auto* pages = child<QListWidget>(&window, "pagesListWidget");
    auto* text = child<QTextBrowser>(&window, "manualTextBrowser");
    QCOMPARE(pages->count(), int(ManualPages::all().size()));
    QTest::keyClicks(search, "KEYCHAIN locked");
    QVERIFY(pages->count() > 0);
    QVERIFY(pages->count() < ManualPages::all().size());
    QCOMPARE(text->source().fileName(), pages->item(0)->data(Qt::UserRole).toString());
    QVERIFY(!text->extraSelections().isEmpty());
    QTest::keyClick(search, Qt::Key_Return);
    const QString first = text->textCursor().selectedText().toLower();
    QVERIFY2(first == "keychain" || first == "locked", qPrintable(first));
    const int place = text->textCursor().position();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(text->textCursor().position() > place);
    search->clear();
    QTest::keyClicks(search, "xyzzy");
    QCOMPARE(pages->count(), 0);
    QVERIFY(child<QLabel>(&window, "nothingLabel")->isVisible());
}

void tst_Manual::wayBack()
{
    ManualWindow window;
    window.read("start.md");
    auto* text = child<QTextBrowser>(&window, "manualTextBrowser");
    auto* back = child<QPushButton>(&window, "backButton");
    QVERIFY(!back->isEnabled());
    text->setSource(text->source().resolved(QUrl("history.md#undo"))); // as a click on a link does
    QCOMPARE(text->source().toString(), QString("qrc:/manual/history.md#undo"));
    auto* pages = child<QListWidget>(&window, "pagesListWidget");
    QCOMPARE(pages->currentItem()->data(Qt::UserRole).toString(), QString("history.md"));
    QTest::mouseClick(back, Qt::LeftButton);
    QCOMPARE(text->source().fileName(), QString("start.md"));
    QTest::mouseClick(child<QPushButton>(&window, "forwardButton"), Qt::LeftButton);
    QCOMPARE(text->source().fileName(), QString("history.md"));
}

void tst_Manual::headingIsAtTheTop()
{
    ManualWindow window;
    window.resize(800, 300);
    window.read("nodes.md#removing");
    auto* text = child<QTextBrowser>(&window, "manualTextBrowser");
    KO_TRY_COMPARE(text->cursorForPosition(QPoint(20, 20)).block().text(), QString("Removing"));
}

void tst_Manual::saysThatItIsInEnglish()
{
    ManualWindow window;
    window.read("start.md");
    const auto* label = child<QLabel>(&window, "englishLabel");
    QVERIFY(!label->isVisible());
    Languages::use("de");
    KO_TRY_VERIFY(label->isVisible());
    Languages::use("en");
    KO_TRY_VERIFY(!label->isVisible());
}

KO_TEST_MAIN(tst_Manual)
#include "tst_manual.moc"
