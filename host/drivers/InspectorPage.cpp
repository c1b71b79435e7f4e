#include "drivers/InspectorPage.h"

#include "interfaces/ILayoutAdapter.h"

#include <QComboBox>

namespace ko {

namespace {

/// The layouts that a combo box offers, to offer them again.
class OfferedLayouts : public ILayoutAdapter
{
public:
    explicit OfferedLayouts(const QComboBox& comboBox)
        : m_comboBox(comboBox)
    {
    }

    QList<Layout> layouts() const override
    {
        QList<Layout> layouts;
        for (int i = 1; i < m_comboBox.count(); ++i) { // the first entry stands for no layout
            Layout layout;
            layout.id = m_comboBox.itemData(i).toInt();
            layout.name = m_comboBox.itemText(i);
            layouts.append(layout);
        }
        return layouts;
    }

private:
    const QComboBox& m_comboBox;
};

} // namespace

void InspectorPage::fillLike(const InspectorPage&) {}

template <>
void PageOf<LayoutOptionsWidget>::fillLike(const InspectorPage& shown)
{
    const auto* layouts = shown.widget()->findChild<QComboBox*>(QLatin1String("preferredLayoutComboBox"));
    if (layouts->count() > 0) {
        const OfferedLayouts offered(*layouts);
        m_page->fillLayoutComboBox(&offered);
    }
    if (shown.widget()->findChild<QComboBox*>(QLatin1String("audioPathIdComboBox"))->count() > 0)
        m_page->fillAudioPathIdComboBox();
}

} // namespace ko
