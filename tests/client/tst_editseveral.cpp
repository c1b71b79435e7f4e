#include "WindowFixture.h"
#include "host/StoreTesting.h"
#include "support/Answers.h"
#include "support/TestMain.h"

#include "ChangePreview.h"
#include "database/StoredHistory.h"
#include "ko/PropertyKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableView>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;
using testsupport::press;

namespace {

/// As it is typed.
void type(QDialog* dialog, const char* field, const QString& text)
{
    auto* edit = child<QLineEdit>(dialog, field);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

} // namespace

/// Several nodes of one type, edited at once.
class tst_EditSeveral : public QObject, private testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void onlyWhatIsTouchedChanges();
    void whatDiffersIsShownAsDifferent();
    void whatIsTheSameIsShown();
    void whatIsEmptiedIsEmptyInAll();
    void boxesThatDiffer();
    void choicesAndOptions();
    void passwords();
    void okWithoutATouch();
    void cancelLeavesAll();
    void ofOneNodeAlone();
    void ofOneTypeAlone();
    void otherTypes();
    void removedMeanwhile();
    void shownFirst();
    void undone();

private:
    kom::smart<const IPDeviceNode> device(int i) const
    {
        return m_host->db()->node(m_cameras.at(i)).cast<const IPDeviceNode>();
    }
    void change(int i, const std::function<void(IPDeviceNode&)>& change)
    {
        m_host->change(m_cameras.at(i), [&](Node* node) { change(dynamic_cast<IPDeviceNode&>(*node)); });
    }
    QVector<ChangeSet> newSets() { return m_host->db()->history().changeSets(m_last, 100); }
    void settle();
    void edit(const QVector<Answers::Action>& actions);

    QStringList m_cameras;
    qint64 m_last = 0;
};

void tst_EditSeveral::init()
{
    openWindow();
    m_host->add(IPDeviceType, "Tower", "10.0.0.3");
    m_cameras = m_host->db()->nodeIdList(IPDeviceType).mid(0, 3);
    QCOMPARE(int(m_cameras.size()), 3);
    for (int i = 0; i < m_cameras.size(); ++i)
        change(i, [i](IPDeviceNode& camera) {
            camera.setUser(QString("user %1").arg(i), QString("password %1").arg(i));
            camera.setIntProperty(PropertyKeys::Port, 8000 + i);
        });
    settle();
    m_window->applyChanges();
}

void tst_EditSeveral::cleanup()
{
    ChangePreview::setWanted(false);
    closeWindow();
}

/// What is done from here on is looked at.
void tst_EditSeveral::settle()
{
    QVERIFY(m_host->db()->flush());
    m_last = m_host->db()->history().changeSets(0, 1000).constLast().number;
}

void tst_EditSeveral::edit(const QVector<Answers::Action>& actions)
{
    m_view->selectNodes(m_cameras);
    const Answers answers(actions);
    trigger("actionEdit");
    QCOMPARE(int(answers.opened().size()), int(actions.size()));
    QCOMPARE(answers.opened().value(0), QString("EditSeveralDialog"));
}

void tst_EditSeveral::onlyWhatIsTouchedChanges()
{
    edit({[](QDialog* dialog) {
        child<QComboBox>(dialog, "bandwidthComboBox")->setCurrentIndex(0);
        child<QSpinBox>(dialog, "portSpinBox")->setValue(554);
        confirm(dialog);
    }});
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(int(sets.size()), 1);
    QCOMPARE(int(sets.first().nodes.size()), 3);
    QCOMPARE(int(sets.first().audit.size()), 3);
    for (const NodeChange& change : sets.first().nodes) {
        QStringList keys;
        for (const PropertyList::Entry& entry : change.after->properties)
            keys.append(entry.name);
        keys.sort();
        QVERIFY2(keys == QStringList({"Bandwidth", "Port"}) || keys == QStringList({"Port"}),
                 qPrintable(keys.join(' ')));
    }
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(device(i)->port(), 554);
        QCOMPARE(device(i)->user(1), QString("user %1").arg(i));
        QCOMPARE(device(i)->password(1), QString("password %1").arg(i));
    }
    QVERIFY(m_window->statusBar()->currentMessage().contains("3 node"));
}

void tst_EditSeveral::whatDiffersIsShownAsDifferent()
{
    change(1, [](IPDeviceNode& camera) { camera.setBoolProperty(PropertyKeys::UseSSL, true); });
    edit({[](QDialog* dialog) {
        const auto* user = child<QLineEdit>(dialog, "usernameLineEdit");
        QCOMPARE(user->text(), QString());
        QCOMPARE(user->placeholderText(), QString("(different)"));
        QCOMPARE(child<QLineEdit>(dialog, "passwordLineEdit")->placeholderText(), QString("(different)"));
        QCOMPARE(child<QSpinBox>(dialog, "portSpinBox")->text(), QString("(different)"));
        QCOMPARE(child<QCheckBox>(dialog, "sslCheckBox")->checkState(), Qt::PartiallyChecked);
        confirm(dialog);
    }});
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(device(i)->port(), 8000 + i);
        QCOMPARE(device(i)->useSSL(), i == 1);
    }
}

void tst_EditSeveral::whatIsTheSameIsShown()
{
    for (int i = 0; i < 3; ++i)
        change(i, [](IPDeviceNode& camera) { camera.setUser("all", "the same"); });
    edit({[](QDialog* dialog) {
        QCOMPARE(child<QLineEdit>(dialog, "usernameLineEdit")->text(), QString("all"));
        QCOMPARE(child<QLineEdit>(dialog, "passwordLineEdit")->text(), QString("the same"));
        QCOMPARE(child<QLineEdit>(dialog, "passwordLineEdit")->echoMode(), QLineEdit::Password);
        press(dialog, QDialogButtonBox::Cancel);
    }});
}

void tst_EditSeveral::whatIsEmptiedIsEmptyInAll()
{
    edit({[](QDialog* dialog) {
        type(dialog, "usernameLineEdit", "x");
        QTest::keyClick(child<QLineEdit>(dialog, "usernameLineEdit"), Qt::Key_Backspace);
        QCOMPARE(child<QLineEdit>(dialog, "usernameLineEdit")->placeholderText(), QString("(empty)"));
        confirm(dialog);
    }});
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(device(i)->user(1), QString());
        QCOMPARE(device(i)->password(1), QString("password %1").arg(i));
    }
}

void tst_EditSeveral::boxesThatDiffer()
{
    change(1, [](IPDeviceNode& camera) { camera.setBoolProperty(PropertyKeys::UseSSL, true); });
    edit({[](QDialog* dialog) {
        child<QCheckBox>(dialog, "sslCheckBox")->setCheckState(Qt::Unchecked);
        confirm(dialog);
    }});
    QVERIFY(!device(1)->useSSL());
    edit({[](QDialog* dialog) {
        child<QCheckBox>(dialog, "sslCheckBox")->click();
        confirm(dialog);
    }});
    for (int i = 0; i < 3; ++i)
        QVERIFY(device(i)->useSSL());
}

void tst_EditSeveral::choicesAndOptions()
{
    change(2, [](IPDeviceNode& camera) {
        const bool isSmooth = camera.intProperty(PropertyKeys::SmoothDisplay, 0) == Qt::Checked;
        camera.setIntProperty(PropertyKeys::SmoothDisplay, isSmooth ? Qt::Unchecked : Qt::Checked);
        camera.setIntProperty(PropertyKeys::Bandwidth, SlowRemote);
    });
    edit({[](QDialog* dialog) {
        auto* bandwidth = child<QComboBox>(dialog, "bandwidthComboBox");
        QCOMPARE(bandwidth->currentIndex(), -1);
        bandwidth->setCurrentIndex(FastRemote);
        auto* smooth = child<QRadioButton>(dialog, "smoothDisplayRadioButton");
        QVERIFY(!smooth->isChecked());
        QVERIFY(!child<QRadioButton>(dialog, "minimumDelayRadioButton")->isChecked());
        smooth->click();
        confirm(dialog);
    }});
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(device(i)->bandwidth(), int(FastRemote));
        QCOMPARE(device(i)->intProperty(PropertyKeys::SmoothDisplay, -1), int(Qt::Checked));
    }
}

void tst_EditSeveral::passwords()
{
    edit({[](QDialog* dialog) {
        type(dialog, "passwordLineEdit", "new secret");
        confirm(dialog);
    }});
    m_host->db()->flush();
    QVERIFY(!testsupport::stateOf(m_host->fileName()).contains("new secret")); // sealed
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(device(i)->password(1), QString("new secret"));
        QCOMPARE(device(i)->user(1), QString("user %1").arg(i));
    }
}

void tst_EditSeveral::okWithoutATouch()
{
    const QString before = testsupport::stateOf(m_host->fileName());
    edit({confirm});
    QVERIFY(m_host->db()->flush());
    QCOMPARE(testsupport::stateOf(m_host->fileName()), before);
}

void tst_EditSeveral::cancelLeavesAll()
{
    edit({[](QDialog* dialog) {
        type(dialog, "usernameLineEdit", "nobody");
        press(dialog, QDialogButtonBox::Cancel);
    }});
    QCOMPARE(device(0)->user(1), QString("user 0"));
    QVERIFY(newSets().isEmpty());
}

/// What tells the nodes apart, and what asks or starts something for one of them.
void tst_EditSeveral::ofOneNodeAlone()
{
    edit({[](QDialog* dialog) {
        for (const char* field : {"nameLineEdit", "addressLineEdit", "macLineEdit"})
            QVERIFY2(!child<QLineEdit>(dialog, field)->isEnabled(), field);
        QVERIFY(!dialog->findChild<QWidget*>("recordings"));
        QVERIFY(dialog->focusWidget() && dialog->focusWidget()->isEnabled());
        press(dialog, QDialogButtonBox::Cancel);
    }});
}

void tst_EditSeveral::ofOneTypeAlone()
{
    m_view->selectNodes({m_cameras.first(), m_host->db()->nodeIdList(RecordingFolderType).value(0)});
    trigger("actionEdit");
    QVERIFY(m_window->statusBar()->currentMessage().contains("one type"));
}

void tst_EditSeveral::otherTypes()
{
    m_cameras =
        QStringList({m_host->add(RecordingFolderType, "North"), m_host->add(RecordingFolderType, "South")});
    m_window->applyChanges();
    edit({[](QDialog* dialog) {
        type(dialog, "User", "archive");
        confirm(dialog);
    }});
    for (const QString& id : std::as_const(m_cameras))
        QCOMPARE(m_host->db()->node(id)->stringProperty("User", QString()), QString("archive"));
}

void tst_EditSeveral::removedMeanwhile()
{
    edit({[this](QDialog* dialog) {
        type(dialog, "usernameLineEdit", "all");
        m_host->db()->removeNode(m_cameras.at(1));
        confirm(dialog);
    }});
    QCOMPARE(device(0)->user(1), QString("all"));
    QVERIFY(device(1).null());
    QCOMPARE(device(2)->user(1), QString("all"));
}

void tst_EditSeveral::shownFirst()
{
    ChangePreview::setWanted(true);
    int lines = 0;
    edit({[](QDialog* dialog) {
              type(dialog, "usernameLineEdit", "all");
              confirm(dialog);
          },
          [&](QDialog* preview) {
              lines = child<QTableView>(preview, "linesTableView")->model()->rowCount();
              QCOMPARE(device(0)->user(1), QString("user 0"));
              confirm(preview);
          }});
    QCOMPARE(lines, 3);
    QCOMPARE(device(0)->user(1), QString("all"));
}

void tst_EditSeveral::undone()
{
    const QString before = testsupport::stateOf(m_host->fileName());
    edit({[](QDialog* dialog) {
        type(dialog, "usernameLineEdit", "all");
        child<QSpinBox>(dialog, "portSpinBox")->setValue(80);
        confirm(dialog);
    }});
    QTest::qWait(1);
    QCoreApplication::processEvents();
    const Answers answers({confirm});
    trigger("actionUndo");
    QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    QCOMPARE(testsupport::stateOf(m_host->fileName()), before);
}

KO_TEST_MAIN(tst_EditSeveral)
#include "tst_editseveral.moc"
