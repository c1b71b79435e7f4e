#ifndef KO_WINDOWHELPERS_H
#define KO_WINDOWHELPERS_H

namespace ko {

class MainWindow;

/// What looks over all windows of the program for what their forms leave open.
namespace WindowHelpers {

/// They belong to \a window.
void install(MainWindow& window);

} // namespace WindowHelpers

} // namespace ko

#endif
