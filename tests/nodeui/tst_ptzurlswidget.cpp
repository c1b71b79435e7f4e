#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "pages/PTZUrlsWidget.h"

#include <QGroupBox>
#include <QLineEdit>

using namespace ko;
using testsupport::child;

namespace {

struct Row
{
    const char* key;
    const char* field;
};

// In the order of reading and writing.
const Row rows[] = {{"UrlPTZStream", "lineEditLiveSteam"},
                    {"UrlPTZStop", "lineEditStop"},
                    {"UrlPTZUp", "lineEditUp"},
                    {"UrlPTZDown", "lineEditDown"},
                    {"UrlPTZLeft", "lineEditLeft"},
                    {"UrlPTZRight", "lineEditRight"},
                    {"UrlPTZZommIn", "lineEditZoomIn"},
                    {"UrlPTZZoomOut", "lineEditZoomOut"}};

} // namespace

class tst_PTZUrlsWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        m_page = std::make_unique<PTZUrlsWidget>(nullptr);
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void loadsWhatTheNodeHas();
    void lackingUrlIsDisabledAndWritten();
    void correctlySpelledKeyIsIgnored();
    void acceptWritesAllInOrder();
    void noReadOnlyMode();
    void hintsAndMissingNodes();

private:
    QLineEdit* edit(const char* name) { return child<QLineEdit>(m_page.get(), name); }
    QStringList accept();

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
    std::unique_ptr<PTZUrlsWidget> m_page;
};

QStringList tst_PTZUrlsWidget::accept()
{
    m_db->clearCalls();
    Node* node = m_db->beginUpdateNode("cam", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    return m_db->calls.mid(1, m_db->calls.size() - 2);
}

void tst_PTZUrlsWidget::form()
{
    using testsupport::RightCentred;
    QCOMPARE(m_page->objectName(), QString("PTZUrlsWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::PTZUrlsWidget"));
    QCOMPARE(m_page->size(), QSize(467, 299));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(m_page.get(),
                               {{"label_stream", "Live (M-JPEG):", 100, RightCentred, "lineEditLiveSteam"},
                                {"label_4", "Up:", 100, RightCentred, "lineEditUp"},
                                {"label_5", "Down:", 100, RightCentred, "lineEditDown"},
                                {"label_2", "Left:", 100, RightCentred, "lineEditLeft"},
                                {"label_3", "Right:", 100, RightCentred, "lineEditRight"},
                                {"label_6", "Zoom in:", 100, RightCentred, "lineEditZoomIn"},
                                {"label_7", "Zoom out:", 100, RightCentred, "lineEditZoomOut"},
                                {"label", "Stop:", 100, RightCentred, "lineEditStop"}});
    QCOMPARE(child<QGroupBox>(m_page.get(), "groupBoxImage")->title(), QString("Image"));
    const auto* ptz = child<QGroupBox>(m_page.get(), "groupBoxPTZ");
    QCOMPARE(ptz->title(), QString("PTZ"));
    QCOMPARE(ptz->toolTip(), QString("Works best with continuous PTZ commands."));
    const auto* grid = child<QGridLayout>(m_page.get(), "gridLayout_2");
    const char* const order[] = {"lineEditUp",     "lineEditDown",    "lineEditLeft", "lineEditRight",
                                 "lineEditZoomIn", "lineEditZoomOut", "lineEditStop"};
    for (int row = 0; row < 7; ++row)
        QCOMPARE(testsupport::gridCell(grid, edit(order[row])), QString("%1,1,1,1").arg(row));
}

void tst_PTZUrlsWidget::loadsWhatTheNodeHas()
{
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    for (const Row& row : rows)
        camera.setStringProperty(row.key, QString("http://cam/%1?a=%20&b=1").arg(row.key));
    m_page->init(QString("cam"));
    for (const Row& row : rows) {
        QCOMPARE(edit(row.field)->text(), QString("http://cam/%1?a=%20&b=1").arg(row.key));
        QVERIFY(edit(row.field)->isEnabled());
    }
}

void tst_PTZUrlsWidget::lackingUrlIsDisabledAndWritten()
{
    m_db->addCamera("cam", "Gate").setStringProperty("UrlPTZDown", "down");
    edit("lineEditUp")->setText("stays");
    m_page->init(QString("cam"));
    QVERIFY(!edit("lineEditUp")->isEnabled());
    QCOMPARE(edit("lineEditUp")->text(), QString("stays"));
    QVERIFY(edit("lineEditDown")->isEnabled());
    edit("lineEditUp")->clear();
    accept();
    QVERIFY(m_db->node("cam")->hasProperty("UrlPTZUp"));
    QVERIFY(m_db->node("cam")->stringProperty("UrlPTZUp", "x").isEmpty());
}

void tst_PTZUrlsWidget::correctlySpelledKeyIsIgnored()
{
    m_db->addCamera("cam", "Gate").setStringProperty("UrlPTZZoomIn", "in");
    m_page->init(QString("cam"));
    QVERIFY(!edit("lineEditZoomIn")->isEnabled());
    QVERIFY(edit("lineEditZoomIn")->text().isEmpty());
}

void tst_PTZUrlsWidget::acceptWritesAllInOrder()
{
    m_db->addCamera("cam", "Gate");
    m_page->init(QString("cam"));
    QStringList expected;
    for (const Row& row : rows) {
        edit(row.field)->setText(row.field);
        expected.append(QString("setStringProperty(%1,%2)").arg(row.key, row.field));
    }
    QCOMPARE(accept(), expected);
}

void tst_PTZUrlsWidget::noReadOnlyMode()
{
    m_page->setReadOnly(true);
    for (const Row& row : rows) {
        QVERIFY(edit(row.field)->isEnabled());
        QVERIFY(!edit(row.field)->isReadOnly());
        QVERIFY(edit(row.field)->hasFrame());
    }
}

void tst_PTZUrlsWidget::hintsAndMissingNodes()
{
    const kom::smart<NodeHint> hint = m_db->createHint(UrlCameraType);
    m_db->clearCalls();
    m_page->init(hint.get());
    m_page->accept(hint.get());
    m_page->init(QString("unknown"));
    m_page->accept(static_cast<Node*>(nullptr));
    QVERIFY(m_db->calls.isEmpty());
    QVERIFY(edit("lineEditUp")->isEnabled());
}

KO_TEST_MAIN(tst_PTZUrlsWidget)
#include "tst_ptzurlswidget.moc"
