#include "AllWindows.h"
#include "PseudoLanguage.h"
#include "support/DialogCheck.h"
#include "support/TestMain.h"

#include "Languages.h"
#include "audit/NodeLogEntries.h"
#include "discovery/AddressChangeLogEntry.h"
#include "exchange/ImportLogEntry.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

#include <algorithm>

using namespace ko;
using testsupport::AllWindows;
using testsupport::child;
using testsupport::PseudoLanguage;

namespace {

struct Text
{
    QString owner;
    QString text;
};

bool isStandardButton(const QAbstractButton* button)
{
    const auto* box = qobject_cast<const QDialogButtonBox*>(button->parentWidget());
    return box && box->standardButton(const_cast<QAbstractButton*>(button)) != QDialogButtonBox::NoButton;
}

/// The entries of these are data, or texts that are never translated.
bool isData(const QComboBox* comboBox)
{
    static const QStringList names = {
        "environmentComboBox", // called by the user; the last is looked at
        "qualityComboBox",     "framerateComboBox", "resolutionComboBox", // stored as they are
        "audioPathIdComboBox",                                            // nodes
    };
    return names.contains(comboBox->objectName());
}

void addWidget(const QWidget* widget, QVector<Text>* texts)
{
    const QString name = widget->objectName();
    const auto add = [&](const QString& text) { texts->append({name, text}); };
    add(widget->toolTip());
    add(widget->statusTip());
    add(widget->accessibleName());
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        add(label->text());
    else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        add(isStandardButton(button) ? QString() : button->text());
    else if (const auto* group = qobject_cast<const QGroupBox*>(widget))
        add(group->title());
    else if (const auto* field = qobject_cast<const QLineEdit*>(widget))
        add(field->placeholderText());
    else if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs->tabText(i));
    else if (const auto* comboBox = qobject_cast<const QComboBox*>(widget))
        for (int i = 0; i < comboBox->count() && !isData(comboBox); ++i)
            add(comboBox->itemText(i));
    else if (const auto* header = qobject_cast<const QHeaderView*>(widget))
        for (int i = 0; header->model() && header->orientation() == Qt::Horizontal && i < header->count();
             ++i)
            add(header->model()->headerData(i, Qt::Horizontal).toString());
}

/// The texts of message boxes are ours, their labels are the toolkit's.
bool isQuestion(const QWidget* widget)
{
    return widget->objectName() == "qt_msgbox_label" || widget->objectName() == "qt_msgbox_informativelabel";
}

/// What a window says, seen or hidden, without the toolkit's own texts.
QVector<Text> textsOf(const QWidget* window)
{
    QVector<Text> texts = {{"title", window->windowTitle()}};
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool isToolkits = (widget->objectName().startsWith("qt_") && !isQuestion(widget)) ||
                                qobject_cast<const QMenu*>(widget) ||
                                qobject_cast<const QScrollBar*>(widget) || // whose order depends on its use
                                qobject_cast<const QTabBar*>(widget->parentWidget()); // to scroll tabs
        if (widget->window() == window && !isToolkits)
            addWidget(widget, &texts);
    }
    const QList<QAction*> actions = window->findChildren<QAction*>();
    for (const QAction* action : actions) {
        const bool isName =
            action->objectName().startsWith("language_") && !action->data().toString().isEmpty();
        if (isName || action->objectName().startsWith("_q_") || action->objectName().isEmpty())
            continue;
        texts.append({action->objectName(), action->text()});
        texts.append({action->objectName(), action->statusTip()});
    }
    return texts;
}

bool isTheUsersOrTheToolkits(const Text& text)
{
    static const QStringList names = {"storageLocationLabel",   // a path
                                      "environmentBackButton"}; // an environment
    return names.contains(text.owner) ||
           std::none_of(text.text.begin(), text.text.end(), [](QChar c) { return c.isLetter(); });
}

/// Without their letters, which depend on what came first.
QStringList plain(const QVector<Text>& texts)
{
    QStringList plain;
    for (const Text& text : texts)
        plain.append(text.owner + ": " + QString(text.text).remove('&'));
    return plain;
}

QString difference(const QStringList& are, const QStringList& expected)
{
    QStringList lines;
    for (int i = 0; i < std::max(are.size(), expected.size()); ++i) {
        if (are.value(i) != expected.value(i))
            lines.append("\"" + are.value(i) + "\" is no \"" + expected.value(i) + '"');
    }
    return lines.join('\n');
}

/// Until all windows know it.
void speak(const QString& code)
{
    Languages::use(code);
    AllWindows::settle();
}

/// A syllable or a picture is not a key.
bool canBeTyped(const QString& letter)
{
    return letter.isEmpty() || letter.at(letter.size() - 1) < QChar(0x2e80);
}

/// Letters that two controls in sight of a window have both, or that no keyboard has.
QStringList lettersTwice(const QWidget* window)
{
    QStringList letters;
    QStringList twice;
    const auto add = [&](const QString& text) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (letters.contains(letter) || !canBeTyped(letter))
            twice.append(text);
        if (!letter.isEmpty())
            letters.append(letter);
    };
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            add(label->buddy() ? label->text() : QString());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            add(qobject_cast<const QToolButton*>(button) || isStandardButton(button) ? QString()
                                                                                     : button->text());
        else if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            add(group->isCheckable() ? group->title() : QString());
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i));
        else if (const auto* menus = qobject_cast<const QMenuBar*>(widget)) {
            const QList<QAction*> actions = menus->actions();
            for (const QAction* action : actions)
                add(action->text());
        }
    }
    return twice;
}

QStringList lettersTwiceInMenus(const QWidget* window)
{
    QStringList twice;
    const QList<QMenu*> menus = window->findChildren<QMenu*>();
    for (const QMenu* menu : menus) {
        QStringList letters;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            if (!letter.isEmpty() && letters.contains(letter))
                twice.append(menu->title() + " > " + action->text());
            letters.append(letter);
        }
    }
    return twice;
}

/// Headers, tabs and boxes that show less than their texts, and what testsupport::cutOff() finds.
QStringList cutOff(const QWidget* window)
{
    QStringList names = testsupport::cutOff(window);
    const QList<QComboBox*> boxes = window->findChildren<QComboBox*>();
    for (const QComboBox* box : boxes) {
        const bool follows = box->sizeAdjustPolicy() == QComboBox::AdjustToContents ||
                             box->sizeAdjustPolicy() == QComboBox::AdjustToContentsOnFirstShow;
        if (box->isVisible() && follows && box->width() < box->minimumSizeHint().width())
            names.append(box->objectName());
    }
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool showsText =
            qobject_cast<const QLabel*>(widget) || qobject_cast<const QPushButton*>(widget);
        if (showsText && widget->isVisible() && widget->minimumSizeHint().width() > widget->maximumWidth() &&
            widget->objectName() != "instructionFilePushButton") // three dots, which fit
            names.append(widget->objectName() + " (fixed)");
    }
    const QList<QTabBar*> bars = window->findChildren<QTabBar*>();
    for (const QTabBar* bar : bars) {
        // Only where the screen has no room for them they may be scrolled.
        const bool hasRoom = window->frameGeometry().width() < window->screen()->availableSize().width() - 16;
        if (bar->isVisible() && bar->parentWidget()->width() < bar->sizeHint().width() &&
            (hasRoom || !bar->usesScrollButtons()))
            names.append("tabs");
    }
    return names;
}

/// Translates only what it is asked in one context.
class OneContext : public QTranslator
{
public:
    explicit OneContext(const char* context)
        : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~OneContext() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return m_context == context ? QLatin1String("t:") + QString::fromUtf8(text) : QString();
    }

private:
    const QByteArray m_context;
};

} // namespace

/// The languages of the program: nothing is left out, nothing is cut off, and all windows follow at once.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void contextsHaveTheNamesOfClasses();
    void contextsOfTables();
    void contextsOfLogEntries();
    void bestLanguage_data();
    void bestLanguage();
    void everyTextIsForTranslators();
    void windows_data();
    void windows();
    void windowsFollow();
    void entriesSurviveTheSwitch();
    void menuWorksAtOnce();
    void searchFollows();
    void plurals_data();
    void plurals();
    void libraryAlone();
    void screenReadersGetPlainTexts();
    void commandLine();
};

void tst_Languages::init()
{
    QSettings().clear();
    Languages::use("en");
}

void tst_Languages::cleanup()
{
    Languages::use("en");
}

/// The button has its first text from the form, and the later ones from the code.
void tst_Languages::contextsHaveTheNamesOfClasses()
{
    testsupport::HostFixture host;
    const QString id = host.add(IPDeviceType, "1", "10.0.0.1");
    host.change(id, [](Node* node) { node->setIntProperty(PropertyKeys::RecordingStorageUsage, 2); });
    const OneContext language("RecordingFolderAssignmentDialog");
    RecordingFolderAssignmentDialog dialog(id, nullptr);
    auto* more = child<QAbstractButton>(&dialog, "moreButton");
    const auto text = [more] { return more->text().remove('&'); };
    QCOMPARE(text(), QString("t:More..."));
    more->click();
    QCOMPARE(text(), QString("t:Less..."));
    more->click();
    QCOMPARE(text(), QString("t:More..."));
    QCOMPARE(dialog.windowTitle(), QString("t:Access Recordings of 1"));
    QCOMPARE(RecordingFolderAssignmentDialog::tr("More..."), QString("t:More..."));
}

void tst_Languages::contextsOfTables()
{
    testsupport::HostFixture host;
    {
        const OneContext language("NodeViewModel"); // the viewer's headers are its model's
        const NodeDBViewer viewer(nullptr);
        const auto* model = viewer.findChild<QTableView*>()->model();
        QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QString("t:Symbol"));
        delete model;
    }
    const OneContext language("PropertyFormPage");
    AllWindows windows;
    bool found = false;
    windows.visit([&found](const QString&, QWidget* window) {
        const QVector<Text> texts = textsOf(window);
        for (const Text& text : texts)
            found = found || QString(text.text).remove('&') == "t:Path:";
    });
    QVERIFY(found);
}

void tst_Languages::contextsOfLogEntries()
{
    const OneContext language("LogEntry");
    QCOMPARE(NodeLogEntry(NodeLogEntry::Added, "1").title(), QString("t:Added device"));
    QCOMPARE(ImportLogEntry("1", 2, 3, 4).title(), QString("t:Imported devices"));
    QCOMPARE(ImportLogEntry("1", 2, 3, 4).text(),
             QString("t:Imported devices from 1: 2 added, 3 changed, 4 lines refused."));
    QCOMPARE(AddressChangeLogEntry("1", "2", "3").title(), QString("t:Accepted new address"));
}

void tst_Languages::bestLanguage_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("best");
    QTest::newRow("ours") << QStringList("de") << "de";
    QTest::newRow("of a country") << QStringList("de-AT") << "de";
    QTest::newRow("country that matters") << QStringList("pt_BR") << "pt_BR";
    QTest::newRow("another country") << QStringList("pt-PT") << "pt_BR";
    QTest::newRow("second choice") << QStringList({"sv-SE", "fr-FR"}) << "fr";
    QTest::newRow("unknown") << QStringList("xx") << "en";
    QTest::newRow("C") << QStringList("C") << "en";
    QTest::newRow("none") << QStringList() << "en";
}

void tst_Languages::bestLanguage()
{
    QFETCH(QStringList, wanted);
    QTEST(Languages::best(wanted), "best");
}

void tst_Languages::everyTextIsForTranslators()
{
    AllWindows windows;
    const PseudoLanguage language;
    QStringList unmarked;
    windows.visit([&unmarked](const QString& name, QWidget* window) {
        const QVector<Text> texts = textsOf(window);
        for (const Text& text : texts) {
            if (!text.text.contains(PseudoLanguage::mark()) && !isTheUsersOrTheToolkits(text))
                unmarked.append(QString("%1, %2: %3").arg(name, text.owner, text.text));
        }
    });
    unmarked.removeDuplicates();
    QVERIFY2(unmarked.isEmpty(), qPrintable(unmarked.join('\n')));
}

void tst_Languages::windows_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("isMirrored");
    for (const Languages::Language& language : Languages::all())
        QTest::newRow(language.code) << language.code << false;
    QTest::newRow("longer") << QString() << false;
    QTest::newRow("longer, from the right") << QString() << true;
}

void tst_Languages::windows()
{
    QFETCH(QString, code);
    QFETCH(bool, isMirrored);
    AllWindows windows;
    std::unique_ptr<PseudoLanguage> pseudo;
    if (code.isEmpty())
        pseudo = std::make_unique<PseudoLanguage>();
    else
        Languages::use(code);
    QApplication::setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    const auto straight = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
    QStringList problems;
    windows.visit([&](const QString& name, QWidget* window) {
        const QStringList cutTexts = cutOff(window);
        for (const QString& cut : cutTexts)
            problems.append(name + ": " + cut + " is cut off");
        const QStringList letters = lettersTwice(window) + lettersTwiceInMenus(window);
        for (const QString& text : letters)
            problems.append(name + ": the letter of \"" + text + "\" is another's too, or no key");
    });
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

/// A window that was there when the language changed says what one says that is opened then.
void tst_Languages::windowsFollow()
{
    AllWindows windows;
    QHash<QString, QStringList> english;
    QHash<QString, QStringList> german;
    windows.visit([&](const QString& name, QWidget* window) { english[name] = plain(textsOf(window)); });
    speak("de");
    windows.visit([&](const QString& name, QWidget* window) { german[name] = plain(textsOf(window)); });
    speak("en");
    QStringList problems;
    windows.visit([&](const QString& name, QWidget* window) {
        if (qobject_cast<QMessageBox*>(window) || name == "import report")
            return; // said once, to be answered
        if (name == "actionFillIn")
            return; // what it says depends on how soon the device answers
        speak("de");
        problems += difference(plain(textsOf(window)), german.value(name)).split('\n');
        speak("en");
        problems += difference(plain(textsOf(window)), english.value(name)).split('\n');
    });
    problems.removeAll(QString());
    // The host named the layouts when the page was filled; its adapter may be gone.
    problems = problems.filter(QRegularExpression("^(?!\"preferredLayoutComboBox)"));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void tst_Languages::entriesSurviveTheSwitch()
{
    AllWindows windows;
    windows.visit([](const QString& name, QWidget* window) {
        if (name != "actionProxy" && name != "actionAdd" && name != "remote preview")
            return;
        QHash<QLineEdit*, QString> typed;
        const QList<QLineEdit*> fields = window->findChildren<QLineEdit*>();
        for (QLineEdit* field : fields) {
            if (!field->isReadOnly() && !field->objectName().startsWith("qt_")) {
                field->setText("7");
                typed[field] = field->text();
            }
        }
        QVERIFY(!typed.isEmpty());
        speak("fr");
        for (auto field = typed.begin(); field != typed.end(); ++field)
            QCOMPARE(field.key()->text(), field.value());
        speak("en");
    });
}

void tst_Languages::menuWorksAtOnce()
{
    AllWindows windows;
    MainWindow window(*windows.host().db());
    window.show();
    child<QAction>(&window, "actionDatabase")->trigger();
    auto* viewer = window.findChild<NodeDBViewer*>();
    QVERIFY(viewer);
    const auto choose = [&window](const char* language) {
        child<QAction>(&window, language)->trigger();
        AllWindows::settle();
    };
    const QStringList before = plain(textsOf(&window));
    const QAction* file = window.menuBar()->actions().first();
    QCOMPARE(file->text(), QString("&File"));

    choose("language_de");
    QCOMPARE(file->text(), QString("&Datei"));
    QCOMPARE(viewer->windowTitle(), QString("nodes.kodb - Knotendatenbank"));
    QCOMPARE(viewer->findChild<QTableView*>()->model()->headerData(2, Qt::Horizontal).toString(),
             QString("Knotentyp"));
    QCOMPARE(window.list().model()->index(0, 1).data().toString(), QString("IP-Kamera"));
    QCOMPARE(Languages::preferred(), QString("de"));
    QVERIFY(child<QAction>(&window, "language_de")->isChecked());
    QCOMPARE(QLocale().toString(1.5), QString("1,5"));

    choose("language_");
    QCOMPARE(difference(plain(textsOf(&window)), before), QString());
    QCOMPARE(Languages::chosen(), QString());
    QVERIFY(child<QAction>(&window, "language_")->isChecked());
}

/// The titles of the columns are words of the search.
void tst_Languages::searchFollows()
{
    AllWindows windows;
    Languages::use("de");
    MainWindow window(*windows.host().db());
    auto* search = child<QLineEdit>(&window, "searchLineEdit");
    search->setText("zustand:nicht");
    QCOMPARE(window.list().model()->rowCount(), 3);
    speak("en");
    QCOMPARE(window.list().model()->rowCount(), 0);
    search->setText("state:not");
    QCOMPARE(window.list().model()->rowCount(), 3);
}

void tst_Languages::plurals_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << "en" << 1 << "1 row copied.";
    QTest::newRow("many") << "en" << 2 << "2 rows copied.";
    QTest::newRow("few in Russian") << "ru" << 3 << QString::fromUtf8("Скопированы 3 строки.");
    QTest::newRow("many in Russian") << "ru" << 5 << QString::fromUtf8("Скопировано 5 строк.");
    QTest::newRow("21 in Russian") << "ru" << 21 << QString::fromUtf8("Скопирована 21 строка.");
    QTest::newRow("one for all in Japanese") << "ja" << 1 << QString::fromUtf8("1行をコピーしました。");
}

void tst_Languages::plurals()
{
    QFETCH(QString, code);
    QFETCH(int, count);
    Languages::use(code);
    QTEST(MainWindow::tr("%n row(s) copied.", nullptr, count), "text");
}

/// As a client with a host of its own installs them.
void tst_Languages::libraryAlone()
{
    QTranslator translator;
    QVERIFY(translator.load(QLocale("it_CH"), "nodeui", "_", ":/translations"));
    QCOMPARE(translator.translate("NodeViewModel", "Address"), QString("Indirizzo"));
}

/// What a screen reader says of a part is read out as it is, tags included.
void tst_Languages::screenReadersGetPlainTexts()
{
    AllWindows windows;
    static const QRegularExpression tag("<[/a-z]");
    int described = 0;
    windows.visit([&](const QString& name, QWidget* window) {
        const QList<QWidget*> parts = window->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            QAccessibleInterface* read = QAccessible::queryAccessibleInterface(part);
            for (const auto kind : {QAccessible::Name, QAccessible::Description}) {
                const QString text = read ? read->text(kind) : QString();
                described += !text.isEmpty();
                QVERIFY2(!text.contains(tag), qPrintable(name + ": " + part->objectName() + ": " + text));
            }
        }
    });
    QVERIFY(described > 100);
}

void tst_Languages::commandLine()
{
    const auto help = [](const QStringList& arguments, const QString& language) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("LANGUAGE", language);
        process.setProcessEnvironment(environment);
        process.start(KO_KOCLIENT, arguments + QStringList("--help"));
        return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
    };
    QVERIFY(help({}, QString()).contains("Writes all cameras"));
    QVERIFY(help({"--lang", "de"}, QString()).contains(QString::fromUtf8("Schreibt alle Kameras")));
    QVERIFY(help({"--lang=xx"}, QString()).contains("Writes all cameras"));
}

KO_TEST_MAIN(tst_Languages)
#include "tst_languages.moc"
