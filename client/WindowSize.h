#ifndef KO_WINDOWSIZE_H
#define KO_WINDOWSIZE_H

#include <QSize>

class QWidget;

namespace ko {

/// Gives a window the size, or as much of it as its screen has room for.
void resizeWithinScreen(QWidget& window, const QSize& size);

} // namespace ko

#endif
