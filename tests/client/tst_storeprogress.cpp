#include "support/HostFixture.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "WaitBox.h"

using namespace ko;

/// Storing a great deal does not freeze the window, which says that it goes on.
class tst_StoreProgress : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shownUntilAllIsStored();
    void notShownForFew();

private:
    void changeAll(const QString& model);
    WaitBox* box() const { return m_window->findChild<WaitBox*>(QStringLiteral("storeProgress")); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_StoreProgress::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
}

void tst_StoreProgress::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_StoreProgress::changeAll(const QString& model)
{
    const QStringList ids = m_host->db()->nodeIdList(IPDeviceType);
    for (const QString& id : ids)
        m_host->change(id, [&model](Node* node) { node->setStringProperty(QStringLiteral("Model"), model); });
}

void tst_StoreProgress::shownUntilAllIsStored()
{
    for (int i = 0; i < 30000; ++i)
        m_host->add(IPDeviceType, QStringLiteral("Camera %1").arg(i));
    QVERIFY(m_host->db()->flush());
    changeAll(QStringLiteral("M1"));
    while (m_host->db()->hasUnstoredChanges() && !box())
        QCoreApplication::processEvents();
    QVERIFY(box());
    QVERIFY(box()->isVisible());
    QVERIFY(box()->isModal());
    QVERIFY(!box()->labelText().isEmpty());
    QTest::keyClick(box(), Qt::Key_Escape);
    box()->close();
    if (m_host->db()->isStoring()) // neither ends it
        QVERIFY(box()->isVisible());
    int shown = 0;
    while (m_host->db()->isStoring()) {
        QCoreApplication::processEvents();
        if (box()) {
            QVERIFY(box()->value() >= shown);
            shown = box()->value();
        }
    }
    QTRY_VERIFY(!box());
    QVERIFY(!m_host->db()->hasUnstoredChanges());
}

void tst_StoreProgress::notShownForFew()
{
    for (int i = 0; i < 40; ++i)
        m_host->add(IPDeviceType, QStringLiteral("Camera %1").arg(i));
    QVERIFY(m_host->db()->flush());
    changeAll(QStringLiteral("M1"));
    QCoreApplication::processEvents();
    QVERIFY(!m_host->db()->hasUnstoredChanges());
    QTest::qWait(400); // longer than it takes to be shown
    QVERIFY(!box());
}

KO_TEST_MAIN(tst_StoreProgress)
#include "tst_storeprogress.moc"
