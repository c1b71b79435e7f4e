#ifndef TESTS_JOURNEYS_MONKEY_H
#define TESTS_JOURNEYS_MONKEY_H

#include "journeys/Desk.h"

#include "database/StoredHistory.h"
#include "history/UndoStack.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "kogen/Property.h"

#include <QFileDialog>
#include <QRandomGenerator>
#include <QTimer>

#include <functional>

namespace testsupport {

/// Everything that a user could miss, one thing to a line.
inline QStringList contentOf(ko::HostNodeDB& db)
{
    QStringList lines;
    const QVector<ko::NodeSummary> nodes = db.summaries();
    for (const ko::NodeSummary& summary : nodes) {
        const kom::smart<const ko::Node> node = db.node(summary.id);
        const QString start = summary.id + ' ';
        lines.append(start + QString::number(summary.type) + ' ' + node->name());
        for (const auto& property : node->properties()) {
            if (!property.first.contains("Password")) // sealed anew each time
                lines.append(start + property.first + '=' + property.second->value().toString());
        }
        if (const auto device = ko::deviceNode(summary.id); !device.null())
            lines.append(start + "password=" + device->password(0));
        for (const auto relation : {ko::RecordingFolderRelation, ko::RecordingTransponderRelation})
            lines.append(start + db.relatedNodes(summary.id, relation).join(','));
    }
    const ko::Environments::List environments = db.environments().getList();
    for (const ko::Environments::List::value_type& environment : environments)
        lines.append("environment " + environment.first + ' ' + environment.second);
    lines.append("settings " + db.activeEnvironment() + ' ' + db.globalRecordingFolderPath() + ' ' +
                 db.defaultRecordingTransponderIP() + ' ' + QString::number(db.bandwidth()) + ' ' +
                 db.globalProxy().proxyAddress());
    lines.sort();
    return lines;
}

/// What is in \a a and not in \a b.
inline QStringList without(QStringList a, const QStringList& b)
{
    for (const QString& line : b)
        a.removeOne(line);
    return a;
}

/// Hits keys and clicks wherever something can be hit, one event at a time and also while a dialog is open.
class Monkey : public QObject
{
public:
    /// \a between is called before each event, with how many there were.
    Monkey(ko::MainWindow& window, quint32 seed, int events, std::function<void(int)> between = {})
        : m_window(window)
        , m_list(*window.findChild<ko::NodeListView*>())
        , m_random(seed)
        , m_events(events)
        , m_left(events)
        , m_between(std::move(between))
    {
    }

    void run()
    {
        act();
        while (m_left > 0 || QApplication::activeModalWidget())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    int dialogs() const { return int(m_dialogs.size()); }

private:
    /// The next one is due before this one opens a dialog, in which it then takes place.
    void act()
    {
        QTimer::singleShot(0, this, [this] { act(); });
        if (m_between && m_left > 0)
            m_between(m_events - m_left);
        QWidget* modal = QApplication::activeModalWidget();
        if (modal)
            m_dialogs.insert(modal->objectName());
        if (QWidget* popup = QApplication::activePopupWidget())
            QTest::keyClick(popup, pick({Qt::Key_Escape, Qt::Key_Down, Qt::Key_Return}));
        else if (modal && (m_left <= 0 || qobject_cast<QFileDialog*>(modal)))
            leave(qobject_cast<QDialog*>(modal));
        else if (m_left > 0)
            hit(modal);
        --m_left;
    }

    void leave(QDialog* dialog)
    {
        if (dialog)
            dialog->reject();
    }

    void hit(QWidget* modal)
    {
        const int what = m_random.bounded(100);
        if (!modal && what < 30)
            command();
        else if (what < 55)
            click(modal ? modal : &m_window);
        else if (what < 80)
            Desk::type(QString(QChar('0' + m_random.bounded(75))));
        else
            Desk::key(pick({Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space,
                            Qt::Key_Down, Qt::Key_Up, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Home}),
                      pick({Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier}));
    }

    /// Those that stay in this program.
    void command()
    {
        const char* const actions[] = {"actionAdd",          "actionEdit",        "actionRemove",
                                       "actionProperties",   "actionCredentials", "actionRecording",
                                       "actionDuplicate",    "actionPreferences", "actionProxy",
                                       "actionEnvironments", "actionUndo",        "actionRedo",
                                       "actionHistory",      "actionAuditLog",    "actionCopyRows"};
        m_list.selectAll();
        if (m_random.bounded(3) > 0 && m_list.model()->rowCount() > 0)
            m_list.selectNodes({m_list.model()
                                    ->index(m_random.bounded(m_list.model()->rowCount()), 0)
                                    .data(ko::NodeListModel::NodeIdRole)
                                    .toString()});
        child<QAction>(&m_window, actions[m_random.bounded(int(std::size(actions)))])->trigger();
    }

    void click(QWidget* window)
    {
        QList<QWidget*> targets;
        const QList<QWidget*> all = window->findChildren<QWidget*>();
        for (QWidget* each : all) {
            if (each->isVisible() && each->isEnabled() && each->focusPolicy() != Qt::NoFocus &&
                each->window() == window)
                targets.append(each);
        }
        if (targets.isEmpty())
            return;
        QWidget* target = targets.at(m_random.bounded(int(targets.size())));
        if (qobject_cast<QAbstractButton*>(target) && target->objectName() == "browseButton")
            return; // whatever files this machine has
        QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(8, target->height() / 2));
    }

    template <class T>
    T pick(std::initializer_list<T> choices)
    {
        return *(choices.begin() + m_random.bounded(int(choices.size())));
    }

    ko::MainWindow& m_window;
    ko::NodeListView& m_list;
    QRandomGenerator m_random;
    const int m_events;
    int m_left;
    const std::function<void(int)> m_between;
    QSet<QString> m_dialogs;
};

/// \a usual, or as many as somebody wants.
inline int eventsToSend(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("KO_MONKEY_EVENTS");
    return wanted > 0 ? wanted : usual;
}

/// Undoes all of \a steps, as the window would. Returns how many there were, or says what could not be
/// undone.
inline int undoAll(ko::HostNodeDB& db, ko::UndoStack& steps, QString* problem)
{
    int undone = 0;
    for (; !steps.isEmpty(ko::UndoStack::Undo); ++undone) {
        const QString title = steps.title(ko::UndoStack::Undo);
        const std::optional<ko::ChangeSet> set = db.history().changeSet(steps.newest(ko::UndoStack::Undo));
        const std::optional<ko::PutBack> preview =
            set ? ko::PuttingBack::preview(db, ko::Alterations::of(*set)) : std::nullopt;
        // What a dialog makes while it is open, and takes away when it is cancelled, is not a step.
        if (!preview || preview->chosen().isEmpty() ||
            steps.apply(ko::UndoStack::Undo, *preview).done.isEmpty()) {
            *problem = title;
            break;
        }
        db.flush();
    }
    return undone;
}

} // namespace testsupport

#endif
