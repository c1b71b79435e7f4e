#include "support/DialogCheck.h"
#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "ko/Node.h"
#include "ko/dialogFlags.h"
#include "utils/NodeDBUtils.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace ko;
using testsupport::child;

typedef RecordingTransponderCustomSettingsDialog Dialog;

namespace {

const char* const customBoxes[] = {"connectionDataCustomCheckBox", "framerateCustomCheckBox",
                                   "qualityCustomCheckBox", "resolutionCustomCheckBox",
                                   "soundCustomCheckBox"};

const char* const addressWidgets[] = {
    "connectionDataAddressLabel", "connectionDataAddressLineEdit", "connectionDataPortLabel",
    "connectionDataPortLineEdit", "connectionDataSslCheckBox",     "connectionDataUserLabel",
    "connectionDataUserLineEdit", "connectionDataPasswordLabel",   "connectionDataPasswordLineEdit"};

void click(const QWidget* dialog, const char* name)
{
    auto* button = child<QAbstractButton>(dialog, name);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

QString text(const QWidget* dialog, const char* name)
{
    return child<QLineEdit>(dialog, name)->text();
}

QString selected(const QWidget* dialog, const char* name)
{
    return child<QComboBox>(dialog, name)->currentText();
}

} // namespace

class tst_RecordingTransponderCustomSettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_db.reset(); }

    void form();
    void grids();
    void lists();
    void tabOrder();
    void roomForLongTexts();
    void metaObject();
    void emptyNode();
    void missingNode();
    void storedValues();
    void previewModes_data();
    void previewModes();
    void valuesOutsideTheLists();
    void addressFieldsFollowTheMode();
    void eachGroupFollowsItsBox_data();
    void eachGroupFollowsItsBox();
    void typedSizeSelectsTheResolution_data();
    void typedSizeSelectsTheResolution();
    void chosenResolutionFillsTheSize();
    void masks();
    void okWritesEverything();
    void okWritesFlagsOnlyOfDefaults();
    void untouchedGroupKeepsItsValues();
    void cameraPreviewKeepsTheAddress();
    void emptySizeIsZero();
    void okWithoutNode();
    void cancelWritesNothing();
    void returnKey();

private:
    void set(const std::function<void(Node*)>& change);
    QStringList written() const;

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
};

void tst_RecordingTransponderCustomSettingsDialog::init()
{
    m_db = std::make_unique<testsupport::SmallNodeDB>();
    m_db->defineType(RecordingTransponderType, "Remote preview");
    m_db->addNode(RecordingTransponderType, "preview", "Preview");
    m_db->clearCalls();
}

void tst_RecordingTransponderCustomSettingsDialog::set(const std::function<void(Node*)>& change)
{
    Node* node = m_db->beginUpdateNode("preview", -1);
    change(node);
    m_db->endUpdateNode(node);
    m_db->clearCalls();
}

/// What was set between the opening and the closing of the update, without the common words.
QStringList tst_RecordingTransponderCustomSettingsDialog::written() const
{
    QStringList calls = m_db->calls;
    if (calls.size() < 2 || calls.takeFirst() != "beginUpdateNode(preview,-1)" ||
        calls.takeLast() != "endUpdateNode(preview)")
        return QStringList("no update");
    for (QString& call : calls)
        call = call.section('(', 1).chopped(1).remove("RecordingTransponder");
    return calls;
}

void tst_RecordingTransponderCustomSettingsDialog::form()
{
    const Dialog dialog("preview", nullptr);
    QCOMPARE(dialog.objectName(), QString("RecordingTransponderCustomSettingsDialog"));
    QCOMPARE(dialog.windowTitle(), QString("KoTandem Custom Settings"));
    QCOMPARE(dialog.windowFlags() & dialogFlags(false), dialogFlags(false));
    const struct
    {
        const char* name;
        const char* text;
    } texts[] = {{"connectionDataCustomCheckBox", "Use custom connection data"},
                 {"connectionDataRadioCameraPreview", "Camera Preview"},
                 {"connectionDataRadioEventStreamer", "Event Streamer"},
                 {"connectionDataRadioRemotePreview", "Remote Preview"},
                 {"connectionDataAddressLabel", "IP address:"},
                 {"connectionDataPortLabel", "Port:"},
                 {"connectionDataSslCheckBox", "SSL"},
                 {"connectionDataUserLabel", "User name:"},
                 {"connectionDataPasswordLabel", "Password:"},
                 {"qualityCustomCheckBox", "Use custom JPEG quality"},
                 {"framerateCustomCheckBox", "Use custom frame rate"},
                 {"framerateUnitLabel", "F/s"},
                 {"resolutionCustomCheckBox", "Use custom resolution"},
                 {"resolutionWidthLabel", "Width:"},
                 {"resolutionHeightLabel", "Height:"},
                 {"soundCustomCheckBox", "Use custom audio setting"},
                 {"soundCheckBox", "Enable"}};
    for (const auto& row : texts)
        QCOMPARE(child<QWidget>(&dialog, row.name)->property("text").toString(), QString(row.text));
    const auto* label = child<QLabel>(&dialog, "label");
    QVERIFY(label->wordWrap());
    QVERIFY(label->text().startsWith("Customize any preview setting for this video source or use the "
                                     "defaults defined in <b>Options&nbsp;"));
    QVERIFY(label->text().endsWith("Connection&nbsp;Defaults</b>."));
    QCOMPARE(child<QLineEdit>(&dialog, "connectionDataPasswordLineEdit")->echoMode(), QLineEdit::Password);
    const auto* ok = child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isDefault() && ok->autoDefault());
}

void tst_RecordingTransponderCustomSettingsDialog::grids()
{
    const Dialog dialog("preview", nullptr);
    const struct
    {
        const char* grid;
        const char* name;
        const char* cell;
    } cells[] = {{"gridLayout_3", "label", "1,0,1,6"},
                 {"gridLayout_3", "groupBox", "2,0,1,6"},
                 {"gridLayout_3", "qualityCustomCheckBox", "3,0,1,1"},
                 {"gridLayout_3", "qualityComboBox", "3,1,1,1"},
                 {"gridLayout_3", "framerateCustomCheckBox", "4,0,1,1"},
                 {"gridLayout_3", "framerateComboBox", "4,1,1,1"},
                 {"gridLayout_3", "framerateUnitLabel", "4,2,1,4"},
                 {"gridLayout_3", "resolutionCustomCheckBox", "13,0,1,1"},
                 {"gridLayout_3", "resolutionComboBox", "13,1,1,1"},
                 {"gridLayout_3", "resolutionWidthLabel", "13,2,1,1"},
                 {"gridLayout_3", "resolutionWidthLineEdit", "13,3,1,1"},
                 {"gridLayout_3", "resolutionHeightLabel", "13,4,1,1"},
                 {"gridLayout_3", "resolutionHeightLineEdit", "13,5,1,1"},
                 {"gridLayout_3", "soundCustomCheckBox", "16,0,1,1"},
                 {"gridLayout_3", "soundCheckBox", "16,1,1,1"},
                 {"gridLayout_3", "buttonBox", "18,0,1,6"},
                 {"gridLayout", "connectionDataCustomCheckBox", "0,0,1,7"},
                 {"gridLayout", "connectionDataRadioCameraPreview", "2,1,1,6"},
                 {"gridLayout", "connectionDataRadioEventStreamer", "3,1,1,6"},
                 {"gridLayout", "connectionDataRadioRemotePreview", "4,1,1,6"},
                 {"gridLayout", "connectionDataAddressLabel", "5,1,1,1"},
                 {"gridLayout", "connectionDataAddressLineEdit", "5,2,1,1"},
                 {"gridLayout", "connectionDataPortLabel", "5,3,1,1"},
                 {"gridLayout", "connectionDataPortLineEdit", "5,4,1,1"},
                 {"gridLayout", "connectionDataSslCheckBox", "5,5,1,1"},
                 {"gridLayout", "connectionDataUserLabel", "6,1,1,1"},
                 {"gridLayout", "connectionDataUserLineEdit", "6,2,1,1"},
                 {"gridLayout", "connectionDataPasswordLabel", "6,3,1,1"},
                 {"gridLayout", "connectionDataPasswordLineEdit", "6,4,1,2"}};
    for (const auto& cell : cells)
        QCOMPARE(
            testsupport::gridCell(child<QGridLayout>(&dialog, cell.grid), child<QWidget>(&dialog, cell.name)),
            QString(cell.cell));
}

void tst_RecordingTransponderCustomSettingsDialog::lists()
{
    const Dialog dialog("preview", nullptr);
    const auto items = [&dialog](const char* name) {
        const auto* comboBox = child<QComboBox>(&dialog, name);
        QStringList texts;
        for (int i = 0; i < comboBox->count(); ++i)
            texts.append(comboBox->itemText(i));
        return texts;
    };
    QCOMPARE(items("qualityComboBox"), NodeDBUtils::sm_Qualities);
    QCOMPARE(items("framerateComboBox"), NodeDBUtils::sm_Framerates);
    QCOMPARE(items("resolutionComboBox"), NodeDBUtils::sm_Resolutions + QStringList("Custom"));
}

void tst_RecordingTransponderCustomSettingsDialog::tabOrder()
{
    set([](Node* node) { node->setIntProperty("RecordingTransponderPreviewMode", 2); });
    Dialog dialog("preview", nullptr);
    dialog.show();
    click(&dialog, "connectionDataRadioRemotePreview");
    const QStringList order = testsupport::tabOrder(&dialog);
    const QStringList tail = {"connectionDataAddressLineEdit",
                              "connectionDataPortLineEdit",
                              "connectionDataSslCheckBox",
                              "connectionDataUserLineEdit",
                              "connectionDataPasswordLineEdit",
                              "qualityCustomCheckBox",
                              "qualityComboBox",
                              "framerateCustomCheckBox",
                              "framerateComboBox",
                              "resolutionCustomCheckBox",
                              "resolutionComboBox",
                              "resolutionWidthLineEdit",
                              "resolutionHeightLineEdit",
                              "soundCustomCheckBox",
                              "soundCheckBox"};
    QCOMPARE(order.value(0), QString("connectionDataCustomCheckBox"));
    QCOMPARE(order.mid(order.indexOf(tail.constFirst()), tail.size()), tail);
}

void tst_RecordingTransponderCustomSettingsDialog::roomForLongTexts()
{
    Dialog dialog("preview", nullptr);
    dialog.show();
    QCOMPARE(testsupport::cutOff(&dialog), QStringList());
    const testsupport::LongLanguage language;
    Dialog translated("preview", nullptr);
    translated.show();
    QCOMPARE(testsupport::cutOff(&translated), QStringList());
}

void tst_RecordingTransponderCustomSettingsDialog::metaObject()
{
    const QMetaObject& meta = Dialog::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::RecordingTransponderCustomSettingsDialog"));
    QCOMPARE(testsupport::declaredSlots(meta),
             QStringList(
                 {"checkUI()", "ok()", "changeResolution(QString text)", "changeImageSize(QString text)"}));
}

void tst_RecordingTransponderCustomSettingsDialog::emptyNode()
{
    const Dialog dialog("preview", nullptr);
    for (const char* name : customBoxes)
        QVERIFY2(child<QCheckBox>(&dialog, name)->isChecked(), name);
    QVERIFY(child<QRadioButton>(&dialog, "connectionDataRadioCameraPreview")->isChecked());
    QCOMPARE(selected(&dialog, "framerateComboBox"), NodeDBUtils::sm_Framerates.constFirst());
    QCOMPARE(selected(&dialog, "qualityComboBox"), QString("90%"));
    QCOMPARE(selected(&dialog, "resolutionComboBox"), QString("Custom"));
    QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), QString("0"));
    QCOMPARE(text(&dialog, "resolutionHeightLineEdit"), QString("0"));
    QCOMPARE(text(&dialog, "connectionDataPortLineEdit"), QString("0"));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingTransponderCustomSettingsDialog::missingNode()
{
    const Dialog dialog("gone", nullptr);
    for (const char* name : customBoxes)
        QVERIFY2(!child<QCheckBox>(&dialog, name)->isChecked(), name);
    QVERIFY(text(&dialog, "connectionDataAddressLineEdit").isEmpty());
    for (const char* name : addressWidgets)
        QVERIFY(!dialog.findChild<QWidget*>(QLatin1String(name))->isEnabled());
}

void tst_RecordingTransponderCustomSettingsDialog::storedValues()
{
    set([](Node* node) {
        node->setIntProperty("RecordingTransponderPreviewMode", 2);
        node->setStringProperty("RecordingTransponderIP", "10.0.0.9");
        node->setIntProperty("RecordingTransponderPort", 7000);
        node->setBoolProperty("RecordingTransponderSSL", true);
        node->setStringProperty("RecordingTransponderUser", "u");
        node->setStringProperty("RecordingTransponderPassword", "p@#!");
        node->setBoolProperty("RecordingTransponderFramerateUseDefault", true);
        node->setFloatProperty("RecordingTransponderFramerate", 12.0f);
        node->setBoolProperty("RecordingTransponderQualityUseDefault", true);
        node->setIntProperty("RecordingTransponderQuality", 60);
        node->setIntProperty("RecordingTransponderResolutionX", 640);
        node->setIntProperty("RecordingTransponderResolutionY", 480);
        node->setBoolProperty("RecordingTransponderSoundUseDefault", true);
        node->setBoolProperty("RecordingTransponderSound", true);
    });
    const Dialog dialog("preview", nullptr);
    QVERIFY(child<QRadioButton>(&dialog, "connectionDataRadioRemotePreview")->isChecked());
    QCOMPARE(text(&dialog, "connectionDataAddressLineEdit"), QString("10.0.0.9"));
    QCOMPARE(text(&dialog, "connectionDataPortLineEdit"), QString("7000"));
    QVERIFY(child<QCheckBox>(&dialog, "connectionDataSslCheckBox")->isChecked());
    QCOMPARE(text(&dialog, "connectionDataUserLineEdit"), QString("u"));
    QCOMPARE(text(&dialog, "connectionDataPasswordLineEdit"), QString("p@#!"));
    QCOMPARE(selected(&dialog, "framerateComboBox"), NodeDBUtils::FramerateToString(12.0f));
    QCOMPARE(selected(&dialog, "qualityComboBox"), QString("60%"));
    QCOMPARE(selected(&dialog, "resolutionComboBox"), QString("VGA (640x480)"));
    QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), QString("640"));
    QVERIFY(child<QCheckBox>(&dialog, "soundCheckBox")->isChecked());
    const QStringList checked = {"connectionDataCustomCheckBox", "resolutionCustomCheckBox"};
    for (const char* name : customBoxes)
        QCOMPARE(child<QCheckBox>(&dialog, name)->isChecked(), checked.contains(QLatin1String(name)));
    // The rules are applied before the mode is read.
    for (const char* name : addressWidgets)
        QVERIFY(!dialog.findChild<QWidget*>(QLatin1String(name))->isEnabled());
}

void tst_RecordingTransponderCustomSettingsDialog::previewModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<int>("stored");
    QTest::newRow("camera") << 0 << "connectionDataRadioCameraPreview" << 0;
    QTest::newRow("event streamer") << 1 << "connectionDataRadioEventStreamer" << 1;
    QTest::newRow("remote") << 2 << "connectionDataRadioRemotePreview" << 2;
    QTest::newRow("another") << 7 << QString() << 0;
}

void tst_RecordingTransponderCustomSettingsDialog::previewModes()
{
    QFETCH(int, mode);
    QFETCH(QString, checked);
    QFETCH(int, stored);
    set([mode](Node* node) { node->setIntProperty("RecordingTransponderPreviewMode", mode); });
    Dialog dialog("preview", nullptr);
    const QList<QRadioButton*> radios = dialog.findChildren<QRadioButton*>();
    QCOMPARE(radios.size(), 3);
    for (const QRadioButton* radio : radios)
        QCOMPARE(radio->isChecked(), radio->objectName() == checked);
    QVERIFY(!child<QRadioButton>(&dialog, "connectionDataRadioEventStreamer")->isEnabled());
    QVERIFY(child<QRadioButton>(&dialog, "connectionDataRadioCameraPreview")->isEnabled());
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QVERIFY(written().contains(QString("PreviewMode,%1").arg(stored)));
}

void tst_RecordingTransponderCustomSettingsDialog::valuesOutsideTheLists()
{
    set([](Node* node) {
        node->setFloatProperty("RecordingTransponderFramerate", 17.3f);
        node->setIntProperty("RecordingTransponderQuality", 33);
        node->setIntProperty("RecordingTransponderResolutionX", 641);
        node->setIntProperty("RecordingTransponderResolutionY", 480);
    });
    const Dialog dialog("preview", nullptr);
    QCOMPARE(child<QComboBox>(&dialog, "framerateComboBox")->currentIndex(), 0);
    QCOMPARE(child<QComboBox>(&dialog, "qualityComboBox")->currentIndex(), 0);
    QCOMPARE(selected(&dialog, "resolutionComboBox"), QString("Custom"));
    QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), QString("641"));
}

void tst_RecordingTransponderCustomSettingsDialog::addressFieldsFollowTheMode()
{
    Dialog dialog("preview", nullptr);
    dialog.show();
    const auto enabled = [&dialog] {
        int count = 0;
        for (const char* name : addressWidgets)
            count += dialog.findChild<QWidget*>(QLatin1String(name))->isEnabled();
        return count;
    };
    QCOMPARE(enabled(), 0);
    click(&dialog, "connectionDataRadioRemotePreview");
    QCOMPARE(enabled(), 9);
    click(&dialog, "connectionDataRadioCameraPreview");
    QCOMPARE(enabled(), 0);
    click(&dialog, "connectionDataRadioRemotePreview");
    click(&dialog, "connectionDataCustomCheckBox");
    QCOMPARE(enabled(), 0);
    QVERIFY(!child<QWidget>(&dialog, "connectionDataRadioRemotePreview")->isEnabled());
    QVERIFY(!child<QWidget>(&dialog, "connectionDataRadioCameraPreview")->isEnabled());
    QVERIFY(!child<QWidget>(&dialog, "connectionDataRadioEventStreamer")->isEnabled());
    click(&dialog, "connectionDataCustomCheckBox");
    QCOMPARE(enabled(), 9);
}

void tst_RecordingTransponderCustomSettingsDialog::eachGroupFollowsItsBox_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("widgets");
    QTest::newRow("frame rate") << "framerateCustomCheckBox"
                                << QStringList({"framerateComboBox", "framerateUnitLabel"});
    QTest::newRow("quality") << "qualityCustomCheckBox" << QStringList({"qualityComboBox"});
    QTest::newRow("resolution") << "resolutionCustomCheckBox"
                                << QStringList({"resolutionComboBox", "resolutionWidthLabel",
                                                "resolutionWidthLineEdit", "resolutionHeightLabel",
                                                "resolutionHeightLineEdit"});
    QTest::newRow("sound") << "soundCustomCheckBox" << QStringList({"soundCheckBox"});
}

void tst_RecordingTransponderCustomSettingsDialog::eachGroupFollowsItsBox()
{
    QFETCH(QString, box);
    QFETCH(QStringList, widgets);
    Dialog dialog("preview", nullptr);
    dialog.show();
    for (const bool enabled : {true, false, true}) {
        QCOMPARE(dialog.findChild<QCheckBox*>(box)->isChecked(), enabled);
        for (const QString& name : widgets)
            QCOMPARE(dialog.findChild<QWidget*>(name)->isEnabled(), enabled);
        click(&dialog, qPrintable(box));
    }
}

void tst_RecordingTransponderCustomSettingsDialog::typedSizeSelectsTheResolution_data()
{
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QString>("resolution");
    QTest::newRow("VGA") << "640"
                         << "480"
                         << "VGA (640x480)";
    QTest::newRow("one more") << "641"
                              << "480"
                              << "Custom";
    QTest::newRow("empty") << ""
                           << "480"
                           << "Custom";
}

void tst_RecordingTransponderCustomSettingsDialog::typedSizeSelectsTheResolution()
{
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, resolution);
    Dialog dialog("preview", nullptr);
    dialog.show();
    const char* const names[] = {"resolutionWidthLineEdit", "resolutionHeightLineEdit"};
    const QString typed[] = {width, height};
    for (int i = 0; i < 2; ++i) {
        auto* field = child<QLineEdit>(&dialog, names[i]);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        field->setCursorPosition(0);
        QTest::keyClicks(field, typed[i]);
    }
    QCOMPARE(selected(&dialog, "resolutionComboBox"), resolution);
    QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), width);
    QCOMPARE(text(&dialog, "resolutionHeightLineEdit"), height);
}

void tst_RecordingTransponderCustomSettingsDialog::chosenResolutionFillsTheSize()
{
    Dialog dialog("preview", nullptr);
    auto* comboBox = child<QComboBox>(&dialog, "resolutionComboBox");
    for (int i = 0; i < comboBox->count() - 1; ++i) {
        comboBox->setCurrentIndex(i);
        int width = 0;
        int height = 0;
        NodeDBUtils::StringToResolution(comboBox->currentText(), width, height);
        QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), QString::number(width));
        QCOMPARE(text(&dialog, "resolutionHeightLineEdit"), QString::number(height));
        QCOMPARE(comboBox->currentIndex(), i);
    }
    const QString before = text(&dialog, "resolutionWidthLineEdit");
    comboBox->setCurrentIndex(comboBox->count() - 1);
    QCOMPARE(text(&dialog, "resolutionWidthLineEdit"), before);
}

void tst_RecordingTransponderCustomSettingsDialog::masks()
{
    const Dialog dialog("preview", nullptr);
    QCOMPARE(child<QLineEdit>(&dialog, "connectionDataPortLineEdit")->inputMask(), QString("00000"));
    QCOMPARE(child<QLineEdit>(&dialog, "resolutionWidthLineEdit")->inputMask(), QString("0000"));
    QCOMPARE(child<QLineEdit>(&dialog, "resolutionHeightLineEdit")->inputMask(), QString("0000"));
}

void tst_RecordingTransponderCustomSettingsDialog::okWritesEverything()
{
    Dialog dialog("preview", nullptr);
    dialog.show();
    click(&dialog, "connectionDataRadioRemotePreview");
    child<QLineEdit>(&dialog, "connectionDataAddressLineEdit")->setText("10.0.0.9");
    child<QLineEdit>(&dialog, "connectionDataPortLineEdit")->setText("7000");
    child<QCheckBox>(&dialog, "connectionDataSslCheckBox")->setChecked(true);
    child<QLineEdit>(&dialog, "connectionDataUserLineEdit")->setText("u");
    child<QLineEdit>(&dialog, "connectionDataPasswordLineEdit")->setText("p");
    child<QComboBox>(&dialog, "framerateComboBox")
        ->setCurrentIndex(int(NodeDBUtils::sm_Framerates.indexOf(NodeDBUtils::FramerateToString(12.0f))));
    child<QComboBox>(&dialog, "qualityComboBox")->setCurrentIndex(1);
    child<QComboBox>(&dialog, "resolutionComboBox")
        ->setCurrentIndex(int(NodeDBUtils::sm_Resolutions.indexOf("VGA (640x480)")));
    child<QCheckBox>(&dialog, "soundCheckBox")->setChecked(true);
    QVERIFY(m_db->calls.isEmpty());
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(
        written(),
        QStringList({"UseDefault,false", "PreviewMode,2", "IP,10.0.0.9", "Port,7000", "SSL,true", "User,u",
                     "Password,p", "FramerateUseDefault,false", "Framerate,12", "QualityUseDefault,false",
                     QString("Quality,%1").arg(NodeDBUtils::StringToQuality(NodeDBUtils::sm_Qualities.at(1))),
                     "ResolutionUseDefault,false", "ResolutionX,640", "ResolutionY,480",
                     "SoundUseDefault,false", "Sound,true"}));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RecordingTransponderCustomSettingsDialog::okWritesFlagsOnlyOfDefaults()
{
    Dialog dialog("preview", nullptr);
    for (const char* name : customBoxes)
        child<QCheckBox>(&dialog, name)->setChecked(false);
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(written(), QStringList({"UseDefault,true", "FramerateUseDefault,true", "QualityUseDefault,true",
                                     "ResolutionUseDefault,true", "SoundUseDefault,true"}));
}

void tst_RecordingTransponderCustomSettingsDialog::untouchedGroupKeepsItsValues()
{
    set([](Node* node) { node->setFloatProperty("RecordingTransponderFramerate", 12.0f); });
    Dialog dialog("preview", nullptr);
    dialog.show();
    click(&dialog, "framerateCustomCheckBox");
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    const kom::smart<const Node> node = m_db->node("preview");
    QVERIFY(node->boolProperty("RecordingTransponderFramerateUseDefault", false));
    QCOMPARE(node->floatProperty("RecordingTransponderFramerate", 0.0f), 12.0f);
}

void tst_RecordingTransponderCustomSettingsDialog::cameraPreviewKeepsTheAddress()
{
    set([](Node* node) {
        node->setStringProperty("RecordingTransponderIP", "10.0.0.9");
        node->setStringProperty("RecordingTransponderPassword", "p");
    });
    Dialog dialog("preview", nullptr);
    QVERIFY(!child<QWidget>(&dialog, "connectionDataAddressLineEdit")->isEnabled());
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QVERIFY(written().contains("IP,10.0.0.9"));
    QVERIFY(written().contains("Password,p"));
    QVERIFY(written().contains("PreviewMode,0"));
}

void tst_RecordingTransponderCustomSettingsDialog::emptySizeIsZero()
{
    Dialog dialog("preview", nullptr);
    child<QLineEdit>(&dialog, "resolutionWidthLineEdit")->clear();
    child<QLineEdit>(&dialog, "resolutionHeightLineEdit")->setText("7");
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QVERIFY(written().contains("ResolutionX,0"));
    QVERIFY(written().contains("ResolutionY,7"));
}

void tst_RecordingTransponderCustomSettingsDialog::okWithoutNode()
{
    Dialog dialog("gone", nullptr);
    child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(m_db->calls, QStringList({"beginUpdateNode(gone,-1)", "endUpdateNode()"}));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RecordingTransponderCustomSettingsDialog::cancelWritesNothing()
{
    Dialog dialog("preview", nullptr);
    dialog.show();
    child<QLineEdit>(&dialog, "connectionDataAddressLineEdit")->setText("x");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingTransponderCustomSettingsDialog::returnKey()
{
    Dialog dialog("preview", nullptr);
    dialog.show();
    QTest::keyClick(child<QLineEdit>(&dialog, "resolutionWidthLineEdit"), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

KO_TEST_MAIN(tst_RecordingTransponderCustomSettingsDialog)
#include "tst_recordingtranspondercustomsettingsdialog.moc"
