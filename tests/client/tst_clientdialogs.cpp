#include "AuditLogDialog.h"
#include "AuditLogModel.h"
#include "ImportReportDialog.h"
#include "PreferencesDialog.h"
#include "RemoveNodesBox.h"
#include "audit/AuditLog.h"
#include "inspector/NodeChangeLogEntry.h"
#include "model/Cause.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <QAbstractItemModelTester>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

/// The small dialogs of the client, used with mouse and keys.
class tst_ClientDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host = std::make_unique<testsupport::HostFixture>(); }
    void cleanup() { m_host.reset(); }

    void auditLogShowsTheNewestFirst();
    void auditLogTellsWhatNoDialogLogs();
    void auditLogIsSearched();
    void auditLogSearchReadsWhatWasNotRead();
    void auditLogRowsAreCopied();
    void auditLogEntriesStayOnTheirLine();
    void auditLogModelKeepsTheRules();
    void preferencesAreWrittenOnOk();
    void preferencesAreLeftAloneOnCancel();
    void preferencesByKeys();
    void importReport_data();
    void importReport();
    void importReportNamesItsLines();
    void removalIsNotTheDefault();
    void removalIsConfirmed();
    void removalNamesAreText();

private:
    HostNodeDB& db() { return *m_host->db(); }
    void log(int count, const QString& name = QStringLiteral("Gate %1"))
    {
        for (int i = 0; i < count; ++i)
            ActionLog::getInstance()->log(
                NodeChangeLogEntry(name.contains(QLatin1String("%1")) ? name.arg(i) : name));
        QVERIFY(db().flush());
    }
    static QStringList texts(const QTableView* view)
    {
        QStringList rows;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < view->model()->columnCount(); ++column)
                cells.append(view->model()->index(row, column).data().toString());
            rows.append(cells.join(QLatin1Char('|')));
        }
        return rows;
    }

    std::unique_ptr<testsupport::HostFixture> m_host;
};

void tst_ClientDialogs::auditLogShowsTheNewestFirst()
{
    log(3);
    AuditLogDialog dialog(db().auditLog());
    const QStringList rows = texts(child<QTableView>(&dialog, "entriesTableView"));
    QCOMPARE(int(rows.size()), 4); // the oldest is the database itself
    for (int i = 0; i < 3; ++i)
        QVERIFY2(rows.at(i).contains(QStringLiteral("Gate %1").arg(2 - i)), qPrintable(rows.at(i)));
}

void tst_ClientDialogs::auditLogTellsWhatNoDialogLogs()
{
    const auto change = [](const std::function<void()>& work) {
        QTest::qWait(2); // later than what was before
        work();
        QTest::qWait(0);
    };
    change([this] { log(1); });
    change([this] { db().setBandwidth(SlowLocal); });
    change([this] { log(1); });
    change([this] { m_host->add(IPDeviceType, QStringLiteral("Yard\n2020-01-01")); });
    change([this] {
        m_host->add(IPDeviceType, QStringLiteral("A"));
        log(1); // of the same turn: it is not said twice
    });
    change([this] {
        for (const char* name : {"B", "C", "D"})
            m_host->add(IPDeviceType, QLatin1String(name));
    });
    AuditLogDialog dialog(db().auditLog());
    const QStringList rows = texts(child<QTableView>(&dialog, "entriesTableView"));
    const QStringList expected = {QStringLiteral("Added by the program|B and 2 other(s)"),
                                  QStringLiteral("Gate 0"),
                                  QStringLiteral("Added by the program|Yard\\n2020-01-01"),
                                  QStringLiteral("Gate 0"),
                                  QStringLiteral("Changed settings|"),
                                  QStringLiteral("Gate 0"),
                                  QStringLiteral("Made the database|")};
    QCOMPARE(int(rows.size()), int(expected.size()));
    for (int i = 0; i < rows.size(); ++i)
        QVERIFY2(rows.at(i).contains(expected.at(i)), qPrintable(rows.at(i)));
    const QString who = Cause::currentUser() + QStringLiteral(" (") + Cause::currentStation();
    for (const QString& row : rows)
        QVERIFY2(row.contains(who), qPrintable(row));
}

void tst_ClientDialogs::auditLogIsSearched()
{
    log(12);
    log(1, QStringLiteral("<b>Tor</b> & 100%"));
    AuditLogDialog dialog(db().auditLog());
    dialog.show();
    QTableView* view = child<QTableView>(&dialog, "entriesTableView");
    QLineEdit* search = child<QLineEdit>(&dialog, "searchLineEdit");
    QTest::keyClicks(search, QStringLiteral("gate 1"));
    QCOMPARE(view->model()->rowCount(), 3); // 1, 10 and 11
    search->clear();
    QTest::keyClicks(search, QStringLiteral("<b>tor</b> & 100%"));
    QCOMPARE(view->model()->rowCount(), 1);
    search->clear();
    QCOMPARE(view->model()->rowCount(), 14); // with the database itself
}

void tst_ClientDialogs::auditLogSearchReadsWhatWasNotRead()
{
    log(1, QStringLiteral("The oldest"));
    log(2000);
    AuditLogDialog dialog(db().auditLog());
    QTableView* view = child<QTableView>(&dialog, "entriesTableView");
    QVERIFY(view->model()->rowCount() < 2001);
    child<QLineEdit>(&dialog, "searchLineEdit")->setText(QStringLiteral("the oldest"));
    QCOMPARE(view->model()->rowCount(), 1);
}

void tst_ClientDialogs::auditLogRowsAreCopied()
{
    log(3);
    AuditLogDialog dialog(db().auditLog());
    dialog.show();
    QTableView* view = child<QTableView>(&dialog, "entriesTableView");
    view->setFocus();
    view->selectRow(2);
    view->selectionModel()->select(view->model()->index(0, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(int(lines.size()), 2);
    QVERIFY(lines.at(0).contains(QLatin1String("Gate 2")) && lines.at(1).contains(QLatin1String("Gate 0")));
    QCOMPARE(int(lines.at(0).count(QLatin1Char('\t'))), view->model()->columnCount() - 1);
}

void tst_ClientDialogs::auditLogEntriesStayOnTheirLine()
{
    log(1, QString::fromUtf8("Gate\n2020-01-01\tadmin\u202e"));
    AuditLogDialog dialog(db().auditLog());
    dialog.show();
    QTableView* view = child<QTableView>(&dialog, "entriesTableView");
    view->setFocus();
    view->selectRow(0);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.contains(QLatin1String("Gate\\n2020-01-01\\tadmin\\u202e")), qPrintable(copied));
    QCOMPARE(copied.count(QLatin1Char('\n')), 0);
    QCOMPARE(int(copied.count(QLatin1Char('\t'))), view->model()->columnCount() - 1);
    // The entry itself is as it was logged.
    QVERIFY(db().auditLog().entries(0, 1, true).front().entry->text().contains(QLatin1Char('\n')));
}

void tst_ClientDialogs::auditLogModelKeepsTheRules()
{
    for (int i = 0; i < 700; ++i) {
        db().setGlobalRecordingFolderPath(QString::number(i)); // no dialog of the library logs it
        QTest::qWait(0);
    }
    log(700);
    db().setGlobalRecordingFolderPath(QStringLiteral("last"));
    AuditLogModel model(db().auditLog());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    while (model.canFetchMore(QModelIndex()))
        model.fetchMore(QModelIndex());
    QCOMPARE(model.rowCount(), 1 + 2 * 700 + 1);
}

void tst_ClientDialogs::preferencesAreWrittenOnOk()
{
    {
        PreferencesDialog dialog(db());
        child<QLineEdit>(&dialog, "pathLineEdit")->setText(QStringLiteral("//server/größe #1"));
        child<QLineEdit>(&dialog, "previewLineEdit")->setText(QStringLiteral("10.0.0.9"));
        child<QComboBox>(&dialog, "bandwidthComboBox")->setCurrentIndex(1);
        QTest::mouseClick(child<QDialogButtonBox>(&dialog, "")->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    m_host->reopen();
    QCOMPARE(db().globalRecordingFolderPath(), QStringLiteral("//server/größe #1"));
    QCOMPARE(db().defaultRecordingTransponderIP(), QStringLiteral("10.0.0.9"));
    QCOMPARE(db().bandwidth(), 1);
    const PreferencesDialog again(db());
    QCOMPARE(child<QComboBox>(&again, "bandwidthComboBox")->currentIndex(), 1);
}

void tst_ClientDialogs::preferencesAreLeftAloneOnCancel()
{
    db().setGlobalRecordingFolderPath(QStringLiteral("/before"));
    PreferencesDialog dialog(db());
    dialog.show();
    child<QLineEdit>(&dialog, "pathLineEdit")->setText(QStringLiteral("/after"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(db().globalRecordingFolderPath(), QStringLiteral("/before"));
}

void tst_ClientDialogs::preferencesByKeys()
{
    PreferencesDialog dialog(db());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(child<QLineEdit>(&dialog, "pathLineEdit")->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("/a"));
    for (const char* next : {"browseButton", "previewLineEdit", "bandwidthComboBox"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(next));
    }
    QTest::keyClick(child<QLineEdit>(&dialog, "previewLineEdit"), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(db().globalRecordingFolderPath(), QStringLiteral("/a"));
}

void tst_ClientDialogs::importReport_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<QString>("summary");
    const QString counts = QStringLiteral("2 added, 3 updated, 4 unchanged, 0 line(s) with errors.");
    QTest::newRow("good") << QString() << false << counts;
    QTest::newRow("cancelled") << QString() << true
                               << QStringLiteral(
                                      "The import was cancelled. What was added until then stays.\n\n") +
                                      counts;
    QTest::newRow("file") << QStringLiteral("<b>cannot</b> be read") << false
                          << QStringLiteral("<b>cannot</b> be read\n\n") + counts;
}

void tst_ClientDialogs::importReport()
{
    QFETCH(QString, error);
    QFETCH(bool, cancelled);
    CameraSurvey::ImportResult result;
    result.added = 2;
    result.updated = 3;
    result.unchanged = 4;
    result.error = error;
    result.cancelled = cancelled;
    const ImportReportDialog dialog(result);
    const QLabel* label = child<QLabel>(&dialog, "summaryLabel");
    QTEST(label->text(), "summary");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(!dialog.findChild<QPlainTextEdit*>()); // nothing to tell
    QVERIFY(dialog.sizeHint().width() > 2 * dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()));
}

void tst_ClientDialogs::importReportNamesItsLines()
{
    CameraSurvey::ImportResult result;
    result.badLines = {{7, QStringLiteral("%1 is no address")}, {9, QStringLiteral("<i>port</i>")}};
    result.ignoredColumns = QStringList{QStringLiteral("floor"), QStringLiteral("<u>")};
    const ImportReportDialog dialog(result);
    QCOMPARE(child<QPlainTextEdit>(&dialog, "detailsTextEdit")->toPlainText(),
             QStringLiteral(
                 "Line 7: %1 is no address\nLine 9: <i>port</i>\nColumns that are not used: floor, <u>"));
    QVERIFY(child<QLabel>(&dialog, "summaryLabel")->text().contains(QLatin1String("2 line(s) with errors")));
}

void tst_ClientDialogs::removalIsNotTheDefault()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        ModalAnswer answer([key](QDialog* box) { QTest::keyClick(box, key); });
        QCOMPARE(askToRemove({QStringLiteral("Gate")}, {}, nullptr), Removal::None);
        QVERIFY(answer.fired());
    }
}

void tst_ClientDialogs::removalIsConfirmed()
{
    ModalAnswer answer(ModalAnswer::press(QStringLiteral("Remove")));
    QCOMPARE(askToRemove({QStringLiteral("Gate"), QStringLiteral("Yard")}, {}, nullptr), Removal::Nodes);
    QVERIFY(answer.fired());
}

void tst_ClientDialogs::removalNamesAreText()
{
    QString shown;
    ModalAnswer answer([&shown](QDialog* box) {
        const auto* message = qobject_cast<QMessageBox*>(box);
        if (message && message->textFormat() == Qt::PlainText)
            shown = message->text();
        box->reject();
    });
    QCOMPARE(askToRemove({QStringLiteral("<img src=x>&amp; %1 %n")}, {}, nullptr), Removal::None);
    QVERIFY2(shown.contains(QLatin1String("<img src=x>&amp; %1 %n")), qPrintable(shown));
}

KO_TEST_MAIN(tst_ClientDialogs)
#include "tst_clientdialogs.moc"
