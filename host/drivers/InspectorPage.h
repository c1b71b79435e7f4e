#ifndef KO_INSPECTORPAGE_H
#define KO_INSPECTORPAGE_H

#include "HostExport.h"
#include "pages/LayoutOptionsWidget.h"
#include "pages/UserDataWidget.h"

#include <QString>

#include <memory>

class QWidget;

namespace ko {

class Node;
class NodeHint;

/// One page of an inspector, whatever the class of its widget: pages share operations, not a base class.
class KO_HOST_EXPORT InspectorPage
{
public:
    virtual ~InspectorPage() = default;

    virtual QWidget* widget() const = 0;
    virtual void init(const QString& nodeId) = 0;
    virtual void init(const NodeHint* hint) = 0;
    virtual void accept(Node* node) = 0;
    virtual void accept(NodeHint* hint) = 0;
    virtual void setReadOnly(bool readOnly) = 0;

    /// Fills what is filled neither by init() nor by this page's own means, as it is filled in \a shown.
    virtual void fillLike(const InspectorPage& shown);
};

/// The page whose widget is a Widget. The widget belongs to its parent.
template <class Widget>
class PageOf : public InspectorPage
{
public:
    explicit PageOf(Widget* page)
        : m_page(page)
    {
    }

    QWidget* widget() const override { return m_page; }
    void init(const QString& nodeId) override { initPage(m_page, nodeId); }
    void init(const NodeHint* hint) override { initPage(m_page, hint); }
    void accept(Node* node) override { m_page->accept(node); }
    void accept(NodeHint* hint) override { m_page->accept(hint); }
    void setReadOnly(bool readOnly) override { m_page->setReadOnly(readOnly); }
    void fillLike(const InspectorPage& shown) override { InspectorPage::fillLike(shown); }

private:
    template <class Page, class From>
    static void initPage(Page* page, const From& from)
    {
        page->init(from);
    }
    template <class From>
    static void initPage(UserDataWidget* page, const From& from)
    {
        page->init(from, true);
    }

    Widget* const m_page;
};

/// The layout options page gets its lists from the edit dialog, not from init().
template <>
void PageOf<LayoutOptionsWidget>::fillLike(const InspectorPage& shown);

} // namespace ko

#endif
