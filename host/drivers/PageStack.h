#ifndef KO_PAGESTACK_H
#define KO_PAGESTACK_H

#include "HostExport.h"
#include "drivers/EditorState.h"
#include "drivers/InspectorPages.h"
#include "ko/TrContext.h"
#include "kom/smart.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QTabWidget;

namespace ko {

/// The pages of an inspector in a tab widget "tabWidget", and what is done with all of them.
class KO_HOST_EXPORT PageStack : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(PageStack)

public:
    PageStack(const QVector<PageSpec>& specs, QWidget* parent);
    ~PageStack() override;

    void init(const NodeID& id, bool readOnly);
    void init(const NodeHint& hint);
    void accept(Node* node);
    void accept(NodeHint* hint);

    /// Brings what the user has not touched up to date with the node.
    void refresh();

    /// What the pages show was stored. They are refreshed once control is back in the event loop, and not
    /// before they are seen again: those of a dialog that is closing need not be built once more.
    void stored();

    typedef std::function<void(const PageSpec& spec, InspectorPage& page)> Visit;
    void visit(const Visit& visit);

    /// The other node that is reached as this one will be; null if there is none.
    kom::smart<const Node> twin() const;

    /// The field where typing starts, which is the name.
    void focusFirstField(Qt::FocusReason reason);

protected:
    void showEvent(QShowEvent* event) override;

signals:
    /// Around each change of the fields that the user did not make.
    void aboutToRefresh();
    void refreshed();

private slots:
    void nodeRemoved(ko::NodeID id);
    void sslChanged(int state);

private:
    struct Page
    {
        PageSpec spec;
        std::unique_ptr<InspectorPage> page;
        EditorState state;
    };

    template <class Each>
    void forEach(Each each)
    {
        for (Page& page : m_pages)
            each(*page.page);
    }
    void connectConnectionPage(bool proposeNames);
    void guardAddress();
    void capture();
    void refreshStale();
    void addPageKeys(QTabWidget* tabs);

    /// Captions line up across pages, also when another tab comes to the front.
    void alignCaptions();

    std::vector<Page> m_pages;
    QLabel* const m_goneLabel;
    NodeID m_id;
    ENodeType m_type = AllNodeTypes;
    bool m_isStale = false; ///< stored() was called
    bool m_shown = false;
};

} // namespace ko

#endif
