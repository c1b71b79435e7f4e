#include "WindowCommands.h"

#include "AddressChangesDialog.h"
#include "AuditLogDialog.h"
#include "BackToDialog.h"
#include "ConnectDialog.h"
#include "HistoryDialog.h"
#include "MainWindow.h"
#include "ManualKey.h"
#include "MomentWindow.h"
#include "NodeListView.h"
#include "PreferencesDialog.h"
#include "ScanFindings.h"
#include "WindowSize.h"
#include "database/HostNodeDB.h"
#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "discovery/Scanners.h"
#include "ko/dialogFlags.h"
#include "utils/WindowTitle.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTreeView>

namespace ko {

namespace WindowCommands {

namespace {

/// Returns whether it ends with a moment that is shown in a window beside the main window.
bool runHistory(MainWindow& window, const HistoryDialog::Scope& scope, QWidget* parent)
{
    HistoryDialog dialog(window.database(), scope, parent);
    dialog.exec();
    if (!dialog.whatWasPutBack().isEmpty()) {
        window.applyChanges();
        window.say(dialog.whatWasPutBack());
    }
    if (dialog.backTo())
        (new MomentWindow(window, *dialog.backTo()))->show();
    return dialog.backTo().has_value();
}

} // namespace

void connectToSite(MainWindow& window)
{
    ConnectDialog dialog(&window);
    if (dialog.exec() == QDialog::Accepted)
        window.openInstead(dialog.address());
}

void editPreferences(MainWindow& window)
{
    PreferencesDialog(window.database(), &window).exec();
}

void editProxy(MainWindow& window)
{
    NetworkProxyDialog(&window, dialogFlags(false)).exec();
}

void editEnvironments(MainWindow& window)
{
    EnvironmentDialog dialog(&window);
    dialog.exec();
}

void findDevices(MainWindow& window)
{
    ScanFindings findings(window.database());
    NodeOverviewDialog dialog(&window);
    QObject::connect(dialog.findChild<QTreeView*>(QStringLiteral("nodesTreeView")), &QTreeView::doubleClicked,
                     dialog.findChild<QAction*>(QStringLiteral("actionEdit")), &QAction::trigger);
    if (dialog.exec() != QDialog::Accepted) {
        const QString done = findings.ask(&window);
        window.applyChanges();
        if (!done.isEmpty())
            window.say(done); // no step of Undo: scans go on beside what the user does
        return;
    }
    window.applyChanges();
    window.list().selectNodes(dialog.selected()); // for what is to be done with them next
    window.list().setFocus();
}

void showAddressChanges(MainWindow& window)
{
    AddressChangesDialog(Scanners::of(window.database()).intake(), &window).exec();
}

void showAuditLog(MainWindow& window)
{
    AuditLogDialog dialog(window.database().auditLog(), &window);
    dialog.setHistory([&](qint64 changeSet) {
        if (runHistory(window, {{}, changeSet}, &dialog))
            dialog.reject();
    });
    dialog.exec();
}

void showHistory(MainWindow& window)
{
    runHistory(window, {}, &window);
}

void showHistoryOfSelected(MainWindow& window)
{
    runHistory(window, {window.list().selectedIds(), 0}, &window);
}

void showMoment(MainWindow& window)
{
    BackToDialog dialog(window.database(), &window);
    if (dialog.exec() == QDialog::Accepted && dialog.moment())
        (new MomentWindow(window, *dialog.moment()))->show();
}

void showDatabase(MainWindow& window)
{
    NodeDBViewer* viewer = new NodeDBViewer(&window);
    viewer->setWindowFlag(Qt::Window);
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    const auto showTitle = [viewer, file = QFileInfo(window.database().fileName()).fileName()] {
        viewer->setWindowTitle(MainWindow::tr("%1 - Node Database").arg(inWindowTitle(file)));
    };
    showTitle();
    // It has one of its own, which comes back in another language.
    QObject::connect(viewer, &QWidget::windowTitleChanged, viewer, showTitle);
    auto* table = viewer->findChild<QTableView*>();
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch); // the names
    resizeWithinScreen(*viewer, QSize(640, 520));
    // The viewer itself leaves its models behind.
    auto* sorted = qobject_cast<QSortFilterProxyModel*>(table->model());
    QObject::connect(viewer, &QObject::destroyed, sorted, &QObject::deleteLater);
    QObject::connect(viewer, &QObject::destroyed, sorted->sourceModel(), &QObject::deleteLater);
    viewer->show();
}

void showManual(MainWindow& window)
{
    window.findChild<ManualKey*>()->open(&window);
}

void about(MainWindow& window)
{
    QMessageBox::about(
        &window, MainWindow::tr("About"),
        MainWindow::tr("<h3>%1 %2</h3><p>Shows, adds, edits and removes the nodes of a video-surveillance "
                       "system.</p><p>Free software under the GNU LGPL 2.1 or later.</p><p>Qt %3</p>")
            .arg(QApplication::applicationDisplayName().toHtmlEscaped(), QLatin1String(KO_VERSION),
                 QLatin1String(qVersion())));
}

} // namespace WindowCommands

} // namespace ko
