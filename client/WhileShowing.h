#ifndef KO_WHILESHOWING_H
#define KO_WHILESHOWING_H

#include <QString>

#include <functional>

class QWidget;

namespace ko {

/// Does \a work in a thread while a box says so: for a large database it takes as long as copying it. \a
/// parent takes no input meanwhile.
void doWhileShowing(const QString& title, const QString& text, QWidget* parent,
                    const std::function<void()>& work);

} // namespace ko

#endif
