#include "WindowFixture.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "database/NodeEditors.h"
#include "ko/OutsideText.h"
#include "store/NodeStore.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace ko;
using namespace testsupport;

/// The editor of a node that somebody else changes at the same time.
class tst_ChangedMeanwhile : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void othersAreNamed();
    void removalIsToldBeforeOk();
    void editorsAtOtherDesksAreNamed();
    void openOnlyAsLongAsItIs();

private:
    void edit(const std::function<void(QDialog*, QLabel*)>& work);
    void storeAsAnna(const std::optional<NodeValues>& after);
};

void tst_ChangedMeanwhile::edit(const std::function<void(QDialog*, QLabel*)>& work)
{
    select({QStringLiteral("Gate north")});
    const ModalAnswer answer([&work](QDialog* dialog) {
        work(dialog, child<QLabel>(dialog, "changedMeanwhileLabel"));
        dialog->reject();
    });
    trigger("actionEdit");
    QVERIFY(answer.fired());
}

/// As another program on the file does.
void tst_ChangedMeanwhile::storeAsAnna(const std::optional<NodeValues>& after)
{
    StoreError error;
    const auto store = NodeStore::open(m_host->fileName(), &error, NodeStore::Check::First);
    QVERIFY(store);
    const QString id = idOf(QStringLiteral("Gate north"));
    ChangeSet set;
    set.cause = Cause::now(after ? Purpose::Edit : Purpose::Remove);
    set.cause.user = QStringLiteral("anna");
    set.cause.station = QStringLiteral("gatehouse");
    NodeChange change;
    change.id = id;
    change.type = IPDeviceType;
    change.before = NodeValues{QStringLiteral("Gate north"), after ? PropertyList() : *store->properties(id)};
    change.after = after;
    set.nodes.append(change);
    const qint64 revision = store->load().revision;
    store->commit(
        revision, [](const NodeID&) { return false; },
        [&set](const Delta&) {
            return NodeStore::Batch{{set}, {}};
        });
}

void tst_ChangedMeanwhile::othersAreNamed()
{
    edit([this](QDialog* dialog, QLabel* label) {
        QVERIFY(!label->isVisible());
        auto* apply = child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply);
        child<QLineEdit>(dialog, "addressLineEdit")->setText(QStringLiteral("10.0.0.7"));
        QTest::mouseClick(apply, Qt::LeftButton);
        QTest::qWait(50); // for what does not come: the user's own change is none of another one
        QVERIFY(!label->isVisible());
        NodeValues values{QStringLiteral("Gate north"), {}};
        values.properties.set(QStringLiteral("Model"), QStringLiteral("new"));
        storeAsAnna(values);
        KO_TRY_VERIFY(label->isVisible());
        QCOMPARE(label->text(), QStringLiteral("Changed by anna at gatehouse meanwhile."));
        QCOMPARE(child<QLineEdit>(dialog, "addressLineEdit")->text(), QStringLiteral("10.0.0.7"));
    });
}

void tst_ChangedMeanwhile::removalIsToldBeforeOk()
{
    edit([this](QDialog* dialog, QLabel* label) {
        child<QLineEdit>(dialog, "addressLineEdit")->setText(QStringLiteral("10.0.0.8"));
        storeAsAnna(std::nullopt);
        KO_TRY_VERIFY(label->isVisible());
        QVERIFY2(label->text().startsWith(QLatin1String("Removed by anna at gatehouse.")),
                 qPrintable(label->text()));
    });
    QVERIFY(idOf(QStringLiteral("Gate north")).isEmpty());
}

void tst_ChangedMeanwhile::editorsAtOtherDesksAreNamed()
{
    NodeEditors& editors = m_host->db()->editors();
    const QString id = idOf(QStringLiteral("Gate north"));
    const NodeEditor anna{id, QStringLiteral("anna"), QStringLiteral("gatehouse")};
    const NodeEditor odd{id, QStringLiteral("<b>x\n"), QStringLiteral("%1")};
    editors.setOthers({anna, {idOf(QStringLiteral("Gate south")), anna.user, anna.station}});
    edit([&](QDialog*, QLabel* label) {
        QCOMPARE(label->text(), QStringLiteral("Also being edited now by anna at gatehouse."));
        QVERIFY(label->isVisible());
        editors.setOthers({anna, anna, odd});
        QCOMPARE(label->text(), QStringLiteral("Also being edited now by anna at gatehouse, %1 at %2.")
                                    .arg(OutsideText::visible(odd.user), OutsideText::visible(odd.station)));
        NodeValues values{QStringLiteral("Gate north"), {}};
        storeAsAnna(values);
        KO_TRY_VERIFY(
            label->text().startsWith(QLatin1String("Changed by anna at gatehouse meanwhile. Also ")));
        editors.setOthers({});
        QCOMPARE(label->text(), QStringLiteral("Changed by anna at gatehouse meanwhile."));
    });
}

void tst_ChangedMeanwhile::openOnlyAsLongAsItIs()
{
    const NodeEditors& editors = m_host->db()->editors();
    QVERIFY(!editors.isAnyOpen());
    edit([&](QDialog*, QLabel* label) {
        QCOMPARE(editors.written(), QStringList(idOf(QStringLiteral("Gate north"))));
        QVERIFY(!label->isVisible());
    });
    QVERIFY(!editors.isAnyOpen());
    const ModalAnswer answer([&](QDialog* dialog) {
        QVERIFY(editors.isAnyOpen() && editors.written().isEmpty());
        dialog->reject();
    });
    trigger("actionProperties");
    QVERIFY(answer.fired());
    QVERIFY(!editors.isAnyOpen());
}

KO_TEST_MAIN(tst_ChangedMeanwhile)

#include "tst_changedmeanwhile.moc"
