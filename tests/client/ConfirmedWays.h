#ifndef TESTS_CLIENT_CONFIRMEDWAYS_H
#define TESTS_CLIENT_CONFIRMEDWAYS_H

#include "WindowFixture.h"
#include "host/StoreTesting.h"
#include "support/Answers.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

Q_DECLARE_METATYPE(testsupport::Answers::Action)
Q_DECLARE_METATYPE(QVector<testsupport::Answers::Action>)
Q_DECLARE_METATYPE(ko::Purpose)

namespace testsupport {

/// All ways in which a user changes something in the windows: what is selected, the action, and how the
/// dialogs are answered.
class ConfirmedWays : public WindowFixture
{
public:
    typedef QVector<Answers::Action> Actions;

protected:
    static void enter(QDialog* dialog, const char* field, const char* text)
    {
        auto* edit = child<QLineEdit>(dialog, field);
        edit->setText(QLatin1String(text));
        emit edit->editingFinished();
    }

    static void check(QDialog* dialog, const char* button)
    {
        child<QAbstractButton>(dialog, button)->click();
    }

    /// The window over nodes with all that the ways need.
    void openWindowForAll()
    {
        using namespace ko;
        openWindow();
        const QString archive = m_host->db()->nodeIdList(RecordingFolderType).value(0);
        const QStringList cameras = m_host->db()->nodeIdList(IPDeviceType);
        m_host->db()->addNodeRelation(cameras.value(0), archive, RecordingFolderRelation);
        for (int i = 0; i < cameras.size(); ++i)
            m_host->change(cameras.at(i), [i](Node* node) {
                node->setStringProperty("FactoryIP", QString("10_1_2_%1").arg(i));
            });
        m_host->db()->setGlobalRecordingFolderPath("/recordings");
    }

    /// The rows of a test.
    static void addWays()
    {
        using namespace ko;
        QTest::addColumn<QStringList>("selected");
        QTest::addColumn<QString>("action");
        QTest::addColumn<Actions>("answers");
        QTest::addColumn<Purpose>("purpose");
        const QStringList none;
        const QStringList gate = {"Gate north"};
        const QStringList gates = {"Gate north", "Gate south"};
        const auto row = [](const char* name, const QStringList& selected, const char* action,
                            Purpose purpose, const Actions& answers) {
            QTest::newRow(name) << selected << QString(action) << answers << purpose;
        };
        row("a page, OK", gate, "actionEdit", Purpose::Edit, {[](QDialog* dialog) {
                enter(dialog, "addressLineEdit", "10.0.0.77");
                confirm(dialog);
            }});
        row("two pages, Apply", gate, "actionEdit", Purpose::Edit, {[](QDialog* dialog) {
                enter(dialog, "usernameLineEdit", "admin");
                enter(dialog, "nameLineEdit", "Main gate");
                press(dialog, QDialogButtonBox::Apply);
                cancel(dialog);
            }});
        row("add", none, "actionAdd", Purpose::Add, {[](QDialog* dialog) {
                enter(dialog, "nameLineEdit", "New");
                enter(dialog, "addressLineEdit", "10.0.0.78");
                confirm(dialog);
            }});
        row("duplicate", gate, "actionDuplicate", Purpose::Add, {[](QDialog* dialog) {
                enter(dialog, "addressLineEdit", "10.0.0.79");
                confirm(dialog);
            }});
        row("remove two, with what belongs to them", gates, "actionRemove", Purpose::Remove,
            {[](QDialog* dialog) {
                auto* box = qobject_cast<QMessageBox*>(dialog);
                const auto buttons = box->buttons();
                for (QAbstractButton* button : buttons) {
                    if (box->buttonRole(button) != QMessageBox::RejectRole)
                        return button->click();
                }
            }});
        row("credentials of two", gates, "actionCredentials", Purpose::Credentials, {[](QDialog* dialog) {
                enter(dialog, "userNameLineEdit", "admin");
                enter(dialog, "passWordLineEdit", "p@ss");
                dialog->accept();
            }});
        row("recordings of two", gates, "actionRecording", Purpose::Recording, {[](QDialog* dialog) {
                check(dialog, "specificFileServerPathRadioButton");
                enter(dialog, "pathLineEdit", "//server/share");
                confirm(dialog);
            }});
        const Answers::Action onTheServer = [](QDialog* dialog) {
            check(dialog, "cameraFileserverPathRadioButton");
            enter(dialog, "fileServerPathLineEdit", "//server/gate");
            confirm(dialog);
        };
        row("recordings of one", gate, "actionRecording", Purpose::Recording, {onTheServer});
        const Answers::Action changeStorage = [](QDialog* dialog) {
            check(dialog, "changePushButton");
            cancel(dialog); // what the other dialog confirmed stays
        };
        row("Change... on a page", gate, "actionEdit", Purpose::Recording, {changeStorage, onTheServer});
        const Answers::Action preview = [](QDialog* dialog) {
            check(dialog, "recordingTransponderCheckBox");
            check(dialog, "recordingTransponderPushButton");
            confirm(dialog);
        };
        const Answers::Action previewSettings = [](QDialog* dialog) {
            check(dialog, "connectionDataCustomCheckBox");
            enter(dialog, "connectionDataAddressLineEdit", "10.0.0.80");
            confirm(dialog);
        };
        row("remote preview", gate, "actionRecording", Purpose::Recording, {preview, previewSettings});
        row("remote preview from a page", gate, "actionEdit", Purpose::Recording,
            {changeStorage, preview, previewSettings});
        row("the global proxy", none, "actionProxy", Purpose::Proxy, {[](QDialog* dialog) {
                enter(dialog, "proxyLineEdit", "proxy.example");
                confirm(dialog);
            }});
        row("a new environment", none, "actionEnvironments", Purpose::Environments, {[](QDialog* dialog) {
                check(dialog, "addPushButton");
                confirm(dialog);
            }});
        row("preferences", none, "actionPreferences", Purpose::Settings, {[](QDialog* dialog) {
                enter(dialog, "pathLineEdit", "//server/all");
                enter(dialog, "previewLineEdit", "10.0.0.81");
                confirm(dialog);
            }});
    }

    /// Does what the row says. False if other dialogs came than it knows.
    bool takeWay()
    {
        QFETCH(const QStringList, selected);
        QFETCH(const QString, action);
        QFETCH(const ConfirmedWays::Actions, answers);
        select(selected);
        const Answers given(answers);
        trigger(qPrintable(action));
        return given.opened().size() == answers.size();
    }
};

} // namespace testsupport

#endif
