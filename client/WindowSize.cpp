#include "WindowSize.h"

#include <QScreen>
#include <QWidget>

namespace ko {

namespace {

const QSize frame(16, 48); ///< what a window manager draws around a window, about

} // namespace

void resizeWithinScreen(QWidget& window, const QSize& size)
{
    window.resize(size.boundedTo(window.screen()->availableSize() - frame));
}

} // namespace ko
