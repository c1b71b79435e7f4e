#include "journeys/Desk.h"
#include "support/TestMain.h"

#include "ko/IPDeviceNode.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QTimer>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::Desk;

namespace {

const int cameras = 20000;

/// Looks while it lives whether a window shows how far long work is, and for how long nothing was painted or
/// answered.
class Watch : public QObject
{
public:
    explicit Watch(const char* job)
        : m_job(job)
    {
        m_clock.start();
        m_turn.start();
        connect(&m_timer, &QTimer::timeout, this, &Watch::look);
        m_timer.start(10);
    }
    ~Watch() override
    {
        look();
        qInfo("%s: %lld ms, %lld ms at most without a turn", m_job, m_clock.elapsed(), m_longest);
    }

    /// What is done in a moment needs to say nothing.
    bool saysHowFar() const { return m_sawProgress || m_clock.elapsed() < 700; }

private:
    void look()
    {
        m_longest = qMax(m_longest, m_turn.restart());
        const QWidgetList all = QApplication::topLevelWidgets();
        for (const QWidget* each : all)
            m_sawProgress |= each->isVisible() && qobject_cast<const QProgressDialog*>(each);
    }

    const char* const m_job;
    QElapsedTimer m_clock;
    QElapsedTimer m_turn;
    QTimer m_timer;
    qint64 m_longest = 0;
    bool m_sawProgress = false;
};

} // namespace

/// A day with twenty thousand cameras: what takes long says how far it is.
class tst_LargeSite : public QObject
{
    Q_OBJECT

private slots:
    void aDay();

private:
    int withUser(const QString& user) const;

    std::unique_ptr<Desk> m_desk;
};

int tst_LargeSite::withUser(const QString& user) const
{
    int count = 0;
    m_desk->host.db()->column("User", [&](const NodeID&, const QVariant& value) { count += value == user; });
    return count;
}

void tst_LargeSite::aDay()
{
    m_desk = std::make_unique<Desk>();
    m_desk->cameras(cameras);
    {
        const Watch watch("find");
        m_desk->find("name:\"camera 1999\"");
        QCOMPARE(m_desk->shown().size(), 11);
        Desk::key(Qt::Key_Escape);
    }
    m_desk->find("type:\"ip camera\"");
    Desk::key(Qt::Key_Down);
    Desk::key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_desk->list->selectedCount(), cameras);
    {
        const Watch watch("credentials");
        const Answers answers({[](QDialog* dialog) {
            Desk::enter(dialog, "userNameLineEdit", "operator");
            Desk::press(dialog, "OK");
        }});
        Desk::key(Qt::Key_U, Qt::ControlModifier);
        QVERIFY(watch.saysHowFar());
        QCOMPARE(answers.opened().size(), 1);
    }
    m_desk->settle();
    QCOMPARE(withUser("operator"), cameras);
    {
        const Watch watch("remove");
        const Answers answers({Desk::press("Remove")});
        Desk::key(Qt::Key_Delete);
        QVERIFY(watch.saysHowFar());
    }
    m_desk->settle();
    QCOMPARE(m_desk->host.db()->nodeIdList(IPDeviceType).size(), 0);
    {
        const Watch watch("undo");
        const Answers answers({Desk::press("OK")});
        Desk::key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(watch.saysHowFar());
    }
    m_desk->settle();
    QCOMPARE(m_desk->host.db()->nodeIdList(IPDeviceType).size(), cameras);
    m_desk.reset();
}

KO_TEST_MAIN(tst_LargeSite)
#include "tst_largesite.moc"
