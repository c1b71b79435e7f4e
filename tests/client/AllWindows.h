#ifndef TESTS_CLIENT_ALLWINDOWS_H
#define TESTS_CLIENT_ALLWINDOWS_H

#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"

#include "AddressChangesDialog.h"
#include "CheckReportDialog.h"
#include "HistoryLimitDialog.h"
#include "ImportReportDialog.h"
#include "MainWindow.h"
#include "ManualWindow.h"
#include "MomentWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "PutBackDialog.h"
#include "SavedSearches.h"
#include "SavedSearchesDialog.h"
#include "SharingDialog.h"
#include "SitePassphraseDialog.h"
#include "SiteSharing.h"
#include "database/StoredHistory.h"
#include "dialogs/GenericNodeViewer.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "ko/PropertyKeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QTabWidget>
#include <QTest>

namespace testsupport {

/// Opens every window of the client and of the library, one after the other, over a small database.
class AllWindows
{
public:
    typedef std::function<void(const QString& name, QWidget* window)> Look;

    AllWindows()
    {
        m_camera = m_host.add(ko::IPDeviceType, QStringLiteral("1"), QStringLiteral("10.0.0.1"));
        m_folder = m_host.add(ko::RecordingFolderType, QStringLiteral("2"));
        m_url = m_host.add(ko::UrlCameraType, QStringLiteral("3"), QStringLiteral("10.0.0.3"));
        m_otherUrl = m_host.add(ko::UrlCameraType, QStringLiteral("8"), QStringLiteral("10.0.0.8"));
        m_host.change(m_otherUrl, [](ko::Node* node) {
            node->setIntProperty(ko::PropertyKeys::Port, 8080);
            node->setStringProperty(ko::PropertyKeys::User, QStringLiteral("8"));
            node->setBoolProperty(ko::PropertyKeys::UseSSL, true);
        });
        m_host.change(m_camera, [](ko::Node* node) {
            node->setStringProperty(ko::PropertyKeys::FactoryIP, QStringLiteral("10_0_0_1"));
            node->setIntProperty(ko::PropertyKeys::RecordingStorageUsage, 2);
        });
        m_host.db()->flush();
    }

    void visit(const Look& look)
    {
        ko::MainWindow window(*m_host.db());
        window.resize(1100, 600);
        show(&window, QStringLiteral("main"), look);
        window.findChild<ko::NodeListView*>()->selectNodes({m_camera});
        visitDialogs(window, look);
        visitPutBacks(window, look);
        trigger(window, "actionOverview", [&](QDialog* overview) {
            const ModalAnswer answer([&](QDialog* dialog) {
                look(QStringLiteral("filter"), dialog);
                dialog->reject();
            });
            child<QAbstractButton>(overview, "filterButton")->click();
            QVERIFY(answer.fired());
        });
        visitEditors(window, look);
        visitOthers(window, look);
        visitRefusals(window, look);
    }

    HostFixture& host() { return m_host; }

    /// Letters for the keyboard and sizes come in turns of their own.
    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

private:
    static void show(QWidget* window, const QString& name, const Look& look)
    {
        window->show();
        settle();
        look(name, window);
    }

    static void trigger(ko::MainWindow& window, const char* action, const std::function<void(QDialog*)>& look)
    {
        const ModalAnswer answer([&look](QDialog* dialog) {
            settle();
            look(dialog);
            dialog->reject();
        });
        child<QAction>(&window, action)->trigger();
        QVERIFY2(answer.fired(), action);
    }

    void visitDialogs(ko::MainWindow& window, const Look& look)
    {
        for (const char* action :
             {"actionAdd", "actionRemove", "actionProperties", "actionCredentials", "actionRecording",
              "actionPreferences", "actionProxy", "actionEnvironments", "actionOverview",
              "actionAddressChanges", "actionAuditLog", "actionHistory", "actionNodeHistory", "actionBackTo",
              "actionFillIn", "actionConnect", "actionAbout"})
            trigger(window, action, [&](QDialog* dialog) { look(QString::fromLatin1(action), dialog); });
    }

    /// One that can be put back, and one of which nothing can.
    void visitPutBacks(ko::MainWindow& window, const Look& look)
    {
        const char* const models[] = {"4", "5"};
        for (const char* model : models) {
            m_host.change(m_camera, [model](ko::Node* node) {
                node->setStringProperty(ko::PropertyKeys::Model, QString::fromLatin1(model));
            });
            settle();
        }
        trigger(window, "actionUndo", [&](QDialog* dialog) { look(QStringLiteral("undo"), dialog); });
        const auto nothing = [](const ko::PutBack&) { return ko::PuttingBack::Outcome(); };
        ko::PutBackDialog none([] { return QStringLiteral("6"); }, ko::PutBack(),
                               ko::PutBackDialog::words(*m_host.db()), nothing, &window);
        show(&none, QStringLiteral("nothing to put back"), look);
        ko::PutBackDialog preview([] { return QStringLiteral("6"); }, ko::PutBack(),
                                  ko::PutBackDialog::words(*m_host.db()), nothing, &window,
                                  ko::PutBackDialog::Kind::Change);
        show(&preview, QStringLiteral("preview of nothing"), look);
        ko::HistoryLimitDialog limit({30, 0}, &window);
        show(&limit, QStringLiteral("history limit"), look);
        auto* moment = new ko::MomentWindow(window, *m_host.db()->history().row(1));
        const auto isRead = [moment] {
            return child<QAbstractButton>(moment, "putBackAllButton")->isEnabled();
        };
        QVERIFY(QTest::qWaitFor(isRead, Patience));
        show(moment, QStringLiteral("moment"), look);
        delete moment;
    }

    void visitEditors(ko::MainWindow& window, const Look& look)
    {
        for (const QStringList& ids : {QStringList(m_camera), QStringList(m_folder), QStringList(m_url),
                                       QStringList({m_url, m_otherUrl})}) {
            window.findChild<ko::NodeListView*>()->selectNodes(ids);
            trigger(window, "actionEdit", [&](QDialog* dialog) {
                auto* tabs = dialog->findChild<QTabWidget*>();
                for (int i = 0; i < tabs->count(); ++i) {
                    tabs->setCurrentIndex(i);
                    settle();
                    look(QStringLiteral("editor of %1, page %2").arg(ids.join(QLatin1String(" and "))).arg(i),
                         dialog);
                }
            });
        }
    }

    void visitOthers(ko::MainWindow& window, const Look& look)
    {
        {
            ko::SiteSharing sharing(*m_host.db(), QStringLiteral("postgresql://7@/8?host=/nonexistent"));
            const auto isSaid = [&sharing] { return !sharing.state().text.isEmpty(); };
            QVERIFY(QTest::qWaitFor(isSaid, Patience));
            ko::SharingDialog shared(*m_host.db(), sharing, &window);
            show(&shared, QStringLiteral("sharing"), look);
            using Kind = ko::SitePassphraseDialog::Kind;
            for (const Kind kind : {Kind::Open, Kind::Make, Kind::Change}) {
                ko::SitePassphraseDialog passphrase(kind, sharing.address(), QStringLiteral("9"), &window);
                show(&passphrase, QStringLiteral("passphrase %1").arg(int(kind)), look);
            }
        }
        const auto nodeOf = [this](const QString& id) { return m_host.db()->summary(id); };
        auto* report = new ko::CheckReportDialog({{m_camera, ko::CameraState()}}, nodeOf, 2, true, &window);
        show(report, QStringLiteral("check report"), look);
        delete report;
        ko::CameraSurvey::ImportResult imported;
        imported.ignoredColumns.append(QStringLiteral("9"));
        ko::ImportReportDialog import(imported, &window);
        show(&import, QStringLiteral("import report"), look);
        ko::GenericNodeViewer viewer(m_camera, &window);
        show(&viewer, QStringLiteral("generic viewer"), look);
        ko::NodeDBViewer database(&window);
        database.setWindowFlag(Qt::Window);
        show(&database, QStringLiteral("database viewer"), look);
        ko::RecordingFolderAssignmentDialog recordings(m_camera, &window);
        show(&recordings, QStringLiteral("recordings"), look);
        child<QAbstractButton>(&recordings, "moreButton")->click();
        show(&recordings, QStringLiteral("recordings, all"), look);
        ko::RecordingFolderMassAssignmentDialog many(&window, {m_camera, m_url}, Qt::Dialog);
        show(&many, QStringLiteral("recordings of many"), look);
        ko::RecordingTransponderCustomSettingsDialog preview(m_camera, &window);
        show(&preview, QStringLiteral("remote preview"), look);
        ko::SavedSearches::save({QStringLiteral("7"), QStringLiteral("8"), ko::AllNodeTypes});
        ko::SavedSearchesDialog searches(&window);
        show(&searches, QStringLiteral("saved searches"), look);
        ko::ManualWindow manual;
        show(&manual, QStringLiteral("manual"), look);
    }

    /// What is said of a camera that a check has found to want the user's decision.
    void visitRefusals(ko::MainWindow& window, const Look& look)
    {
        const struct
        {
            ko::DeviceReport::State state;
            const char* action;
        } refusals[] = {
            {ko::DeviceReport::OtherDevice, "actionAcceptDevices"},
            {ko::DeviceReport::ClearPassword, "actionAllowClearPasswords"},
        };
        window.list().selectNodes({m_camera});
        for (const auto& refusal : refusals) {
            ko::CameraState state;
            state.state = refusal.state;
            window.findChild<ko::NodeListModel*>()->setStates({{m_camera, state}});
            for (const char* action : {refusal.action, "actionProperties"})
                trigger(window, action, [&](QDialog* dialog) {
                    look(QStringLiteral("%1, %2").arg(QLatin1String(refusal.action), QLatin1String(action)),
                         dialog);
                });
        }
    }

    HostFixture m_host;
    QString m_camera;
    QString m_folder;
    QString m_url;
    QString m_otherUrl;
};

} // namespace testsupport

#endif
