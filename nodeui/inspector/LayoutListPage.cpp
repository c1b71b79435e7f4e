#include "inspector/LayoutListPage.h"

namespace ko {

LayoutListPage::~LayoutListPage() = default;

} // namespace ko
