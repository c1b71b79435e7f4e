#include "support/Answers.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QWindow>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

/// Import and export through the window, while they go on.
class tst_SurveyCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void importBlocksTheWindowAtOnce();
    void cancelledImportIsReported();
    void cancelledBeforeTheImport();
    void asksAboutBadLines();
    void doubtsAreNoEntersMatter();
    void closedDuringImport();
    void closedDuringExport();
    void selectionIsExported();
    void selectionWithoutCameras();

private:
    static constexpr int Lines = 3000;

    void write(const QByteArray& list) const;
    std::function<void(QDialog*)> chooseFile() const;

    QString during(const char* action, const QString& file,
                   const std::function<void(QProgressDialog*)>& look);
    int cameras() const { return int(m_host->db()->nodeIdList(IPDeviceType).size()); }

    QTemporaryDir m_folder;
    QString m_list;
    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_SurveyCommands::init()
{
    m_list = m_folder.filePath(QStringLiteral("in.csv"));
    QByteArray lines = "name,address\n";
    for (int i = 0; i < Lines; ++i)
        lines += QByteArray("Camera ") + QByteArray::number(i) + ",10.0." + QByteArray::number(i / 250) +
                 '.' + QByteArray::number(i % 250 + 1) + '\n';
    write(lines);
    m_host = std::make_unique<testsupport::HostFixture>();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_SurveyCommands::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_SurveyCommands::write(const QByteArray& list) const
{
    QFile file(m_list);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(list), qint64(list.size()));
}

std::function<void(QDialog*)> tst_SurveyCommands::chooseFile() const
{
    return [this](QDialog* dialog) {
        child<QLineEdit>(dialog, "fileNameEdit")->setText(m_list);
        dialog->accept();
    };
}

/// Triggers the action, chooses the file, and calls \a look in the first turn of the event loop after that.
/// Closes what is shown at the end and returns its name.
QString tst_SurveyCommands::during(const char* action, const QString& file,
                                   const std::function<void(QProgressDialog*)>& look)
{
    bool looked = false;
    QString shown;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* progress = m_window->findChild<QProgressDialog*>(QStringLiteral("surveyProgress"));
        if (progress && !looked) {
            looked = true;
            look(progress);
        } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            box->button(QMessageBox::No)->click();
        } else if (looked && modal && modal != progress) {
            shown = modal->objectName();
            modal->close();
        }
    });
    const ModalAnswer choose([&](QDialog* dialog) {
        child<QLineEdit>(dialog, "fileNameEdit")->setText(file);
        dialog->accept();
        watch.start(0);
    });
    child<QAction>(m_window.get(), action)->trigger();
    return looked ? shown : QStringLiteral("nothing was under way");
}

void tst_SurveyCommands::importBlocksTheWindowAtOnce()
{
    QString typed = QStringLiteral("?");
    bool visible = false;
    QString title;
    const QString shown = during("actionImport", m_list, [&](QProgressDialog* progress) {
        visible = progress->isVisible();
        title = progress->windowTitle();
        child<QLineEdit>(m_window.get(), "searchLineEdit")->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_X);
        typed = child<QLineEdit>(m_window.get(), "searchLineEdit")->text();
    });
    QCOMPARE(shown, QStringLiteral("ImportReportDialog"));
    QVERIFY(visible);
    QCOMPARE(title, QStringLiteral("Import Cameras"));
    QCOMPARE(typed, QString());
    QCOMPARE(cameras(), Lines);
}

void tst_SurveyCommands::cancelledImportIsReported()
{
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto* progress = m_window->findChild<QProgressDialog*>(QStringLiteral("surveyProgress"));
        if (progress && cameras() > 0)
            progress->cancel();
    });
    watch.start(0);
    QCOMPARE(during("actionImport", m_list, [](QProgressDialog*) {}), QStringLiteral("ImportReportDialog"));
    QVERIFY(cameras() < Lines);
    QVERIFY(m_window->isVisible());
}

void tst_SurveyCommands::cancelledBeforeTheImport()
{
    QCOMPARE(during("actionImport", m_list, [](QProgressDialog* progress) { progress->cancel(); }),
             QString());
    QCOMPARE(cameras(), 0);
}

void tst_SurveyCommands::asksAboutBadLines()
{
    write("name,address\nGate,10.0.0.1\nYard,http://10.0.0.2/\n,10.0.0.3\n");
    QString text;
    const testsupport::Answers answers(
        {chooseFile(),
         [&](QDialog* dialog) {
             text = child<QPlainTextEdit>(dialog, "detailsTextEdit")->toPlainText();
             child<QPushButton>(dialog, "importButton")->click();
         },
         [](QDialog* report) { report->reject(); }});
    child<QAction>(m_window.get(), "actionImport")->trigger();
    QCOMPARE(answers.opened().mid(1), QStringList({"ImportForecastDialog", "ImportReportDialog"}));
    QCOMPARE(text, QString("Line 3: bad address: it contains more than a host; port, SSL and user have "
                           "columns of their own\n\nLine 4: the new device would have no name"));
    QCOMPARE(cameras(), 2);
}

/// Two lines about one device: the second would overwrite what the first says.
void tst_SurveyCommands::doubtsAreNoEntersMatter()
{
    write("name,address\nGate,10.0.0.1\nYard,10.0.0.1\n");
    const testsupport::Answers answers(
        {chooseFile(), [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Return); }});
    child<QAction>(m_window.get(), "actionImport")->trigger();
    QCOMPARE(answers.opened().mid(1), QStringList({"ImportForecastDialog"}));
    QCOMPARE(cameras(), 0);
}

/// A window is closed without its user at the end of a session.
void tst_SurveyCommands::closedDuringImport()
{
    bool stayed = false;
    const QString shown = during("actionImport", m_list, [&](QProgressDialog*) {
        m_window->close();
        stayed = m_window->isVisible();
    });
    QVERIFY(stayed);
    QCOMPARE(shown, QString());
    QVERIFY(cameras() < Lines);
    QVERIFY(!m_window->isVisible());
    QVERIFY(!m_host->db()->hasUnstoredChanges());
}

void tst_SurveyCommands::closedDuringExport()
{
    for (int i = 0; i < 2000; ++i)
        m_host->add(IPDeviceType, QStringLiteral("Camera %1").arg(i), QStringLiteral("10.1.0.1"));
    const QString list = m_folder.filePath(QStringLiteral("out.csv"));
    bool stayed = false;
    during("actionExport", list, [&](QProgressDialog*) {
        m_window->close();
        stayed = m_window->isVisible();
    });
    QVERIFY(stayed);
    QVERIFY(!m_window->isVisible());
    QVERIFY(!QFile::exists(list));
}

void tst_SurveyCommands::selectionIsExported()
{
    const QStringList ids = {m_host->add(IPDeviceType, "Gate", "10.0.0.1"),
                             m_host->add(IPDeviceType, "Yard", "10.0.0.2"),
                             m_host->add(IPDeviceType, "Dock", "10.0.0.3"), m_host->add(ViewType, "View")};
    m_window->applyChanges();
    m_window->list().selectNodes({ids.at(0), ids.at(2), ids.at(3)});
    const QString list = m_folder.filePath(QStringLiteral("selected.csv"));
    during("actionExportSelected", list, [](QProgressDialog*) {});
    QFile file(list);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    QVERIFY2(written.contains("Gate") && written.contains("Dock"), written.constData());
    QVERIFY2(!written.contains("Yard") && !written.contains("View"), written.constData());
}

void tst_SurveyCommands::selectionWithoutCameras()
{
    const QString id = m_host->add(ViewType, "View");
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_window->applyChanges();
    m_window->list().selectNode(id);
    child<QAction>(m_window.get(), "actionExportSelected")
        ->trigger(); // asks for no file: that would be all cameras
    QVERIFY(m_window->statusBar()->currentMessage().contains("No camera is selected"));
}

KO_TEST_MAIN(tst_SurveyCommands)
#include "tst_surveycommands.moc"
