#include "host/StoreTesting.h"
#include "support/Answers.h"
#include "support/HostFixture.h"
#include "support/TestMain.h"

#include "ChangePreview.h"
#include "DeviceSettings.h"
#include "PutBackModel.h"
#include "audit/AuditLog.h"
#include "database/StoredHistory.h"
#include "history/PuttingBack.h"
#include "ko/PropertyKeys.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

using namespace ko;
using testsupport::Answers;
using testsupport::cancel;
using testsupport::child;
using testsupport::confirm;
using testsupport::press;

namespace {

void enterCredentials(QDialog* dialog)
{
    child<QLineEdit>(dialog, "userNameLineEdit")->setText(QLatin1String("installer"));
    child<QLineEdit>(dialog, "passWordLineEdit")->setText(QLatin1String("secret"));
    confirm(dialog);
}

void enterFolder(QDialog* dialog)
{
    child<QRadioButton>(dialog, "specificFileServerPathRadioButton")->click();
    child<QLineEdit>(dialog, "pathLineEdit")->setText(QLatin1String("/mnt/archive"));
    confirm(dialog);
}

QStringList textsOf(const QDialog* dialog)
{
    const QAbstractItemModel& model = *child<QTableView>(dialog, "linesTableView")->model();
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        lines.append(cells.join(QLatin1Char('|')));
    }
    return lines;
}

/// Takes the tick from all lines of one node.
void leaveOut(const QDialog* dialog, const QString& name)
{
    QAbstractItemModel& model = *child<QTableView>(dialog, "linesTableView")->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, PutBackModel::NodeColumn);
        if (index.data().toString() == name)
            model.setData(index, Qt::Unchecked, Qt::CheckStateRole);
    }
}

} // namespace

/// What is done to many nodes is shown first, if the user wants that.
class tst_ChangePreview : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void credentialsAreShownFirst();
    void cancelLeadsBackIntoTheDialog();
    void whatIsLeftOutStays();
    void foldersAreMadeWhenAgreedTo();
    void nothingWouldChange();
    void whatOthersChangedMeanwhileStays();
    void oneNodeIsNotPreviewed();
    void notWantedAtFirst();

private:
    kom::smart<const IPDeviceNode> device(int i) const
    {
        return m_host->db()->node(m_cameras.at(i)).cast<const IPDeviceNode>();
    }
    QString state() const { return testsupport::stateOf(m_host->fileName()); }
    QString editCredentials() { return DeviceSettings::editCredentials(*m_host->db(), m_cameras, nullptr); }
    QVector<ChangeSet> newSets();

    std::unique_ptr<testsupport::HostFixture> m_host;
    QStringList m_cameras;
    qint64 m_last = 0;
};

void tst_ChangePreview::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_cameras.clear();
    for (const char* name : {"Gate", "Yard", "Dock"}) {
        const QString id = m_host->add(IPDeviceType, name, QString("%1.example").arg(QLatin1String(name)));
        m_host->change(id, [&](Node* node) {
            node->setStringProperty(PropertyKeys::FactoryIP, QString("10_1_2_%1").arg(m_cameras.size()));
        });
        m_cameras.append(id);
    }
    QVERIFY(m_host->db()->flush());
    m_last = m_host->db()->history().changeSets(0, 100).constLast().number;
    ChangePreview::setWanted(true);
}

void tst_ChangePreview::cleanup()
{
    ChangePreview::setWanted(false);
    m_host.reset();
}

QVector<ChangeSet> tst_ChangePreview::newSets()
{
    return m_host->db()->history().changeSets(m_last, 100);
}

void tst_ChangePreview::credentialsAreShownFirst()
{
    const QString before = state();
    QStringList lines;
    QString hint;
    const Answers answers({enterCredentials, [&](QDialog* preview) {
                               lines = textsOf(preview);
                               hint = child<QLabel>(preview, "hintLabel")->text();
                               QCOMPARE(state(), before); // nothing is stored yet
                               QVERIFY(newSets().isEmpty());
                               QCOMPARE(device(0)->user(1), QString());
                               confirm(preview);
                           }});
    const QString done = editCredentials();
    QCOMPARE(answers.opened(), QStringList({"NodeAuthenticateDialog", "PutBackDialog"}));
    QVERIFY2(hint.contains("this is what would change"), qPrintable(hint));
    const QString all = lines.join('\n');
    for (const char* part : {"Gate|User name|", "Yard|User name|", "Dock|Password|", "installer"})
        QVERIFY2(all.contains(part), qPrintable(all));
    QVERIFY2(!all.contains("secret"), qPrintable(all));
    QVERIFY2(done.startsWith("3 device"), qPrintable(done));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(int(sets.size()), 1);
    QCOMPARE(sets.first().cause.purpose, Purpose::Credentials);
    QCOMPARE(int(sets.first().nodes.size()), 3);
    QCOMPARE(int(sets.first().audit.size()), 3);
    m_host->reopen();
    for (int i = 0; i < m_cameras.size(); ++i) {
        QCOMPARE(device(i)->user(1), QString("installer"));
        QCOMPARE(device(i)->password(1), QString("secret"));
    }
}

void tst_ChangePreview::cancelLeadsBackIntoTheDialog()
{
    const QString before = state();
    QString user;
    const Answers answers({enterCredentials, cancel, [&user](QDialog* dialog) {
                               user = child<QLineEdit>(dialog, "userNameLineEdit")->text();
                               cancel(dialog);
                           }});
    QCOMPARE(editCredentials(), QString());
    QCOMPARE(answers.opened(),
             QStringList({"NodeAuthenticateDialog", "PutBackDialog", "NodeAuthenticateDialog"}));
    QCOMPARE(user, QString("installer"));
    QVERIFY(m_host->db()->flush());
    QCOMPARE(state(), before);
    QCOMPARE(device(1)->user(1), QString());
    QVERIFY(newSets().isEmpty());
}

void tst_ChangePreview::whatIsLeftOutStays()
{
    const Answers answers({enterCredentials, [](QDialog* preview) {
                               leaveOut(preview, "Yard");
                               confirm(preview);
                           }});
    const QString done = editCredentials();
    QVERIFY2(done.startsWith("2 device"), qPrintable(done));
    QCOMPARE(device(0)->user(1), QString("installer"));
    QCOMPARE(device(1)->user(1), QString());
    QCOMPARE(int(newSets().constFirst().audit.size()), 2);
}

void tst_ChangePreview::foldersAreMadeWhenAgreedTo()
{
    const QString before = state();
    int folders = -1;
    const Answers answers({enterFolder, [&](QDialog* preview) {
                               folders = int(m_host->db()->nodeIdList(RecordingFolderType).size());
                               confirm(preview);
                           }});
    const QString done = DeviceSettings::editRecording(*m_host->db(), m_cameras, nullptr);
    QCOMPARE(answers.opened(), QStringList({"RecordingFolderMassAssignmentDialog", "PutBackDialog"}));
    QVERIFY2(done.startsWith("3 device"), qPrintable(done));
    QCOMPARE(folders, 0); // while they are shown
    m_host->reopen();
    QCOMPARE(int(m_host->db()->nodeIdList(RecordingFolderType).size()), 3);
    for (int i = 0; i < m_cameras.size(); ++i) {
        const QStringList related = m_host->db()->relatedNodes(m_cameras.at(i), RecordingFolderRelation);
        QCOMPARE(int(related.size()), 1);
        QCOMPARE(m_host->db()->node(related.first())->stringProperty("Path", QString()),
                 QString("/mnt/archive/10_1_2_%1").arg(i));
        QCOMPARE(device(i)->intProperty(PropertyKeys::RecordingStorageUsage, 0), int(OwnFolder));
    }
    // It is one change set, and turned round it leaves what was there.
    QCOMPARE(int(newSets().size()), 1);
    const ChangeSet set = newSets().constFirst();
    QCOMPARE(set.cause.purpose, Purpose::Recording);
    const std::optional<PutBack> back = PuttingBack::preview(*m_host->db(), Alterations::of(set));
    QVERIFY(back);
    QVERIFY(PuttingBack::apply(*m_host->db(), *back, Cause::undoing({set.cause})).refused.isEmpty());
    QCOMPARE(state(), before);
}

/// All have the name and the password that are entered.
void tst_ChangePreview::nothingWouldChange()
{
    for (const QString& id : std::as_const(m_cameras))
        m_host->change(id, [](Node* node) {
            dynamic_cast<IPDeviceNode*>(node)->setUser("installer", "secret");
            dynamic_cast<IPDeviceNode*>(node)->setCredentialsEntered(true);
        });
    QVERIFY(m_host->db()->flush());
    QString hint;
    const Answers answers({enterCredentials,
                           [&hint](QDialog* preview) {
                               hint = child<QLabel>(preview, "hintLabel")->text();
                               press(preview, QDialogButtonBox::Close);
                           },
                           cancel});
    QCOMPARE(editCredentials(), QString());
    QCOMPARE(int(answers.opened().size()), 3);
    QVERIFY2(hint.contains("nothing would change"), qPrintable(hint));
}

void tst_ChangePreview::whatOthersChangedMeanwhileStays()
{
    QString told;
    const Answers answers({enterCredentials,
                           [this](QDialog* preview) {
                               StoreError error;
                               const auto other = HostNodeDB::open(m_host->fileName(), &error);
                               Node* node = other->beginUpdateNode(m_cameras.at(1), -1);
                               node->setStringProperty(PropertyKeys::User, "somebody");
                               other->endUpdateNode(node);
                               QVERIFY(other->flush());
                               confirm(preview);
                           },
                           [&told](QDialog* box) {
                               told = qobject_cast<QMessageBox*>(box)->text();
                               box->accept();
                           }});
    editCredentials();
    QVERIFY2(told.contains("Yard") && !told.contains("Gate"), qPrintable(told));
    QCOMPARE(device(1)->user(1), QString("somebody"));
    QCOMPARE(device(0)->user(1), QString("installer"));
}

void tst_ChangePreview::oneNodeIsNotPreviewed()
{
    m_cameras = m_cameras.mid(0, 1);
    const Answers answers({enterCredentials});
    editCredentials();
    QCOMPARE(answers.opened(), QStringList("NodeAuthenticateDialog"));
    QCOMPARE(device(0)->user(1), QString("installer"));
}

void tst_ChangePreview::notWantedAtFirst()
{
    ChangePreview::setWanted(false);
    const Answers answers({enterCredentials});
    editCredentials();
    QCOMPARE(answers.opened(), QStringList("NodeAuthenticateDialog"));
    QCOMPARE(int(newSets().constFirst().audit.size()), 3);
}

KO_TEST_MAIN(tst_ChangePreview)
#include "tst_changepreview.moc"
