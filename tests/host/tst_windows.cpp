#include "support/Contrast.h"
#include "support/DialogCheck.h"
#include "support/HostFixture.h"
#include "support/TestMain.h"

#include "dialogs/EditNodeDialog.h"
#include "drivers/InspectorPages.h"
#include "drivers/NodeTypes.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QProcess>
#include <QScopeGuard>
#include <QSet>
#include <QTabWidget>

#include <algorithm>

using namespace ko;
using testsupport::contrast;
using testsupport::darkPalette;

namespace {

const double ReadableContrast = 4.5; // WCAG 2, text
const double VisibleContrast = 3;    // and pictures

/// Each of these is a process of its own: the scale of the screen is read once, at the start.
const char ScaleVariable[] = "QT_SCALE_FACTOR";

/// The share of a picture's solid pixels that stand out against a background.
double visibleShare(const QImage& picture, const QColor& background)
{
    int solid = 0;
    int visible = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel.alpha() < 200)
                continue;
            ++solid;
            if (contrast(pixel, background) >= VisibleContrast)
                ++visible;
        }
    }
    return solid == 0 ? 0 : double(visible) / solid;
}

bool isField(const QWidget* widget)
{
    const bool inSpinBox = qobject_cast<const QAbstractSpinBox*>(widget->parentWidget());
    const bool inComboBox = qobject_cast<const QComboBox*>(widget->parentWidget());
    return (qobject_cast<const QLineEdit*>(widget) && !inSpinBox && !inComboBox) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
}

/// Visible fields that a screen reader could not name.
QStringList unnamedFields(const QWidget* window)
{
    QList<const QWidget*> named;
    const QList<QLabel*> labels = window->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        named.append(label->buddy());
    QStringList unnamed;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (isField(widget) && widget->isVisible() && widget->accessibleName().isEmpty() &&
            !named.contains(widget))
            unnamed.append(widget->objectName());
    }
    return unnamed;
}

/// Visible texts that cannot be read on what lies under them.
QStringList unreadable(const QWidget* window)
{
    QStringList names;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool showsText = qobject_cast<const QLabel*>(widget) || isField(widget);
        const QPalette& palette = widget->palette();
        if (showsText && widget->isVisible() && widget->isEnabled() &&
            contrast(palette.color(widget->foregroundRole()), palette.color(widget->backgroundRole())) <
                ReadableContrast)
            names.append(widget->objectName());
    }
    return names;
}

/// Where the captions of the first column end, each edge once.
QSet<int> captionEdges(const QWidget* window)
{
    QList<QRect> captions;
    const QList<QLabel*> labels = window->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->isVisible() && label->alignment().testFlag(Qt::AlignRight))
            captions.append(QRect(label->mapTo(window, QPoint()), label->size()));
    }
    QSet<int> edges;
    for (const QRect& caption : std::as_const(captions)) {
        const bool first = std::none_of(captions.cbegin(), captions.cend(), [&caption](const QRect& other) {
            return other.right() < caption.left();
        });
        if (first)
            edges.insert(caption.right());
    }
    return edges;
}

} // namespace

/// What a user sees of every inspector: nothing cut off, every field named, all of it readable. Leaves
/// the pictures in the folder "pictures" for eyes to look at.
class tst_Windows : public QObject
{
    Q_OBJECT

private slots:
    void inspectors_data();
    void inspectors();
    void doubleScale();
    void icons_data();
    void icons();
    void selectedIcons();
};

void tst_Windows::inspectors_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("longTexts");
    QTest::addColumn<bool>("readOnly");
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        if (!NodeTypes::canBeAdded(type))
            continue;
        for (int look = 0; look < 8; ++look) {
            const bool dark = look & 1;
            const bool longTexts = look & 2;
            const bool readOnly = look & 4;
            QTest::addRow("%s%s%s%s", qPrintable(NodeTypes::readableName(type).remove(QLatin1Char(' '))),
                          dark ? "-dark" : "", longTexts ? "-long" : "", readOnly ? "-readOnly" : "")
                << int(type) << dark << longTexts << readOnly;
        }
    }
}

void tst_Windows::inspectors()
{
    QFETCH(int, type);
    QFETCH(bool, dark);
    QFETCH(bool, longTexts);
    QFETCH(bool, readOnly);
    const QPalette before = QApplication::palette();
    if (dark)
        QApplication::setPalette(darkPalette());
    const auto restore = qScopeGuard([before] { QApplication::setPalette(before); });
    const auto language = longTexts ? std::make_unique<testsupport::LongLanguage>()
                                    : std::unique_ptr<testsupport::LongLanguage>();

    testsupport::HostFixture host;
    const QString id = host.add(ENodeType(type), QStringLiteral("Gate north"), QStringLiteral("10.0.0.1"));
    EditNodeDialog dialog(id, nullptr, readOnly, 17, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    QVERIFY(tabs);
    const QString scale = QString::fromLatin1(qgetenv(ScaleVariable));
    const QDir pictures(QStringLiteral("pictures"));
    QVERIFY(pictures.mkpath(QStringLiteral(".")));
    QSet<int> edges;
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        const QString file = QStringLiteral("%1-%2%3.png")
                                 .arg(QString::fromLatin1(QTest::currentDataTag()))
                                 .arg(tab)
                                 .arg(scale.isEmpty() ? QString() : QLatin1Char('x') + scale);
        QVERIFY(dialog.grab().save(pictures.filePath(file)));
        QCOMPARE(testsupport::cutOff(&dialog), QStringList());
        QCOMPARE(unnamedFields(&dialog), QStringList());
        QCOMPARE(unreadable(&dialog), QStringList());
        edges += captionEdges(&dialog);
    }
    const auto range = std::minmax_element(edges.cbegin(), edges.cend());
    QVERIFY(*range.second - *range.first <= 2); // captions line up across the pages
}

void tst_Windows::doubleScale()
{
    if (!qEnvironmentVariableIsEmpty(ScaleVariable))
        return; // this is that process
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(ScaleVariable), QStringLiteral("2"));
    QProcess doubled;
    doubled.setProcessEnvironment(environment);
    doubled.setProcessChannelMode(QProcess::MergedChannels);
    doubled.start(QCoreApplication::applicationFilePath(), {QStringLiteral("inspectors")});
    QVERIFY(doubled.waitForFinished(120000));
    const QByteArray output = doubled.readAll();
    QVERIFY2(doubled.exitStatus() == QProcess::NormalExit && doubled.exitCode() == 0, output.constData());
    QVERIFY2(output.contains(" 0 failed"), output.constData());
}

void tst_Windows::icons_data()
{
    QTest::addColumn<QString>("file");
    for (const char* folder : {":/icons", ":/host", ":/view/icns"}) {
        const QDir icons(QString::fromLatin1(folder));
        const QStringList names = icons.entryList({QStringLiteral("*.png")});
        for (const QString& name : names)
            QTest::addRow("%s", qPrintable(name)) << icons.filePath(name);
    }
}

void tst_Windows::icons()
{
    QFETCH(QString, file);
    const QImage picture(file);
    QVERIFY(!picture.isNull());
    QVERIFY(visibleShare(picture, QApplication::palette().color(QPalette::Window)) > 0.3);
    QVERIFY(visibleShare(picture, darkPalette().color(QPalette::Window)) > 0.3);
    const QString doubled = QString(file).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
    if (!file.contains(QLatin1String("@2x")))
        QCOMPARE(QImage(doubled).size(), picture.size() * 2);
}

void tst_Windows::selectedIcons()
{
    const QColor selection = QApplication::palette().color(QPalette::Highlight);
    const QDir pictures(QStringLiteral("pictures"));
    QVERIFY(pictures.mkpath(QStringLiteral(".")));
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        const QIcon icon = NodeTypes::icon(type);
        for (const double ratio : {1.0, 2.0}) {
            QImage picture(QSize(24, 16) * ratio, QImage::Format_ARGB32_Premultiplied);
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            icon.paint(&painter, QRect(0, 0, 24, 16), Qt::AlignCenter, QIcon::Selected);
            painter.end();
            QVERIFY2(visibleShare(picture, selection) > 0.6, qPrintable(NodeTypes::readableName(type)));
            QVERIFY(
                picture.save(pictures.filePath(QStringLiteral("selected-%1x%2.png").arg(type).arg(ratio))));
        }
    }
}

KO_TEST_MAIN(tst_Windows)
#include "tst_windows.moc"
