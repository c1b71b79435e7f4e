#ifndef KO_WHEELGUARD_H
#define KO_WHEELGUARD_H

#include <QObject>

namespace ko {

/// Keeps the mouse wheel from changing what it merely passes over: closed combo boxes, and sliders and spin
/// boxes that do not have the focus. What is around them scrolls instead.
///
/// Holds for all windows of the program as long as the object lives. It is the program's and not the
/// library's, whose forms leave it to their host how wheels behave.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit WheelGuard(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ko

#endif
