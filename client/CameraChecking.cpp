#include "CameraChecking.h"

#include "CheckPanel.h"
#include "CheckReportDialog.h"
#include "MainWindow.h"
#include "NameList.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "PictureTip.h"
#include "PlainMessageBox.h"
#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "database/HostNodeDB.h"
#include "devices/ClearPassword.h"
#include "devices/KnownDevice.h"
#include "devices/NodeTarget.h"
#include "ko/IPDeviceNode.h"
#include "model/SearchText.h"

#include <QApplication>
#include <QLocale>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace ko {

CameraChecking::CameraChecking(MainWindow& window, NodeListModel& model)
    : QObject(&window)
    , m_window(window)
    , m_model(model)
    , m_panel(new CheckPanel(window.statusBar()))
    , m_check(window.database())
    , m_pictures(window.database(), [&model](const QString& id) { return model.stateOf(id); })
{
    window.statusBar()->addPermanentWidget(m_panel);
    m_panel->hide(); // adding it has shown it
    connect(m_panel, &CheckPanel::cancelled, this, &CameraChecking::cancel);
    connect(m_panel, &CheckPanel::pressed, this, &CameraChecking::takeOffer);
    connect(&m_check, &CameraCheck::found, &m_model, &NodeListModel::setStates);
    connect(&m_check, &CameraCheck::found, this,
            [this](const CameraCheck::States& states) { m_pictures.forgetProblems(states.keys()); });
    new PictureTip(window.list(), m_pictures);
    connect(&m_check, &CameraCheck::progressed, this,
            [this] { m_panel->showProgress(m_check.done(), m_check.total()); });
    connect(&m_check, &CameraCheck::finished, this, &CameraChecking::finish);
}

void CameraChecking::check()
{
    const QStringList selected = m_window.list().selectedIds();
    start(selected.isEmpty() ? m_window.database().nodeIdList(AllNodeTypes) : selected, false);
}

void CameraChecking::start(const QStringList& nodes, bool isTry)
{
    if (m_check.isRunning()) {
        m_window.say(tr("Cameras are being checked already."));
        return;
    }
    const auto isTarget = [this](const QString& id) {
        return NodeTarget::isOf(m_window.database().summary(id));
    };
    if (std::none_of(nodes.begin(), nodes.end(), isTarget)) {
        m_window.say(tr("There is no camera with an address to check."));
        return;
    }
    m_isTry = isTry;
    m_isCancelled = false;
    m_offer = Offer();
    m_check.start(nodes);
}

void CameraChecking::cancel()
{
    m_isCancelled = m_check.isRunning();
    m_check.cancel();
}

/// While a check is running the line waits for its end.
void CameraChecking::offer(const Offer& offer)
{
    m_offer = offer;
    if (!m_check.isRunning())
        m_panel->showLine(offer.text, offer.button);
}

void CameraChecking::offerToTry(const QString& done, const QStringList& nodes)
{
    if (m_check.isRunning())
        m_window.say(done); // the offer comes later
    offer({done + QLatin1Char(' ') + tr("Try it, once with each?"), tr("&Try It"),
           [this, nodes] { start(nodes, true); }});
}

void CameraChecking::takeOffer()
{
    const Offer offer = std::exchange(m_offer, Offer());
    if (offer.take)
        offer.take();
}

void CameraChecking::finish()
{
    const bool isOne = m_check.total() == 1;
    m_panel->hide();
    if (m_check.results().isEmpty())
        m_window.say(m_isCancelled ? tr("The check was cancelled.") : QString());
    else if (isOne)
        sayResult();
    else if (!m_offer.take)
        m_offer = {outcome(), tr("&Report..."), [this] { showReport(true); }};
    if (m_offer.take)
        offer(m_offer);
    // Not over a dialog in which the user is at work, nor taking the keys that are typed.
    if (!isOne && !m_check.results().isEmpty() && !m_isCancelled && !QApplication::activeModalWidget())
        showReport(false);
}

void CameraChecking::sayResult()
{
    const auto result = m_check.results().constBegin();
    const QString name = m_window.database().summary(result.key()).name;
    const QString reason =
        result->reason.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(result->reason.text());
    m_window.say(tr("%1: %2").arg(name, CameraStates::text(result->state)) + reason);
}

QString CameraChecking::outcome() const
{
    const CameraCheck::States& results = m_check.results();
    const auto good = std::count_if(results.begin(), results.end(), [this](const CameraState& state) {
        return state.state == DeviceReport::Answers && !(m_isTry && state.isOpen);
    });
    const QLocale locale;
    QString text =
        m_isTry ? tr("%1 of %2 cameras took the password.") : tr("%1 of %2 cameras answer as they should.");
    text = text.arg(locale.toString(qlonglong(good)), locale.toString(qlonglong(results.size())));
    if (m_isCancelled)
        text += QLatin1Char(' ') + tr("The check was cancelled.");
    return text;
}

void CameraChecking::showReport(bool isWanted)
{
    const auto nodeOf = [&db = m_window.database()](const QString& id) { return db.summary(id); };
    auto* report = new CheckReportDialog(m_check.results(), nodeOf, m_check.skipped(), m_isTry, &m_window);
    connect(report, &CheckReportDialog::wanted, this, &CameraChecking::showInList);
    report->setAttribute(Qt::WA_ShowWithoutActivating, !isWanted);
    report->show();
}

/// Filtered by their states, since they may be scattered over the whole list, and selected.
void CameraChecking::showInList(const QVector<CheckedCamera>& cameras)
{
    QStringList ids;
    QStringList states;
    for (const CheckedCamera& camera : cameras) {
        ids.append(camera.id);
        const QString state = QStringLiteral("\"%1\"").arg(CameraStates::text(camera.state.state));
        if (!states.contains(state))
            states.append(state);
    }
    m_window.find(m_model.columns().fields().at(NodeListModel::StateColumn) + QLatin1Char(':') +
                  states.join(QLatin1Char('|')));
    m_window.list().selectNodes(ids);
    m_window.activateWindow();
}

CameraSurvey::MoreColumns CameraChecking::columns() const
{
    CameraSurvey::MoreColumns columns;
    if (!m_model.columns().hasStates())
        return columns;
    columns.titles =
        QStringList{QStringLiteral("state"), QStringLiteral("reason"), QStringLiteral("checked")};
    columns.cells = [this](const QString& id) {
        const CameraState state = m_model.stateOf(id);
        return QStringList{CameraStates::text(state.state), state.reason.text(),
                           state.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))};
    };
    return columns;
}

QStringList CameraChecking::names(const CameraCheck::States& others) const
{
    QStringList names;
    for (auto other = others.begin(); other != others.end(); ++other)
        names.append(m_window.database().summary(other.key()).name + QStringLiteral(": ") +
                     other->reason.text());
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return SearchText::sortKey(a) < SearchText::sortKey(b); // "Camera 2" before "Camera 10"
    });
    return names;
}

CameraCheck::States CameraChecking::selectedIn(DeviceReport::State wanted) const
{
    CameraCheck::States found;
    const QStringList selected = m_window.list().selectedIds();
    for (const QString& id : selected) {
        const CameraState state = m_model.stateOf(id);
        if (state.state == wanted)
            found.insert(id, state);
    }
    return found;
}

/// What was seen when the user was asked becomes the known device, not what may answer there now.
void CameraChecking::acceptDevices()
{
    decide(
        {DeviceReport::OtherDevice,
         QT_TR_NOOP("None of the selected cameras was found to be another device: Network > Check Cameras "
                    "looks for that."),
         "acceptDevicesBox", QT_TR_NOOP("Accept Other Devices"),
         QT_TR_N_NOOP("%n device(s) answered that are not the ones known so far. Accept them only if you "
                      "know why, as after an exchange or a new certificate: from the next check on they are "
                      "sent what is stored as user name and password."),
         QT_TR_NOOP("&Accept"),
         [](Node& node, const CameraState& other) { KnownDevice::replace(node, other.seen); },
         NodeLogEntry::DeviceAccepted, QT_TR_N_NOOP("%n device(s) accepted.")});
}

void CameraChecking::allowClearPasswords()
{
    decide(
        {DeviceReport::ClearPassword,
         QT_TR_NOOP("None of the selected cameras was found to want a clear password: Network > Check "
                    "Cameras looks for that."),
         "clearPasswordsBox", QT_TR_NOOP("Allow Clear Passwords"),
         QT_TR_N_NOOP("%n device(s) take the password only in the clear. Without SSL, whoever listens on "
                      "the way can read it, and use it for all cameras that have the same. Allow it only "
                      "where the network is your own. It holds as long as the camera keeps its address and "
                      "port."),
         QT_TR_NOOP("&Allow"),
         [](Node& node, const CameraState&) {
             if (auto* device = dynamic_cast<IPDeviceNode*>(&node))
                 ClearPassword::allow(*device);
         },
         NodeLogEntry::ClearPasswordAllowed,
         QT_TR_N_NOOP("%n device(s) may be sent their passwords in the clear.")});
}

void CameraChecking::decide(const Decision& decision)
{
    const CameraCheck::States cameras = selectedIn(decision.state);
    if (cameras.isEmpty()) {
        m_window.say(tr(decision.none));
        return;
    }
    if (confirm(decision, cameras))
        change(decision, cameras);
}

/// Whether the user agrees; Return does not.
bool CameraChecking::confirm(const Decision& decision, const CameraCheck::States& cameras)
{
    PlainMessageBox box(QMessageBox::Warning, tr(decision.title),
                        tr(decision.question, nullptr, int(cameras.size())) + QStringLiteral("\n\n") +
                            listOfNames(names(cameras)),
                        QMessageBox::Cancel, &m_window);
    box.setObjectName(QLatin1String(decision.box));
    const QPushButton* go = box.addButton(tr(decision.button), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(go);
}

void CameraChecking::change(const Decision& decision, const CameraCheck::States& cameras)
{
    HostNodeDB& db = m_window.database();
    const ChangeScope scope(db, Cause::now(Purpose::Check));
    CameraCheck::States states;
    QStringList changed;
    for (auto camera = cameras.begin(); camera != cameras.end(); ++camera) {
        Node* node = db.beginUpdateNode(camera.key(), -1);
        if (!node)
            continue; // removed meanwhile
        decision.make(*node, camera.value());
        db.endUpdateNode(node);
        db.auditLog().log(NodeLogEntry(decision.entry, db.summary(camera.key()).name));
        changed.append(camera.key());
        states.insert(camera.key(), CameraState());
    }
    m_model.setStates(states);
    offer({tr(decision.done, nullptr, int(changed.size())), tr("&Check Them"),
           [this, changed] { start(changed, false); }});
}

} // namespace ko
