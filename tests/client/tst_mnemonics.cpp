#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"
#include "PlainMessageBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <algorithm>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

QString letter(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

bool isWellKnown(const QAbstractButton* button)
{
    return QStringList({"OK", "Cancel", "Close"}).contains(QString(button->text()).remove('&'));
}

QStringList menuLetters(const QWidget* window)
{
    QStringList letters;
    const auto* bar = window->findChild<QMenuBar*>();
    const QList<QAction*> menus = bar ? bar->actions() : QList<QAction*>();
    for (const QAction* menu : menus)
        letters.append(letter(menu->text()));
    return letters;
}

/// What is to have a letter in the window as it is seen now, and has one that is its own; the others fail.
void check(const QWidget* window)
{
    QCoreApplication::processEvents();
    QStringList texts;
    const QList<QLabel*> labels = window->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->isVisible() && label->buddy() && label->window() == window)
            texts.append(label->text());
    }
    const QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        const bool isControl = qobject_cast<const QPushButton*>(button) ||
                               qobject_cast<const QCheckBox*>(button) ||
                               qobject_cast<const QRadioButton*>(button);
        if (isControl && button->isVisible() && button->window() == window && !button->text().isEmpty() &&
            !isWellKnown(button))
            texts.append(button->text());
    }
    if (const auto* tabs = window->findChild<QTabWidget*>()) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    QStringList letters = menuLetters(window);
    for (const QString& text : std::as_const(texts)) {
        const bool hasLetters =
            std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
        QVERIFY2(!letter(text).isEmpty() || !hasLetters,
                 qPrintable("none in \"" + text + "\": " + texts.join(", ")));
        if (!hasLetters)
            continue;
        QVERIFY2(!letters.contains(letter(text)),
                 qPrintable("again in \"" + text + "\": " + texts.join(", ")));
        letters.append(letter(text));
    }
    QVERIFY(!texts.isEmpty() || window->objectName() == "EnvironmentDialog"); // which has icons only
}

} // namespace

/// Alt with a letter reaches every control of every window of the client.
class tst_Mnemonics : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void mainWindow();
    void menus();
    void dialogs_data();
    void dialogs();
    void pages_data();
    void pages();
    void anotherType();
    void nodeChangesElsewhere();
    void messageBox();
    void letterIsPressed();

private:
    void open(const char* action, const std::function<void(QDialog*)>& look);

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_Mnemonics::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    const QStringList ids = {m_host->add(IPDeviceType, "Gate", "10.0.0.1"),
                             m_host->add(IPDeviceType, "Yard", "10.0.0.2")};
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    QCoreApplication::processEvents();
    m_window->findChild<NodeListView*>()->selectNodes(ids.mid(0, 1));
}

void tst_Mnemonics::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_Mnemonics::open(const char* action, const std::function<void(QDialog*)>& look)
{
    const ModalAnswer answer([&look](QDialog* dialog) {
        look(dialog);
        dialog->reject();
    });
    child<QAction>(m_window.get(), action)->trigger();
    QVERIFY(answer.fired());
}

void tst_Mnemonics::mainWindow()
{
    check(m_window.get());
}

void tst_Mnemonics::menus()
{
    const QList<QAction*> menus = m_window->menuBar()->actions();
    for (const QAction* menu : menus) {
        QStringList letters;
        const QList<QAction*> entries = menu->menu()->actions();
        for (const QAction* entry : entries) {
            if (entry->isSeparator())
                continue;
            QVERIFY2(!letter(entry->text()).isEmpty(), qPrintable(entry->text()));
            QVERIFY2(!letters.contains(letter(entry->text())), qPrintable(entry->text()));
            letters.append(letter(entry->text()));
        }
        QVERIFY(!letters.isEmpty());
    }
}

void tst_Mnemonics::dialogs_data()
{
    QTest::addColumn<QString>("action");
    for (const char* action : {"actionAdd", "actionRemove", "actionCredentials", "actionRecording",
                               "actionFillIn", "actionPreferences", "actionProxy", "actionEnvironments",
                               "actionOverview", "actionAddressChanges", "actionAuditLog"})
        QTest::newRow(action) << action;
}

void tst_Mnemonics::dialogs()
{
    QFETCH(QString, action);
    open(qPrintable(action), [](QDialog* dialog) { check(dialog); });
}

void tst_Mnemonics::pages_data()
{
    QTest::addColumn<int>("type");
    for (const ENodeType type : {IPDeviceType, UrlCameraType, RecordingFolderType, ViewType})
        QTest::newRow(qPrintable(NodeTypes::readableName(type))) << int(type);
}

/// There and back: what comes into sight again may have the letter of something else.
void tst_Mnemonics::pages()
{
    QFETCH(int, type);
    const QString id = m_host->add(ENodeType(type), "Node", "10.0.0.3");
    m_window->applyChanges();
    m_window->findChild<NodeListView*>()->selectNode(id);
    open("actionEdit", [](QDialog* dialog) {
        auto* tabs = dialog->findChild<QTabWidget*>();
        for (int round = 0; round < 2; ++round) {
            for (int i = 0; i < tabs->count(); ++i) {
                tabs->setCurrentIndex(i);
                check(dialog);
            }
        }
    });
}

void tst_Mnemonics::anotherType()
{
    open("actionAdd", [](QDialog* dialog) {
        auto* types = child<QComboBox>(dialog, "nodeTypeComboBox");
        for (int i = 0; i < types->count(); ++i) {
            types->setCurrentIndex(i);
            check(dialog);
        }
    });
}

/// The editor fills its captions again then.
void tst_Mnemonics::nodeChangesElsewhere()
{
    const QString id = m_window->findChild<NodeListView*>()->selectedIds().value(0);
    open("actionEdit", [this, &id](QDialog* dialog) {
        m_host->change(id, [](Node* node) { node->setStringProperty("Name", "Other"); });
        KO_TRY_COMPARE(child<QLineEdit>(dialog, "nameLineEdit")->text(), QString("Other"));
        check(dialog);
    });
}

void tst_Mnemonics::messageBox()
{
    PlainMessageBox box(QMessageBox::Warning, "Title", "Text", QMessageBox::Retry | QMessageBox::Cancel,
                        m_window.get());
    box.addButton("&Remove", QMessageBox::DestructiveRole); // chosen by somebody: it stays
    box.show();
    check(&box);
    const QList<QAbstractButton*> buttons = box.buttons();
    for (const QAbstractButton* button : buttons) {
        if (QString(button->text()).remove('&') == "Remove")
            QCOMPARE(button->text(), QString("&Remove"));
    }
}

void tst_Mnemonics::letterIsPressed()
{
    open("actionPreferences", [](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        auto* server = child<QLineEdit>(dialog, "previewLineEdit");
        const QList<QLabel*> labels = dialog->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->buddy() == server)
                QTest::keyClick(dialog, letter(label->text()).right(1).at(0).toLatin1(), Qt::AltModifier);
        }
        QCOMPARE(QApplication::focusWidget(), server);
    });
}

KO_TEST_MAIN(tst_Mnemonics)
#include "tst_mnemonics.moc"
