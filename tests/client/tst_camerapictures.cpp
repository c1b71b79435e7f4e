#include "CameraChecking.h"
#include "MainWindow.h"
#include "NodeListView.h"
#include "PictureTip.h"
#include "PictureView.h"
#include "database/StoredHistory.h"
#include "devices/KnownDevice.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/SiteCameras.h"
#include "support/TestMain.h"

#include <QAction>
#include <QHelpEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QToolTip>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;
using testsupport::SimulatedSite;

namespace {

/// A device that hangs up, or never answers, and counts who comes.
class QuietDevice : public QTcpServer
{
public:
    explicit QuietDevice(bool hangsUp)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, hangsUp] {
            QTcpSocket* socket = nextPendingConnection();
            ++asked;
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++left; });
            if (hangsUp)
                socket->abort();
        });
    }

    int asked = 0;
    int left = 0;
};

} // namespace

/// Pictures of cameras, where the user of the main window looks for them.
class tst_CameraPictures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shownInTipAndProperties();
    void unknownCameraIsNotAsked();
    void onlyWhereTheMouseRests();
    void givenUpWhenNobodyLooks();
    void keptForAWhile();
    void refusedPasswordIsNotTriedAgain();
    void droppedWhenTheCameraChanges();
    void memoryIsBounded();
    void nodesWithoutPicture();

private:
    QString add(const QString& address, int port, const QString& password);
    QString addKnown(int port);
    void open();
    void check();
    QPoint placeOf(const QString& id) const;
    void rest(const QString& id) const;
    void passOver(const QString& id) const;
    CameraPictures& pictures() { return m_window->checking().pictures(); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    NodeListView* m_list = nullptr;
};

void tst_CameraPictures::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
}

void tst_CameraPictures::cleanup()
{
    QToolTip::hideText();
    m_window.reset();
    m_host.reset();
}

QString tst_CameraPictures::add(const QString& address, int port, const QString& password)
{
    const QString id = m_host->add(IPDeviceType, "Camera at " + address, address);
    m_host->change(id, [&](Node* node) {
        auto* device = dynamic_cast<IPDeviceNode*>(node);
        device->setPort(port);
        device->setUser("admin", password);
    });
    return id;
}

/// A camera at this machine that was checked at some time.
QString tst_CameraPictures::addKnown(int port)
{
    const QString id = add("127.0.0.1", port, "secret");
    DeviceIdentity seen;
    seen.serial = QString("S1");
    m_host->change(id, [&](Node* node) { KnownDevice::remember(*node, seen); });
    return id;
}

void tst_CameraPictures::open()
{
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_list = &m_window->list();
}

void tst_CameraPictures::check()
{
    m_list->selectAll();
    child<QAction>(m_window.get(), "actionCheck")->trigger();
    KO_TRY_VERIFY(!child<QProgressBar>(m_window.get(), "checkProgressBar")->isVisible());
}

QPoint tst_CameraPictures::placeOf(const QString& id) const
{
    const auto* model = m_list->model();
    int row = 0;
    while (row < model->rowCount() && model->index(row, 0).data(NodeListModel::NodeIdRole).toString() != id)
        ++row;
    return m_list->visualRect(model->index(row, 0)).center();
}

void tst_CameraPictures::rest(const QString& id) const
{
    passOver(id);
    const QPoint place = placeOf(id);
    QHelpEvent event(QEvent::ToolTip, place, m_list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(m_list->viewport(), &event);
}

void tst_CameraPictures::passOver(const QString& id) const
{
    QTest::mouseMove(m_list->viewport(), placeOf(id));
}

void tst_CameraPictures::shownInTipAndProperties()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest,picture-page"});
    QVERIFY(site.isUp);
    const QStringList ids = testsupport::addCameras(*m_host, site, 2);
    open();
    check();
    m_host->db()->flush();
    const int before = int(m_host->db()->history().changeSets(0, 1000).size());
    rest(ids.at(0));
    QVERIFY2(QToolTip::text().contains("Fetching"), qPrintable(QToolTip::text()));
    KO_TRY_VERIFY(QToolTip::text().contains("data:image"));
    QCOMPARE(pictures().picture(ids.at(0)).image.size(), QSize(640, 360));
    rest(ids.at(1));
    KO_TRY_VERIFY(QToolTip::text().contains("not a picture"));

    m_list->selectNode(ids.at(0));
    QSize shown;
    {
        const ModalAnswer answer([&shown](QDialog* dialog) {
            const auto* view = child<QLabel>(dialog, "pictureView");
            const auto size = [view] { return view->property("pixmap").value<QPixmap>().size(); };
            if (QTest::qWaitFor([&] { return !size().isEmpty(); }, testsupport::Patience))
                shown = size();
            dialog->accept();
        });
        child<QAction>(m_window.get(), "actionProperties")->trigger();
        QVERIFY(answer.fired());
    }
    QCOMPARE(shown, QSize(320, 180));
    m_host->db()->flush();
    QCOMPARE(int(m_host->db()->history().changeSets(0, 1000).size()), before); // nothing of it is stored
}

/// Nobody knows yet whether it is the camera whose password this is.
void tst_CameraPictures::unknownCameraIsNotAsked()
{
    QuietDevice device(true);
    const QString id = add("127.0.0.1", device.serverPort(), "secret");
    open();
    rest(id);
    QTest::qWait(PictureTip::Delay * 2);
    QVERIFY2(QToolTip::text().contains("F5"), qPrintable(QToolTip::text()));
    m_list->selectNode(id);
    QString text;
    {
        const ModalAnswer answer([&text](QDialog* dialog) {
            text = child<QLabel>(dialog, "pictureView")->text();
            dialog->accept();
        });
        child<QAction>(m_window.get(), "actionProperties")->trigger();
    }
    QVERIFY2(text.contains("F5"), qPrintable(text));
    QCOMPARE(device.asked, 0);
}

void tst_CameraPictures::onlyWhereTheMouseRests()
{
    QuietDevice passed(true);
    QuietDevice other(true);
    const QString first = addKnown(passed.serverPort());
    const QString last = addKnown(other.serverPort());
    open();
    rest(first); // long enough for a tool tip
    QTest::qWait(PictureTip::Delay / 4);
    rest(last);
    KO_TRY_VERIFY(QToolTip::text().contains("No answer"));
    QCOMPARE(passed.asked, 0);
    QVERIFY(other.asked > 0);
}

void tst_CameraPictures::givenUpWhenNobodyLooks()
{
    QuietDevice held(false);
    const QString id = addKnown(held.serverPort());
    const QString next = m_host->add(ViewType, "View"); // nothing else is fetched
    open();
    rest(id);
    KO_TRY_VERIFY(held.asked == 1);
    passOver(next);
    QVERIFY(!pictures().isUnderWay(id));
    KO_TRY_VERIFY(held.left == 1);

    m_list->selectNode(id);
    {
        const ModalAnswer answer([&held](QDialog* dialog) {
            if (QTest::qWaitFor([&] { return held.asked == 2; }, testsupport::Patience))
                dialog->accept();
        });
        child<QAction>(m_window.get(), "actionProperties")->trigger();
    }
    QCOMPARE(held.asked, 2);
    KO_TRY_VERIFY(held.left == 2);
}

void tst_CameraPictures::keptForAWhile()
{
    QuietDevice device(true);
    QuietDevice other(true);
    const QString id = addKnown(device.serverPort());
    const QString next = addKnown(other.serverPort());
    open();
    rest(id);
    KO_TRY_COMPARE(pictures().picture(id).problem, QString("No answer"));
    const int asked = device.asked; // the toolkit may connect again by itself
    QVERIFY(asked > 0);
    for (int i = 0; i < 2; ++i) {
        passOver(next);
        rest(id);
        QTest::qWait(PictureTip::Delay * 2);
    }
    QCOMPARE(device.asked, asked);
}

/// A camera that locks the account after three wrong passwords shows how often it is tried.
void tst_CameraPictures::refusedPasswordIsNotTriedAgain()
{
    const SimulatedSite site({"--cameras", "1", "--onvif", "locks"});
    QVERIFY(site.isUp);
    const QString id = testsupport::addCameras(*m_host, site, 1).constFirst();
    open();
    check();
    const auto give = [&](const QString& password) {
        m_host->change(id,
                       [&](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser("admin", password); });
        QCoreApplication::processEvents();
    };
    give("wrong");
    for (int i = 0; i < 4; ++i) {
        pictures().want(id);
        KO_TRY_VERIFY(!pictures().isUnderWay(id));
        QCOMPARE(pictures().picture(id).problem, QString("Wrong password"));
    }
    give("kosim-pass");
    pictures().want(id);
    KO_TRY_VERIFY(!pictures().picture(id).image.isNull());
}

void tst_CameraPictures::droppedWhenTheCameraChanges()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest"});
    QVERIFY(site.isUp);
    const QStringList ids = testsupport::addCameras(*m_host, site, 2);
    open();
    check();
    for (const QString& id : ids) {
        pictures().want(id);
        KO_TRY_VERIFY(!pictures().picture(id).image.isNull());
    }
    m_host->change(ids.at(0), [](Node* node) { node->setStringProperty("Name", "Renamed"); });
    QVERIFY(!pictures().picture(ids.at(0)).image.isNull()); // it is the same camera
    m_host->change(ids.at(0), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress("127.0.0.9"); });
    QVERIFY(pictures().picture(ids.at(0)).image.isNull());
    m_host->db()->removeNode(ids.at(1));
    QVERIFY(pictures().picture(ids.at(1)).image.isNull());

    // While it is on its way.
    m_host->change(ids.at(0), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress("127.0.1.1"); });
    pictures().want(ids.at(0));
    QVERIFY(pictures().isUnderWay(ids.at(0)));
    m_host->change(ids.at(0),
                   [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser("admin", "other"); });
    QVERIFY(!pictures().isUnderWay(ids.at(0)));
}

void tst_CameraPictures::memoryIsBounded()
{
    const int count = 20; // of 900 kB each
    const SimulatedSite site({"--cameras", QString::number(count), "--onvif", "open"});
    QVERIFY(site.isUp);
    const QStringList ids = testsupport::addCameras(*m_host, site, count);
    open();
    check();
    for (const QString& id : ids) {
        pictures().want(id);
        KO_TRY_VERIFY(!pictures().picture(id).image.isNull());
    }
    qint64 bytes = 0;
    for (const QString& id : ids)
        bytes += pictures().picture(id).image.sizeInBytes();
    QVERIFY(bytes <= CameraPictures::MostBytes);
    QVERIFY(pictures().picture(ids.constFirst()).image.isNull());
    QVERIFY(!pictures().picture(ids.constLast()).image.isNull());
}

void tst_CameraPictures::nodesWithoutPicture()
{
    const QString view = m_host->add(ViewType, "View");
    const QString nowhere = m_host->add(IPDeviceType, "Nowhere");
    open();
    for (const QString& id : {view, nowhere}) {
        rest(id);
        QCOMPARE(QToolTip::text(), QString());
        m_list->selectNode(id);
        bool isThere = true;
        const ModalAnswer answer([&isThere](QDialog* dialog) {
            isThere = dialog->findChild<QWidget*>("pictureView");
            dialog->accept();
        });
        child<QAction>(m_window.get(), "actionProperties")->trigger();
        QVERIFY(!isThere);
    }
}

KO_TEST_MAIN(tst_CameraPictures)
#include "tst_camerapictures.moc"
