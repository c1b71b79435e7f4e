#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "database/StoredHistory.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "history/HistoryWords.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>

using namespace ko;
using testsupport::child;

/// A view gets its cameras in its editor, and when it is added.
class tst_ViewPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void filledWhenAdded();
    void naturalOrderAndSearch();
    void allOfManyCamerasStay();
    void orderIsTheUsers();
    void dragged();
    void goneCamerasComeBack();
    void readOnly();
    void cancelChangesNothing();
    void historyNamesTheCameras();
    void recorderIsAdded();

private:
    HostNodeDB& db() const { return *m_host->db(); }
    QString view(const QStringList& cameras) const;
    QStringList stored(const QString& id) const;
    static QStringList shown(const QListView* list);
    static void select(QListView* list, const QStringList& names);
    static QTabWidget* showPage(QDialog& dialog);
    QStringList ids(const QStringList& names) const;

    std::unique_ptr<testsupport::HostFixture> m_host;
    QMap<QString, QString> m_ids;
};

void tst_ViewPage::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_ids.clear();
    for (const char* name : {"Camera 10", "Camera 2", "camera 1"})
        m_ids.insert(name, m_host->add(IPDeviceType, name, QString("10.0.0.%1").arg(m_ids.size() + 1)));
    m_ids.insert("Yard", m_host->add(UrlCameraType, "Yard", "10.9.0.1"));
    m_host->add(RecordingFolderType, "Archive");
}

QStringList tst_ViewPage::ids(const QStringList& names) const
{
    QStringList ids;
    for (const QString& name : names)
        ids.append(m_ids.value(name));
    return ids;
}

QString tst_ViewPage::view(const QStringList& cameras) const
{
    const QString id = m_host->add(ViewType, "Overview");
    m_host->change(id, [&](Node* node) { node->setStringProperty("Nodes", ids(cameras).join(';')); });
    m_host->db()->flush();
    return id;
}

QStringList tst_ViewPage::stored(const QString& id) const
{
    return db().node(id)->stringProperty("Nodes", "none").split(';', Qt::SkipEmptyParts);
}

QStringList tst_ViewPage::shown(const QListView* list)
{
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        names.append(list->model()->index(row, 0).data().toString());
    return names;
}

void tst_ViewPage::select(QListView* list, const QStringList& names)
{
    list->clearSelection();
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        if (names.contains(index.data().toString()))
            list->selectionModel()->select(index, QItemSelectionModel::Select);
    }
    QCOMPARE(list->selectionModel()->selectedIndexes().size(), names.size());
}

QTabWidget* tst_ViewPage::showPage(QDialog& dialog)
{
    dialog.show();
    auto* tabs = dialog.findChild<QTabWidget*>();
    tabs->setCurrentIndex(1);
    return tabs;
}

void tst_ViewPage::filledWhenAdded()
{
    const QList<ENodeType> types = {ViewType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    showPage(dialog);
    child<QLineEdit>(&dialog, "nameLineEdit")->setText("Gates");
    auto* available = child<QListView>(&dialog, "availableListView");
    auto* add = child<QPushButton>(&dialog, "addButton");
    QVERIFY(!add->isEnabled());
    select(available, {"Yard"});
    QTest::mouseClick(add, Qt::LeftButton);
    select(available, {"Camera 10", "camera 1"});
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(shown(child<QListView>(&dialog, "chosenListView")),
             QStringList({"Yard", "camera 1", "Camera 10"}));
    QCOMPARE(shown(available), QStringList("Camera 2"));
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(stored(dialog.nodeId()), ids({"Yard", "camera 1", "Camera 10"}));
}

void tst_ViewPage::naturalOrderAndSearch()
{
    EditNodeDialog dialog(view({}), nullptr, false, 0, nullptr);
    showPage(dialog);
    auto* available = child<QListView>(&dialog, "availableListView");
    QCOMPARE(shown(available), QStringList({"camera 1", "Camera 2", "Camera 10", "Yard"}));
    auto* filter = available->parentWidget()->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    const QList<QLineEdit*> fields =
        available->parentWidget()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLineEdit* field : fields)
        filter = field->isVisible() ? field : filter;
    QTest::keyClicks(filter, "CAMERA 1");
    QCOMPARE(shown(available), QStringList({"camera 1", "Camera 10"}));
    filter->clear();
    QTest::keyClicks(filter, "10.9");
    QCOMPARE(shown(available), QStringList("Yard"));
}

/// A field of the toolkit cuts off what is longer than it was told to expect.
void tst_ViewPage::allOfManyCamerasStay()
{
    QStringList names = {"Yard"};
    for (int i = 0; i < 2500; ++i) {
        names.append(QString("Many %1").arg(i));
        m_ids.insert(names.last(), m_host->add(IPDeviceType, names.last()));
    }
    const QString id = view(names);
    EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    showPage(dialog);
    auto* chosen = child<QListView>(&dialog, "chosenListView");
    QCOMPARE(chosen->model()->rowCount(), names.size());
    select(chosen, {"Yard"});
    child<QPushButton>(&dialog, "downButton")->click();
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    names.swapItemsAt(0, 1);
    QCOMPARE(stored(id), ids(names));
}

void tst_ViewPage::orderIsTheUsers()
{
    const QString id = view({"Yard", "Camera 2", "Camera 10"});
    EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    showPage(dialog);
    auto* chosen = child<QListView>(&dialog, "chosenListView");
    auto* up = child<QPushButton>(&dialog, "upButton");
    auto* down = child<QPushButton>(&dialog, "downButton");
    select(chosen, {"Camera 10"});
    QVERIFY(up->isEnabled() && !down->isEnabled());
    up->click();
    QCOMPARE(shown(chosen), QStringList({"Yard", "Camera 10", "Camera 2"}));
    up->click(); // it is still selected
    QCOMPARE(shown(chosen), QStringList({"Camera 10", "Yard", "Camera 2"}));
    QVERIFY(!up->isEnabled());
    down->click();
    QCOMPARE(shown(chosen), QStringList({"Yard", "Camera 10", "Camera 2"}));
    select(chosen, {"Yard"});
    QTest::mouseClick(child<QPushButton>(&dialog, "removeButton"), Qt::LeftButton);
    QCOMPARE(shown(chosen), QStringList({"Camera 10", "Camera 2"}));
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(stored(id), ids({"Camera 10", "Camera 2"}));
}

/// What a drag brings is what the toolkit gives the model.
void tst_ViewPage::dragged()
{
    const QString id = view({"Yard", "Camera 2"});
    EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    showPage(dialog);
    auto* available = child<QListView>(&dialog, "availableListView");
    auto* chosen = child<QListView>(&dialog, "chosenListView");
    const auto drag = [](const QListView* from, int row, QListView* to, int before) {
        const std::unique_ptr<QMimeData> data(from->model()->mimeData({from->model()->index(row, 0)}));
        return to->model()->dropMimeData(data.get(), Qt::CopyAction, before, 0, QModelIndex());
    };
    QVERIFY(drag(available, 1, chosen, 1));
    QCOMPARE(shown(chosen), QStringList({"Yard", "Camera 10", "Camera 2"}));
    QVERIFY(drag(chosen, 0, chosen, -1)); // below the last
    QCOMPARE(shown(chosen), QStringList({"Camera 10", "Camera 2", "Yard"}));
    QVERIFY(drag(chosen, 1, available, 0));
    QCOMPARE(shown(chosen), QStringList({"Camera 10", "Yard"}));
    QMimeData foreign;
    foreign.setData("application/x-konodeui-viewnodes", "1\n" + m_ids.value("Camera 2").toUtf8());
    QVERIFY(!chosen->model()->dropMimeData(&foreign, Qt::CopyAction, 0, 0, QModelIndex()));
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(stored(id), ids({"Camera 10", "Yard"}));
}

void tst_ViewPage::goneCamerasComeBack()
{
    const QString id = view({"Yard", "Camera 2"});
    db().removeNode(m_ids.value("Yard"));
    EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    showPage(dialog);
    auto* chosen = child<QListView>(&dialog, "chosenListView");
    QCOMPARE(shown(chosen), QStringList("Camera 2"));
    select(child<QListView>(&dialog, "availableListView"), {"Camera 10"});
    child<QPushButton>(&dialog, "addButton")->click();
    QCOMPARE(shown(chosen), QStringList({"Camera 2", "Camera 10"}));
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(stored(id), ids({"Yard", "Camera 2", "Camera 10"})); // for when its removal is undone
}

void tst_ViewPage::readOnly()
{
    EditNodeDialog dialog(view({"Yard"}), nullptr, true, 0, nullptr);
    showPage(dialog);
    auto* chosen = child<QListView>(&dialog, "chosenListView");
    QCOMPARE(shown(chosen), QStringList("Yard"));
    select(chosen, {"Yard"});
    select(child<QListView>(&dialog, "availableListView"), {"Camera 2"});
    for (const char* name : {"addButton", "removeButton", "upButton", "downButton"})
        QVERIFY2(!child<QPushButton>(&dialog, name)->isEnabled(), name);
    QTest::keyClick(chosen, Qt::Key_Delete);
    QCOMPARE(shown(chosen), QStringList("Yard"));
}

void tst_ViewPage::cancelChangesNothing()
{
    const QString id = view({"Yard"});
    EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
    showPage(dialog);
    select(child<QListView>(&dialog, "chosenListView"), {"Yard"});
    child<QPushButton>(&dialog, "removeButton")->click();
    dialog.reject();
    QCOMPARE(stored(id), ids({"Yard"}));
}

void tst_ViewPage::historyNamesTheCameras()
{
    const QString id = view({"Yard", "Camera 2"});
    const std::optional<ChangeSet> set = db().history().changeSet(db().history().newest());
    const HistoryWords words([this](const QString& node) { return db().summary(node).name; });
    const QVector<Alteration> all = Alterations::of(*set);
    const auto nodes = std::find_if(all.begin(), all.end(), [](const Alteration& each) {
        return each.kind == Alteration::Property && each.key == QLatin1String("Nodes");
    });
    QVERIFY(nodes != all.end() || !set->nodes.isEmpty());
    Alteration of;
    of.kind = Alteration::Property;
    of.node = id;
    of.key = "Nodes";
    QCOMPARE(words.what(of), QString("Cameras"));
    QCOMPARE(words.after(of, db().node(id)->stringProperty("Nodes", QString())), QString("Yard, Camera 2"));
}

void tst_ViewPage::recorderIsAdded()
{
    const QList<ENodeType> types = {InternalRecorderType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    child<QLineEdit>(&dialog, "nameLineEdit")->setText("Recorder");
    child<QLineEdit>(&dialog, "Path")->setText("/recordings");
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(db().summary(dialog.nodeId()).type, InternalRecorderType);
    QCOMPARE(db().summary(dialog.nodeId()).location, QString("/recordings"));
    // No scan finds one: where all types are offered, the first is one that it finds.
    const NodeDB::TypeNames offered = db().readableNodeTypeNames(nullptr, true);
    for (const auto& type : offered)
        QVERIFY(type.first != InternalRecorderType);
}

KO_TEST_MAIN(tst_ViewPage)
#include "tst_viewpage.moc"
