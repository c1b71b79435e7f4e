#ifndef TESTS_JOURNEYS_DESK_H
#define TESTS_JOURNEYS_DESK_H

#include "support/Answers.h"
#include "support/HostFixture.h"
#include "support/Patience.h"

#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>

namespace testsupport {

/// A user at a desk: the client's window over a database of its own, and what hands do with it.
class Desk
{
public:
    typedef Answers::Action Action;

    Desk()
        : window(*host.db())
        , list(window.findChild<ko::NodeListView*>())
    {
        window.resize(1000, 700);
        window.show();
        sitDown();
    }

    /// Cameras "Camera 1" and so on, at 10.1.0.1 and so on.
    QStringList cameras(int count)
    {
        QStringList ids;
        for (int i = 1; i <= count; ++i)
            ids.append(host.add(ko::IPDeviceType, QStringLiteral("Camera %1").arg(i),
                                QStringLiteral("10.1.%1.%2").arg(i / 250).arg(i % 250 + 1)));
        settle();
        return ids;
    }

    void settle()
    {
        host.db()->flush();
        window.applyChanges();
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    void sitDown()
    {
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        list->setFocus();
    }

    /// Wherever the focus is.
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focus(), Qt::Key(key), modifiers);
    }

    static void type(const QString& text) { QTest::keyClicks(focus(), text); }

    /// Opens the menu and chooses there, with the mouse.
    void choose(const char* actionName)
    {
        auto* action = child<QAction>(&window, actionName);
        QMenuBar* bar = window.menuBar();
        const QList<QAction*> titles = bar->actions();
        for (QAction* title : titles) {
            QMenu* menu = title->menu();
            if (!menu || !menu->actions().contains(action))
                continue;
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
    }

    void find(const QString& text)
    {
        key(Qt::Key_F, Qt::ControlModifier);
        type(text);
        settle();
    }

    QStringList shown() const
    {
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            names.append(list->model()->index(row, ko::NodeListModel::NameColumn).data().toString());
        return names;
    }

    void click(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const int row = int(shown().indexOf(name));
        QVERIFY2(row >= 0, qPrintable(name + " is not shown"));
        const QModelIndex index = list->model()->index(row, ko::NodeListModel::NameColumn);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualRect(index).center());
    }

    QString said() const { return window.statusBar()->currentMessage(); }

    // In a dialog

    /// Replaces what the field holds.
    static void enter(QDialog* dialog, const char* field, const QString& text)
    {
        auto* edit = child<QLineEdit>(dialog, field);
        edit->setFocus();
        key(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }

    static QAbstractButton* button(const QDialog* dialog, const QString& text)
    {
        const QList<QAbstractButton*> all = dialog->findChildren<QAbstractButton*>();
        for (QAbstractButton* each : all) {
            if (each->isVisible() && each->text().remove(QLatin1Char('&')) == text)
                return each;
        }
        failMissingChild(dialog, "QAbstractButton", qPrintable(text));
    }

    static void press(QDialog* dialog, const QString& text)
    {
        QTest::mouseClick(button(dialog, text), Qt::LeftButton);
    }
    static Action press(const QString& text)
    {
        return [text](QDialog* dialog) { press(dialog, text); };
    }

    static Action choosingFile(const QString& name)
    {
        return [name](QDialog* dialog) {
            auto* field = child<QLineEdit>(dialog, "fileNameEdit");
            field->setText(name); // typed, it would be completed
            QTest::keyClick(field, Qt::Key_Return);
        };
    }

private:
    static QWidget* front()
    {
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        const QWidgetList all = QApplication::topLevelWidgets();
        const auto main = std::find_if(all.begin(), all.end(), [](const QWidget* widget) {
            return qobject_cast<const QMainWindow*>(widget) && widget->isVisible();
        });
        return main == all.end() ? nullptr : *main;
    }

    /// In the window in front: without a window manager one is active only some time after it is shown.
    static QWidget* focus()
    {
        QWidget* window = front();
        if (window != QApplication::activeWindow())
            QApplication::setActiveWindow(window);
        return window->focusWidget() ? window->focusWidget() : window;
    }

public:
    HostFixture host;
    ko::MainWindow window;
    ko::NodeListView* const list;
};

} // namespace testsupport

#endif
