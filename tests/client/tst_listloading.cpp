#include "../host/ManyNodes.h"

#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "EmptyState.h"
#include "ListLoading.h"
#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"

#include <QLabel>
#include <QSettings>

using namespace ko;
using namespace testsupport;

namespace {

const int cameras = 100000; // enough that they are still read when the window is there
const int rounds = 4;

/// The window as the program opens it.
struct Opened
{
    explicit Opened(const QString& file)
        : db(HostNodeDB::open(file, &error, HostNodeDB::Check::Behind))
        , window(*db)
        , model(window.findChild<NodeListModel*>())
        , loading(window.findChild<ListLoading*>())
        , wasMeanwhile(!loading->isDone())
    {
        window.show();
    }

    QStringList first(int count) const { return model->firstIds(count); }

    StoreError error;
    const std::unique_ptr<HostNodeDB> db;
    MainWindow window;
    const NodeListModel* const model;
    const ListLoading* const loading;
    const bool wasMeanwhile;
};

} // namespace

/// The client's list while the nodes are read.
class tst_ListLoading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void saysThatItReads();
    void hasTheFirstOnesMeanwhile();
    void whatIsGoneIsNotShown();
    void keysMeanTheWholeList();
    void otherOrder();
    void whatIsDoneMeanwhile();
    void closedMeanwhile();

private:
    void closeAfterwards(Opened& opened) const;
    void openOnce() const;

    QTemporaryDir m_folder;
    QString m_file;
    QString m_camera;
    int m_count = 0;
};

void tst_ListLoading::initTestCase()
{
    m_file = m_folder.filePath(QStringLiteral("site.kodb"));
    const auto db = openDatabase(m_file);
    m_camera = addCamera(*db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    QVERIFY(db->flush());
    addByHand(m_file, m_camera, cameras);
    m_count = cameras + 1;
}

void tst_ListLoading::init()
{
    QSettings().clear();
}

/// With all that there is, as a user leaves it.
void tst_ListLoading::closeAfterwards(Opened& opened) const
{
    KO_TRY_COMPARE(opened.model->rowCount(), m_count);
    QVERIFY(opened.window.close());
}

/// So that there are first nodes to be remembered.
void tst_ListLoading::openOnce() const
{
    Opened opened(m_file);
    closeAfterwards(opened);
}

void tst_ListLoading::saysThatItReads()
{
    bool wasMeanwhile = false;
    for (int round = 0; round < rounds && !wasMeanwhile; ++round) {
        QSettings().clear();
        Opened opened(m_file);
        wasMeanwhile = opened.wasMeanwhile;
        auto* empty = child<EmptyState>(&opened.window, "emptyState");
        if (wasMeanwhile) {
            QCOMPARE(opened.model->rowCount(), 0);
            QVERIFY(empty->isVisible());
            QCOMPARE(child<QLabel>(empty, "emptyTextLabel")->text(), QStringLiteral("Reading the nodes..."));
        }
        closeAfterwards(opened);
        QVERIFY(!empty->isVisibleTo(&opened.window));
        QCOMPARE(opened.window.list().currentIndex().row(), 0);
    }
    QVERIFY(wasMeanwhile);
}

void tst_ListLoading::hasTheFirstOnesMeanwhile()
{
    openOnce();
    int meanwhile = 0;
    for (int round = 0; round < rounds; ++round) {
        Opened opened(m_file);
        const QStringList before = opened.first(50);
        if (opened.wasMeanwhile) {
            ++meanwhile;
            QCOMPARE(opened.model->rowCount(), 100);
        }
        QCOMPARE(before.size(), 50);
        QCOMPARE(opened.model->index(0, NodeListModel::AddressColumn).data().toString(),
                 QStringLiteral("10.1.0.1"));
        closeAfterwards(opened);
        QCOMPARE(opened.first(50), before);
        QCOMPARE(before.constFirst(), QStringLiteral("camera-1"));
    }
    QVERIFY(meanwhile > 0);
}

void tst_ListLoading::whatIsGoneIsNotShown()
{
    openOnce();
    openDatabase(m_file)->removeNode(QStringLiteral("camera-3"));
    --m_count;
    Opened opened(m_file);
    QVERIFY(!opened.first(50).contains(QStringLiteral("camera-3")));
    closeAfterwards(opened);
}

void tst_ListLoading::keysMeanTheWholeList()
{
    bool wasMeanwhile = false;
    for (int round = 0; round < rounds && !wasMeanwhile; ++round) {
        Opened opened(m_file);
        wasMeanwhile = opened.wasMeanwhile;
        QTest::keyClick(&opened.window.list(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(opened.window.list().selectedCount(), m_count);
        closeAfterwards(opened);
        QCOMPARE(opened.window.list().selectedCount(), m_count);
    }
    QVERIFY(wasMeanwhile);
}

void tst_ListLoading::otherOrder()
{
    {
        Opened opened(m_file);
        KO_TRY_COMPARE(opened.model->rowCount(), m_count);
        opened.window.list().sortByColumn(NodeListModel::AddressColumn, Qt::DescendingOrder);
        closeAfterwards(opened);
    }
    Opened opened(m_file);
    const QStringList before = opened.first(20);
    closeAfterwards(opened);
    QCOMPARE(opened.first(20), before);
    QCOMPARE(before.constFirst(), QStringLiteral("camera-%1").arg(cameras));
}

void tst_ListLoading::whatIsDoneMeanwhile()
{
    openOnce();
    Opened opened(m_file);
    const QString added = addCamera(*opened.db, QStringLiteral("A new one"), QStringLiteral("10.0.0.2"));
    opened.db->removeNode(QStringLiteral("camera-2"));
    KO_TRY_COMPARE(opened.first(1), QStringList(added));
    KO_TRY_COMPARE(opened.model->rowCount(), m_count);
    QCOMPARE(opened.model->rowOf(QStringLiteral("camera-2")), -1);
    opened.db->removeNode(added);
    --m_count;
    closeAfterwards(opened);
}

void tst_ListLoading::closedMeanwhile()
{
    openOnce();
    const QStringList before = QSettings().value(QStringLiteral("window/firstNodes")).toStringList();
    QCOMPARE(before.size(), 100);
    bool wasMeanwhile = false;
    for (int round = 0; round < rounds; ++round) {
        Opened opened(m_file);
        wasMeanwhile = wasMeanwhile || opened.wasMeanwhile;
        QVERIFY(opened.window.close());
    }
    QVERIFY(wasMeanwhile);
    QCOMPARE(QSettings().value(QStringLiteral("window/firstNodes")).toStringList(), before);
}

KO_TEST_MAIN(tst_ListLoading)
#include "tst_listloading.moc"
