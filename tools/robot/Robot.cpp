#include "Robot.h"

#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "exchange/CameraSurvey.h"
#include "ko/IPDeviceNode.h"
#include "ko/Terminal.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <cstdio>

namespace ko {

namespace {

const char addedName[] = "Visitor car park";
const char addedAddress[] = "10.20.9.1";
const char editedName[] = "Main gate, north";
const char editedAddress[] = "10.20.1.111";
const char firstName[] = "Main gate";
const int ScanPatience = 60000; // ms

void say(const QString& text)
{
    Terminal::say(stdout, text);
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void press(QAbstractButton* button)
{
    const QPointF center = button->rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, center, button->mapToGlobal(center.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(button, &event);
    }
}

void press(QDialog* dialog, QDialogButtonBox::StandardButton which)
{
    press(dialog->findChild<QDialogButtonBox*>()->button(which));
}

void type(QWidget* widget, const QString& text)
{
    auto* lineEdit = qobject_cast<QLineEdit*>(widget);
    lineEdit->setFocus();
    lineEdit->selectAll();
    for (const QChar c : text) {
        for (const QEvent::Type eventType : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(eventType, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(lineEdit, &event);
        }
    }
}

QWidget* field(QWidget* window, const char* name)
{
    return window->findChild<QWidget*>(QLatin1String(name));
}

QString idOf(const HostNodeDB& db, const char* name)
{
    const QVector<NodeSummary> summaries = db.summaries();
    for (const NodeSummary& summary : summaries) {
        if (summary.name == QLatin1String(name))
            return summary.id;
    }
    return QString();
}

QStringList newestLogCodes(HostNodeDB& db, int count)
{
    QStringList codes;
    const std::vector<AuditRecord> records = db.auditLog().entries(0, count, true);
    for (const AuditRecord& record : records)
        codes.prepend(record.code.toString());
    return codes;
}

} // namespace

Robot::Robot(HostNodeDB& db, MainWindow& window, const QString& folder)
    : m_db(db)
    , m_window(window)
    , m_folder(folder)
{
}

void Robot::begin()
{
    expect(m_folder.mkpath(QStringLiteral(".")), QStringLiteral("the folder for the pictures is there"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    m_window.resize(960, 560);
    settle();
}

bool Robot::runScans(int cameras)
{
    begin();
    withDialog("actionOverview", [this, cameras](QDialog* dialog) {
        auto* list = dialog->findChild<QTreeView*>();
        press(dialog->findChild<QPushButton*>(QStringLiteral("bonjourButton")));
        press(dialog->findChild<QPushButton*>(QStringLiteral("arpButton")));
        QElapsedTimer clock;
        clock.start();
        while (list->model()->rowCount() < cameras && !clock.hasExpired(ScanPatience))
            settle();
        expect(list->model()->rowCount() == cameras,
               QStringLiteral("the scans find %1 of %2 cameras").arg(list->model()->rowCount()).arg(cameras));
        picture(dialog, "scans");
        list->selectAll();
        press(dialog->findChild<QPushButton*>(QStringLiteral("okButton")));
    });
    expect(m_window.findChild<NodeListView*>()->selectedIds().size() == cameras,
           QStringLiteral("they are in the list, and selected"));
    expect(m_db.flush(), QStringLiteral("everything is stored"));
    picture(&m_window, "found");
    return m_good;
}

bool Robot::run(const QString& survey)
{
    begin();
    importSurvey(survey);
    search();
    addCamera();
    if (m_good)
        editCamera();
    lookAround();
    expect(m_db.flush(), QStringLiteral("everything is stored"));
    say(QStringLiteral("%1 pictures in %2").arg(m_pictures).arg(QDir::toNativeSeparators(m_folder.path())));
    return m_good;
}

void Robot::expect(bool condition, const QString& text)
{
    say((condition ? QStringLiteral("ok      ") : QStringLiteral("NOT SO  ")) + text);
    m_good = m_good && condition;
}

void Robot::picture(QWidget* widget, const char* name)
{
    settle();
    const QString file = m_folder.filePath(
        QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(QLatin1String(name)));
    if (!widget->grab().save(file))
        expect(false, QStringLiteral("a picture is written to %1").arg(file));
}

void Robot::withDialog(const char* action, const std::function<void(QDialog*)>& work)
{
    bool came = false;
    QTimer::singleShot(50, &m_window, [&came, &work] {
        QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        came = true;
        settle();
        work(dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    m_window.findChild<QAction*>(QLatin1String(action))->trigger();
    settle();
    expect(came, QStringLiteral("%1 opens its dialog").arg(QLatin1String(action)));
}

void Robot::importSurvey(const QString& survey)
{
    const CameraSurvey::ImportResult result = CameraSurvey::importCameras(survey, [](qint64, qint64) {
        settle();
        return true;
    });
    settle();
    expect(result.error.isEmpty() && result.badLines.isEmpty(),
           QStringLiteral("the survey is imported: %1 cameras %2").arg(result.added).arg(result.error));
    expect(result.added > 0, QStringLiteral("cameras were added"));
    picture(&m_window, "main-window");
}

void Robot::search()
{
    auto* view = m_window.findChild<NodeListView*>();
    QWidget* searchField = field(&m_window, "searchLineEdit");
    const int all = view->model()->rowCount();
    type(searchField, QStringLiteral("gate 443"));
    type(searchField, QStringLiteral("gate main"));
    settle();
    const int found = view->model()->rowCount();
    expect(found > 0 && found < all,
           QStringLiteral("\"gate main\" finds %1 of %2 nodes").arg(found).arg(all));
    picture(&m_window, "search");
    qobject_cast<QLineEdit*>(searchField)->clear();
    settle();
}

void Robot::addCamera()
{
    withDialog("actionAdd", [this](QDialog* dialog) {
        type(field(dialog, "addressLineEdit"), QLatin1String(addedAddress));
        type(field(dialog, "nameLineEdit"), QLatin1String(addedName));
        picture(dialog, "add-node");
        press(dialog, QDialogButtonBox::Ok);
    });
    const QString id = idOf(m_db, addedName);
    expect(!id.isEmpty(), QStringLiteral("the camera \"%1\" is added").arg(QLatin1String(addedName)));
    expect(m_window.findChild<NodeListView*>()->selectedIds() == QStringList(id),
           QStringLiteral("and selected in the list"));
}

void Robot::editCamera()
{
    const QString id = idOf(m_db, firstName);
    m_window.findChild<NodeListView*>()->selectNode(id);
    withDialog("actionEdit", [this](QDialog* dialog) {
        expect(dialog->windowTitle() == QStringLiteral("Properties of Main gate"), dialog->windowTitle());
        picture(dialog, "edit-node");
        type(field(dialog, "addressLineEdit"), QLatin1String(editedAddress));
        type(field(dialog, "nameLineEdit"), QLatin1String(editedName));
        picture(dialog, "edit-node-changed");
        press(dialog, QDialogButtonBox::Ok);
    });
    const kom::smart<const IPDeviceNode> camera = m_db.node(id).cast<const IPDeviceNode>();
    expect(!camera.null() && camera->name() == QLatin1String(editedName) &&
               camera->address() == QLatin1String(editedAddress),
           QStringLiteral("name and address are changed"));
    expect(newestLogCodes(m_db, 2) == QStringList({QStringLiteral("NRen"), QStringLiteral("NChg")}),
           QStringLiteral("the audit log holds the rename, then the change"));
    withDialog("actionProperties", [this](QDialog* dialog) {
        picture(dialog, "properties");
        press(dialog, QDialogButtonBox::Ok);
    });
}

void Robot::lookAround()
{
    const struct
    {
        const char* action;
        const char* picture;
    } windows[] = {
        {"actionProxy", "network-proxy"},
        {"actionEnvironments", "environments"},
        {"actionPreferences", "preferences"},
        {"actionAuditLog", "audit-log"},
        {"actionOverview", "overview"},
        {"actionRemove", "remove"},
        {"actionAbout", "about"},
    };
    const int nodes = int(m_db.summaries().size());
    for (const auto& window : windows)
        withDialog(window.action, [this, &window](QDialog* dialog) { picture(dialog, window.picture); });
    expect(int(m_db.summaries().size()) == nodes, QStringLiteral("looking changed nothing"));
    picture(&m_window, "main-window-after");
}

bool Robot::check(HostNodeDB& db)
{
    bool good = true;
    const auto expect = [&good](bool condition, const char* text) {
        say(QLatin1String(condition ? "ok      " : "NOT SO  ") + QLatin1String(text));
        good = good && condition;
    };
    const kom::smart<const IPDeviceNode> edited = db.node(idOf(db, editedName)).cast<const IPDeviceNode>();
    expect(!edited.null() && edited->address() == QLatin1String(editedAddress),
           "the edited camera has its new name and address");
    expect(!idOf(db, addedName).isEmpty(), "the added camera is there");
    QStringList texts;
    const std::vector<AuditRecord> records = db.auditLog().entries(0, 100, false);
    for (const AuditRecord& record : records)
        texts.append(record.code.toString() + QLatin1Char(' ') + record.entry->text());
    const int rename =
        int(texts.indexOf(QStringLiteral("NRen Changed name of device from Main gate to Main gate, north.")));
    expect(rename >= 0, "the audit log holds the rename");
    expect(rename >= 0 && texts.value(rename + 1).startsWith(QLatin1String("NChg")),
           "and right after it the change");
    return good;
}

} // namespace ko
