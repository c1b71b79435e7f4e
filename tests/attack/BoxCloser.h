#ifndef TESTS_ATTACK_BOXCLOSER_H
#define TESTS_ATTACK_BOXCLOSER_H

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace attack {

/// Closes what a client complains with, as long as it is there.
class BoxCloser : public QTimer
{
public:
    BoxCloser()
    {
        connect(this, &QTimer::timeout, this, [] {
            const QWidgetList widgets = QApplication::topLevelWidgets();
            for (QWidget* widget : widgets) {
                auto* box = qobject_cast<QMessageBox*>(widget);
                if (box && box->isVisible())
                    box->reject();
            }
        });
        start(5);
    }
};

} // namespace attack

#endif
