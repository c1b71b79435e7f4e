#include "client/AllWindows.h"
#include "journeys/Desk.h"
#include "support/Contrast.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLabel>
#include <QTextBrowser>

using namespace ko;
using testsupport::AllWindows;
using testsupport::Answers;
using testsupport::child;
using testsupport::contrast;
using testsupport::darkPalette;
using testsupport::Desk;

namespace {

const double ReadableContrast = 4.5; // WCAG 2, text

/// Of a small laptop with four times the pixels: 2560 x 1600, without a panel and the window's frame.
const QSize desk(1270, 710);

bool showsText(const QWidget* widget)
{
    return qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget);
}

QColor groundOf(const QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    return widget->palette().color(view ? view->viewport()->backgroundRole() : widget->backgroundRole());
}

QColor inkOf(const QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    return widget->palette().color(view ? view->viewport()->foregroundRole() : widget->foregroundRole());
}

/// The share of the picture that is as light as on a desk that is not dark.
double lightShare(const QImage& picture)
{
    int light = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            light += testsupport::luminance(picture.pixelColor(x, y)) > 0.5;
    }
    return double(light) / (double(picture.width()) * picture.height());
}

} // namespace

/// A dark desktop with twice the pixels.
class tst_DarkAndLarge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyWindowIsReadAndFits();
    void aJob();
};

void tst_DarkAndLarge::initTestCase()
{
    QApplication::setPalette(darkPalette());
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
}

void tst_DarkAndLarge::everyWindowIsReadAndFits()
{
    AllWindows all;
    QStringList wrong;
    int windows = 0;
    all.visit([&](const QString& name, QWidget* window) {
        ++windows;
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        if (least.width() > desk.width() || least.height() > desk.height())
            wrong.append(QString("%1 takes %2 x %3").arg(name).arg(least.width()).arg(least.height()));
        const QList<QWidget*> widgets = window->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->isVisible() && widget->isEnabled() && showsText(widget) &&
                contrast(inkOf(widget), groundOf(widget)) < ReadableContrast)
                wrong.append(name + ": " + widget->objectName() + " cannot be read");
        }
        const QImage picture = window->grab().toImage();
        if (picture.devicePixelRatio() != 2.0)
            wrong.append(name + " has pictures for half the pixels");
        if (lightShare(picture) > 0.3)
            wrong.append(QString("%1 is light: %2").arg(name).arg(lightShare(picture)));
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    QVERIFY(windows > 50);
}

/// What is coloured by its meaning is coloured for a dark ground.
void tst_DarkAndLarge::aJob()
{
    Desk desk;
    const QStringList ids = desk.cameras(3);
    CameraState state;
    state.state = DeviceReport::WrongPassword;
    desk.window.findChild<NodeListModel*>()->setStates({{ids.at(1), state}});
    const QModelIndex cell = desk.list->model()->index(1, NodeListModel::StateColumn);
    const QColor ink = cell.data(Qt::ForegroundRole).value<QColor>();
    QVERIFY(ink.isValid());
    QVERIFY(contrast(ink, groundOf(desk.list)) >= ReadableContrast);
    child<QAction>(&desk.window, "actionDetails")->trigger();
    desk.click("Camera 2");
    auto* details = child<QTextBrowser>(&desk.window, "detailsTextBrowser");
    KO_TRY_VERIFY(details->toPlainText().contains("Camera 2"));
    QVERIFY(lightShare(details->grab().toImage()) < 0.3);
    const Answers answers({[](QDialog* editor) {
        Desk::type(" South"); // at the end of the name
        Desk::press(editor, "OK");
    }});
    Desk::key(Qt::Key_F2);
    desk.settle();
    QCOMPARE(desk.said(), QString("\"Camera 2 South\" was changed."));
    child<QAction>(&desk.window, "actionDetails")->trigger(); // as it was at first
}

/// The scale is read once, when the program starts.
int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_DarkAndLarge test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_darkandlarge.moc"
