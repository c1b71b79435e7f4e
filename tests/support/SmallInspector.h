#ifndef TESTS_SUPPORT_SMALLINSPECTOR_H
#define TESTS_SUPPORT_SMALLINSPECTOR_H

#include "inspector/InspectorWidget.h"
#include "support/SmallHost.h"

#include <QVBoxLayout>

#include <vector>

class QLineEdit;
class QTabWidget;

namespace testsupport {

/// The inspector of the small host: a name field "nameLineEdit" and a tab widget "tabWidget".
///
/// It notes "inspector.ok()", "inspector.cancel()", "inspector.updateNode()" and, when it is deleted,
/// "~inspector()". ok() writes the name, if it was typed, and the pages, as an inspector of a host does.
class SmallInspector : public ko::InspectorWidget
{
    Q_OBJECT

public:
    SmallInspector(const QString& id, bool readOnly, unsigned flags, const SmallHostStatePointer& state);
    SmallInspector(ko::NodeHint& hint, unsigned flags, const SmallHostStatePointer& state);
    ~SmallInspector() override;

    using InspectorWidget::flags;
    using InspectorWidget::isReadOnly;
    using InspectorWidget::nodeHint;
    using InspectorWidget::nodeId;

    std::function<void()> onOk; ///< runs first in ok()

    /// Puts a page, which the caller has filled, into a new tab with this object name and title.
    template <class Page>
    void addPage(Page* page, const QString& tabName)
    {
        addTab(page, tabName);
        m_pages.push_back({[page](ko::Node* node) { page->accept(node); },
                           [page](ko::NodeHint* target) { page->accept(target); }});
    }

    void ok() override;
    void cancel() override;
    void updateNode() override;

private:
    struct Page
    {
        std::function<void(ko::Node*)> acceptNode;
        std::function<void(ko::NodeHint*)> acceptHint;
    };

    void build(const QString& name);
    void addTab(QWidget* page, const QString& tabName);

    const SmallHostStatePointer m_state;
    QLineEdit* m_name = nullptr;
    QTabWidget* m_tabs = nullptr;
    std::vector<Page> m_pages;
};

} // namespace testsupport

#endif
