#include "Pictures.h"

#include "CheckReportDialog.h"
#include "ImportReportDialog.h"
#include "MainWindow.h"
#include "ManualWindow.h"
#include "MomentWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "dialogs/GenericNodeViewer.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "drivers/NodeTypes.h"
#include "exchange/CameraSurvey.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/Environments.h"
#include "ko/Node.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/PropertyKeys.h"
#include "ko/Terminal.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QSet>
#include <QTabWidget>
#include <QTemporaryFile>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace ko {

namespace {

const int Step = 50; // ms

void settle()
{
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

int colorsOf(const QImage& picture, QRgb mask, QSet<QRgb>* colors)
{
    colors->clear();
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            colors->insert(line[x] & mask);
    }
    return int(colors->size());
}

/// With a table of at most 256 colors, which makes the file a third as large. Windows have hardly more.
QImage small(QImage picture)
{
    picture = picture.convertToFormat(QImage::Format_RGB32);
    QSet<QRgb> colors;
    QRgb mask = 0xffffffff;
    for (int bits = 1; colorsOf(picture, mask, &colors) > 256; ++bits)
        mask = 0xff000000 | (0x010101u * ((0xffu << bits) & 0xffu));
    QVector<QRgb> table(colors.begin(), colors.end());
    std::sort(table.begin(), table.end()); // the same file each time
    QHash<QRgb, uchar> places;
    for (int i = 0; i < table.size(); ++i)
        places.insert(table.at(i), uchar(i));
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = places.value(from[x] & mask);
    }
    return indexed;
}

NodeID add(HostNodeDB& db, ENodeType type, const QString& name, const QString& address = QString())
{
    const kom::smart<NodeHint> hint = NodeTypes::driver(type)->createNodeHint(type);
    hint->setName(name);
    if (auto* device = dynamic_cast<NodeHintIPDevice*>(hint.get()))
        device->address = address;
    db.newNodeHint(*hint);
    return db.nodeIdList(type).constLast();
}

void press(QWidget* window, const char* button)
{
    window->findChild<QAbstractButton*>(QLatin1String(button))->click();
    settle();
}

} // namespace

Pictures::Pictures(HostNodeDB& db, MainWindow& window, const QString& folder, const QString& end)
    : m_db(db)
    , m_window(window)
    , m_folder(folder)
    , m_end(end)
{
}

void Pictures::beDark()
{
    const QColor ground(0x2b, 0x2b, 0x2b);
    const QColor field(0x1f, 0x1f, 0x1f);
    const QColor text(0xe6, 0xe6, 0xe6);
    QPalette dark(text, ground, ground.lighter(160), ground.darker(160), ground.lighter(130), text, Qt::white,
                  field, ground);
    dark.setColor(QPalette::AlternateBase, ground);
    dark.setColor(QPalette::ToolTipBase, ground);
    dark.setColor(QPalette::ToolTipText, text);
    dark.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xbf));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x7a, 0xb8, 0xff));
    dark.setColor(QPalette::LinkVisited, QColor(0xc0, 0xa0, 0xf0));
    dark.setColor(QPalette::PlaceholderText, QColor(0x90, 0x90, 0x90));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    QApplication::setPalette(dark);
}

bool Pictures::make(const QString& survey)
{
    m_good = m_folder.mkpath(QStringLiteral("."));
    m_window.resize(1000, 520);
    shoot(&m_window, QStringLiteral("empty"));
    fill(survey);
    if (!m_good)
        return false;
    check();
    select({QStringLiteral("Main gate")});
    shoot(&m_window, QStringLiteral("main"));
    makeOfActions();
    makeOfEditors();
    makeOfScan();
    makeOfHistory();
    makeOfLists(survey);
    makeOfRecordings();
    makeOfViewers();
    return m_good;
}

void Pictures::fill(const QString& survey)
{
    const CameraSurvey::ImportResult result =
        CameraSurvey::importCameras(survey, [](qint64, qint64) { return true; });
    m_good = result.error.isEmpty() && result.added > 0;
    Environments::List environments = m_db.environments().getList();
    environments.append(
        {QStringLiteral("{9f2a7f0e-55a1-4d3c-8b61-0f3ad2b7c001}"), QStringLiteral("On the road")});
    m_db.environments().setList(environments);
    m_db.flush();
    for (const char* model : {"Bullet 8M", "Bullet 12M"}) { // something to undo
        if (Node* node = m_db.beginUpdateNode(idOf(QStringLiteral("Main gate")), -1)) {
            node->setStringProperty(PropertyKeys::Model, QLatin1String(model));
            m_db.endUpdateNode(node);
        }
        m_db.flush();
        settle();
    }
}

/// What a check would have said: the cameras of the example are not there.
void Pictures::check()
{
    const QVector<NodeSummary> nodes = m_db.summaries();
    CheckReportModel::States states;
    int number = 0;
    for (const NodeSummary& node : nodes) {
        if (!NodeTypes::isDevice(node.type))
            continue;
        CameraState state;
        state.time = QDateTime(QDate(2026, 3, 2), QTime(9, 30));
        state.state = ++number == 3  ? DeviceReport::WrongPassword
                      : number == 7  ? DeviceReport::OtherDevice
                      : number == 12 ? DeviceReport::NoAnswer
                                     : DeviceReport::Answers;
        if (state.state == DeviceReport::OtherDevice)
            state.reason = QStringLiteral("it has another certificate than before");
        states.insert(node.id, state);
    }
    m_window.findChild<NodeListModel*>()->setStates(states);
    CheckReportDialog report(
        states, [this](const QString& id) { return m_db.summary(id); }, 0, false, &m_window);
    report.show();
    shoot(&report, QStringLiteral("check"));
}

void Pictures::makeOfActions()
{
    const struct
    {
        const char* action;
        const char* name;
    } windows[] = {
        {"actionProperties", "properties"},
        {"actionRemove", "remove"},
        {"actionPreferences", "preferences"},
        {"actionProxy", "proxy"},
        {"actionEnvironments", "environments"},
        {"actionAddressChanges", "new-addresses"},
        {"actionAuditLog", "audit-log"},
        {"actionFillIn", "fill-in"},
        {"actionAbout", "about"},
        {"actionRecording", "recordings"},
        {"actionDuplicate", "duplicate"},
        {"actionAdd", "add"},
    };
    for (const auto& window : windows)
        openAndShoot(window.action, QLatin1String(window.name));
    openAndShoot("actionCredentials", QStringLiteral("credentials"));
}

void Pictures::makeOfEditors()
{
    select({QStringLiteral("Main gate")});
    open("actionEdit", [this](QDialog* dialog) {
        shoot(dialog, QStringLiteral("edit"));
        auto* tabs = dialog->findChild<QTabWidget*>();
        for (int i = 1; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            shoot(dialog, QStringLiteral("edit-page-%1").arg(i + 1));
        }
    });
}

/// With cameras that arrive while it is open, as a scan finds them.
void Pictures::makeOfScan()
{
    open("actionOverview", [this](QDialog* dialog) {
        for (int i = 1; i <= 6; ++i)
            add(m_db, IPDeviceType, QStringLiteral("Dome 4M - %1").arg(i),
                QStringLiteral("10.20.7.%1").arg(10 + i));
        dialog->resize(640, 300);
        shoot(dialog, QStringLiteral("scan"));
        QTimer::singleShot(Step, dialog, [this, dialog] {
            QWidget* filter = QApplication::activeModalWidget();
            if (filter == dialog)
                return;
            shoot(filter, QStringLiteral("scan-filter"));
            qobject_cast<QDialog*>(filter)->reject();
        });
        press(dialog, "filterButton");
    });
}

void Pictures::makeOfHistory()
{
    openAndShoot("actionHistory", QStringLiteral("history"));
    openAndShoot("actionBackTo", QStringLiteral("back-to"));
    openAndShoot("actionUndo", QStringLiteral("undo"));
    auto* moment = new MomentWindow(m_window, *m_db.history().row(3));
    moment->show();
    while (!moment->findChild<QAbstractButton*>(QStringLiteral("putBackAllButton"))->isEnabled())
        settle();
    shoot(moment, QStringLiteral("moment"));
    delete moment;
}

void Pictures::makeOfLists(const QString& survey)
{
    QTemporaryFile list;
    QFile good(survey);
    if (!list.open() || !good.open(QIODevice::ReadOnly)) {
        m_good = false;
        return;
    }
    list.write(good.readAll() +
               "North fence,10.20.1.300,80,no,viewer,,,,,\nSouth fence,10.20.8.2,80000,no,viewer,,,,,\n");
    list.close();
    ImportReportDialog before(CameraSurvey::check(list.fileName(), [](qint64, qint64) { return true; }),
                              &m_window, ImportReportDialog::Before);
    before.show();
    shoot(&before, QStringLiteral("import"));
}

void Pictures::makeOfRecordings()
{
    select({QStringLiteral("Main gate")});
    open("actionRecording", [this](QDialog* dialog) {
        press(dialog, "moreButton");
        shoot(dialog, QStringLiteral("recordings-all"));
    });
    RecordingTransponderCustomSettingsDialog preview(idOf(QStringLiteral("Main gate")), &m_window);
    preview.show();
    shoot(&preview, QStringLiteral("remote-preview"));
}

void Pictures::makeOfViewers()
{
    GenericNodeViewer node(idOf(QStringLiteral("Main gate")), &m_window);
    node.show();
    shoot(&node, QStringLiteral("viewer-node"));
    NodeDBViewer all(&m_window);
    all.setWindowFlag(Qt::Window);
    all.show();
    shoot(&all, QStringLiteral("viewer"));
    ManualWindow manual;
    manual.read(QStringLiteral("start.md"));
    shoot(&manual, QStringLiteral("manual"));
}

void Pictures::shoot(QWidget* widget, const QString& name)
{
    settle();
    const QString file = m_folder.filePath(name + m_end + QLatin1String(".png"));
    if (small(widget->grab().toImage()).save(file, "PNG", 0))
        return;
    m_good = false;
    Terminal::say(stderr, QStringLiteral("No picture was written to %1").arg(file));
}

void Pictures::open(const char* action, const std::function<void(QDialog*)>& look)
{
    bool came = false;
    QTimer::singleShot(Step, &m_window, [&came, &look] {
        QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        came = true;
        settle();
        look(dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    m_window.findChild<QAction*>(QLatin1String(action))->trigger();
    settle();
    if (came)
        return;
    m_good = false;
    Terminal::say(stderr, QStringLiteral("%1 opens no window").arg(QLatin1String(action)));
}

void Pictures::openAndShoot(const char* action, const QString& name)
{
    open(action, [this, &name](QDialog* dialog) { shoot(dialog, name); });
}

void Pictures::select(const QStringList& names)
{
    m_window.applyChanges();
    QStringList ids;
    for (const QString& name : names)
        ids.append(idOf(name));
    m_window.list().selectNodes(ids);
    settle();
}

QString Pictures::idOf(const QString& name) const
{
    const QVector<NodeSummary> nodes = m_db.summaries();
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [&name](const NodeSummary& node) { return node.name == name; });
    return found == nodes.end() ? QString() : found->id;
}

} // namespace ko
