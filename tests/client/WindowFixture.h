#ifndef TESTS_CLIENT_WINDOWFIXTURE_H
#define TESTS_CLIENT_WINDOWFIXTURE_H

#include "support/HostFixture.h"
#include "support/ModalAnswer.h"

#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"

#include <QAction>
#include <QTest>

#include <algorithm>

namespace testsupport {

/// The main window over five nodes: two cameras "Gate north" and "Gate south", the URL camera "Yard", the
/// folder "Archive" and the view "Overview".
class WindowFixture
{
protected:
    void openWindow()
    {
        m_host = std::make_unique<HostFixture>();
        m_host->add(ko::IPDeviceType, QStringLiteral("Gate north"), QStringLiteral("10.0.0.1"));
        m_host->add(ko::IPDeviceType, QStringLiteral("Gate south"), QStringLiteral("10.0.0.2"));
        m_host->add(ko::UrlCameraType, QStringLiteral("Yard"), QStringLiteral("10.0.1.1"));
        m_host->add(ko::RecordingFolderType, QStringLiteral("Archive"));
        m_host->add(ko::ViewType, QStringLiteral("Overview"));
        QVERIFY(m_host->db()->flush());
        m_window = std::make_unique<ko::MainWindow>(*m_host->db());
        m_window->resize(900, 500);
        m_window->show();
        m_view = m_window->findChild<ko::NodeListView*>();
    }

    void closeWindow()
    {
        m_window.reset();
        m_host.reset();
    }

    void trigger(const char* action) { child<QAction>(m_window.get(), action)->trigger(); }

    QString idOf(const QString& name) const
    {
        const QVector<ko::NodeSummary> nodes = m_host->db()->summaries();
        const auto found = std::find_if(nodes.begin(), nodes.end(),
                                        [&name](const ko::NodeSummary& node) { return node.name == name; });
        return found == nodes.end() ? QString() : found->id;
    }

    void select(const QStringList& names)
    {
        QStringList ids;
        const QStringList all = m_host->db()->nodeIdList(ko::AllNodeTypes);
        for (const QString& id : all) {
            if (names.contains(m_host->db()->node(id)->name()))
                ids.append(id);
        }
        m_view->selectNodes(ids);
        QCOMPARE(m_view->selectedIds().size(), ids.size());
    }

    std::unique_ptr<HostFixture> m_host;
    std::unique_ptr<ko::MainWindow> m_window;
    ko::NodeListView* m_view = nullptr;
};

} // namespace testsupport

#endif
