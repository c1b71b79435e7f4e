#include "drivers/FormTwin.h"

#include "drivers/PageStack.h"
#include "ko/Node.h"

namespace ko {

kom::smart<const Node> twinInForm(const QWidget& window)
{
    const auto* pages = window.findChild<PageStack*>();
    return pages ? pages->twin() : kom::smart<const Node>();
}

} // namespace ko
