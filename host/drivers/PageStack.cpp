#include "drivers/PageStack.h"

#include "drivers/AddressGuard.h"
#include "drivers/GeneralPage.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/connect.h"
#include "utils/Retranslation.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace ko {

namespace {

const char ownWidth[] = "ko_width"; ///< property of a caption: the least that its page gives it

/// How far right of its tab's edge a caption begins: pages and their boxes have margins of their own.
int indent(const QLabel* caption)
{
    int left = 0;
    for (const QWidget* box = caption->parentWidget(); box && box->layout(); box = box->parentWidget())
        left += box->contentsMargins().left() + box->layout()->contentsMargins().left();
    return left;
}

/// What a caption takes, or a pixel more. QLabel::sizeHint() lays the text out to find that, which takes an
/// eighth of the time in which the dialog opens.
int widthOf(const QLabel* caption)
{
    const QString text = caption->text().remove(QLatin1Char('&'));
    return caption->fontMetrics().horizontalAdvance(text) + 1 + 2 * caption->margin();
}

void showTitle(QTabWidget& tabs, QWidget& tab, const char* title)
{
    tabs.setTabText(tabs.indexOf(&tab), QCoreApplication::translate("NodeInspector", title));
}

/// A page that comes to the front gives the focus to its first control. On a button that opens a window,
/// Space would open it, so the tabs take the focus instead.
void keepFocusOffOpeners(const QTabWidget& tabs)
{
    const auto* button = qobject_cast<const QAbstractButton*>(tabs.window()->focusWidget());
    if (button && tabs.isAncestorOf(button) && button->text().endsWith(QLatin1String("...")))
        tabs.tabBar()->setFocus(Qt::OtherFocusReason);
}

} // namespace

PageStack::PageStack(const QVector<PageSpec>& specs, QWidget* parent)
    : QWidget(parent)
    , m_goneLabel(new QLabel(this))
{
    QTabWidget* tabs = new QTabWidget(this);
    tabs->setObjectName(QLatin1String("tabWidget"));
    m_goneLabel->setObjectName(QLatin1String("goneLabel"));
    m_goneLabel->setWordWrap(true);
    m_goneLabel->hide();

    QWidget* tab = nullptr;
    for (const PageSpec& spec : specs) {
        if (!tab || tab->objectName() != QLatin1String(spec.tab)) {
            tab = new QWidget;
            tab->setObjectName(QLatin1String(spec.tab));
            new QVBoxLayout(tab);
            tabs->addTab(tab, QString());
            onLanguageChange(tab, [tabs, tab, title = spec.title] { showTitle(*tabs, *tab, title); });
            showTitle(*tabs, *tab, spec.title);
        }
        m_pages.push_back(Page{spec, spec.create(tab), EditorState()});
        tab->layout()->addWidget(m_pages.back().page->widget());
    }
    for (int i = 0; i < tabs->count(); ++i)
        static_cast<QVBoxLayout*>(tabs->widget(i)->layout())->addStretch();

    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_goneLabel);
    layout->addWidget(tabs);
    connect(tabs, &QTabWidget::currentChanged, tabs, [tabs] { keepFocusOffOpeners(*tabs); });

    setTranslated(this, [this, tabs] {
        m_goneLabel->setText(
            tr("This node has been removed meanwhile. Changes cannot be stored: close this window."));
        tabs->tabBar()->setAccessibleName(tr("Pages"));
    });
    alignCaptions();
    // After the pages, which get their new texts in this turn.
    onLanguageChange(this, [this] { QTimer::singleShot(0, this, &PageStack::alignCaptions); });
    addPageKeys(tabs);
}

PageStack::~PageStack() = default;

/// The tab widget has these keys too, but some controls keep them for themselves.
void PageStack::addPageKeys(QTabWidget* tabs)
{
    const auto add = [this, tabs](const QKeySequence& keys, int step) {
        const auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, tabs, [tabs, step] {
            tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
        });
    };
    add(QKeySequence(Qt::CTRL | Qt::Key_Tab), 1);
    add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1);
}

void PageStack::visit(const Visit& visit)
{
    for (Page& page : m_pages)
        visit(page.spec, *page.page);
}

void PageStack::focusFirstField(Qt::FocusReason reason)
{
    QWidget* name = m_pages.empty()
                        ? nullptr
                        : m_pages.front().page->widget()->findChild<QWidget*>(QLatin1String("nameLineEdit"));
    if (name)
        name->setFocus(reason);
}

void PageStack::alignCaptions()
{
    QList<QLabel*> captions;
    const auto add = [&captions](QLayoutItem* item) {
        if (QLabel* caption = item ? qobject_cast<QLabel*>(item->widget()) : nullptr)
            captions.append(caption);
    };
    const QList<QGridLayout*> grids = findChildren<QGridLayout*>();
    for (const QGridLayout* grid : grids) {
        for (int row = 0; row < grid->rowCount(); ++row)
            add(grid->itemAtPosition(row, 0));
    }
    const QList<QFormLayout*> forms = findChildren<QFormLayout*>();
    for (const QFormLayout* form : forms) {
        for (int row = 0; row < form->rowCount(); ++row)
            add(form->itemAt(row, QFormLayout::LabelRole));
    }
    int edge = 0;
    for (QLabel* caption : std::as_const(captions)) {
        if (!caption->property(ownWidth).isValid())
            caption->setProperty(ownWidth, caption->minimumWidth());
        edge = qMax(edge, indent(caption) + qMax(widthOf(caption), caption->property(ownWidth).toInt()));
    }
    for (QLabel* caption : std::as_const(captions))
        caption->setMinimumWidth(edge - indent(caption));
}

void PageStack::init(const NodeID& id, bool readOnly)
{
    m_id = id;
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    m_type = node.null() ? AllNodeTypes : node->type;
    forEach([&id](InspectorPage& page) { page.init(id); });
    if (readOnly)
        forEach([](InspectorPage& page) { page.setReadOnly(true); });
    connectConnectionPage(false);
    guardAddress();
    capture();
    ko::connect(NodeDB::getDB(), SIGNAL(nodeRemoved(ko::NodeID)), this, SLOT(nodeRemoved(ko::NodeID)));
}

void PageStack::init(const NodeHint& hint)
{
    m_type = hint.type;
    forEach([&hint](InspectorPage& page) { page.init(&hint); });
    connectConnectionPage(true);
    guardAddress();
}

void PageStack::accept(Node* node)
{
    forEach([node](InspectorPage& page) { page.accept(node); });
}

void PageStack::accept(NodeHint* hint)
{
    forEach([hint](InspectorPage& page) { page.accept(hint); });
}

void PageStack::refresh()
{
    if (std::exchange(m_isStale, false))
        capture(); // what was stored; nobody can have typed since
    emit aboutToRefresh();
    for (Page& page : m_pages) {
        // A second page is filled and compared, for filling the one that is shown again would lose what
        // was typed, and some pages add to their lists each time.
        QWidget nursery;
        const std::unique_ptr<InspectorPage> fresh = page.spec.create(&nursery);
        fresh->init(m_id);
        fresh->fillLike(*page.page);
        page.state.refresh(page.page->widget(), fresh->widget());
    }
    emit refreshed();
}

void PageStack::stored()
{
    m_isStale = true;
    QTimer::singleShot(0, this, [this] { refreshStale(); });
}

void PageStack::refreshStale()
{
    if (m_isStale && isVisible())
        refresh();
}

void PageStack::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Dialogs fill some lists after init(); nobody has typed anything before the first showing.
    if (!m_shown) {
        capture();
        FieldGuard::enableButtons(*window()); // in the place of a form that refused something
    }
    m_shown = true;
    refreshStale();
}

void PageStack::capture()
{
    for (Page& page : m_pages)
        page.state.capture(page.page->widget());
}

void PageStack::connectConnectionPage(bool proposeNames)
{
    const UserDataWidget* connection = findChild<UserDataWidget*>();
    if (!connection)
        return;
    // Made after the pages were filled, so that a stored port is not taken for a default.
    ko::connect(connection, SIGNAL(sslChanged(int)), this, SLOT(sslChanged(int)));
    if (proposeNames)
        ko::connect(connection, SIGNAL(nameProposal(QString)), findChild<GeneralPage*>(),
                    SLOT(proposeName(QString)));
}

/// After init(), for an address that is stored already stays as it is.
void PageStack::guardAddress()
{
    static const struct // by the names of their fields; a form made from a table names them by their keys
    {
        const char* address;
        const char* port;
        const char* ssl;
        const char* user;
        const char* password;
    } forms[] = {
        {"addressLineEdit", "portSpinBox", "sslCheckBox", "usernameLineEdit", "passwordLineEdit"},
        {"RecordingTransponderIP", "RecordingTransponderPort", "RecordingTransponderSSL",
         "RecordingTransponderUser", "RecordingTransponderPassword"},
    };
    for (const auto& form : forms) {
        const AddressGuard::Fields fields = {findChild<QLineEdit*>(QLatin1String(form.address)),
                                             findChild<QSpinBox*>(QLatin1String(form.port)),
                                             findChild<QAbstractButton*>(QLatin1String(form.ssl)),
                                             findChild<QLineEdit*>(QLatin1String(form.user)),
                                             findChild<QLineEdit*>(QLatin1String(form.password))};
        if (!fields.address)
            continue;
        QWidget* page = fields.address->parentWidget();
        auto* tab = static_cast<QVBoxLayout*>(page->parentWidget()->layout());
        tab->insertWidget(tab->indexOf(page), new AddressGuard(
                                                  fields,
                                                  [this] {
                                                      const kom::smart<const Node> found = twin();
                                                      return found.null() ? QString() : found->name();
                                                  },
                                                  page->parentWidget()));
    }
}

kom::smart<const Node> PageStack::twin() const
{
    const kom::smart<INodeDriverComponent> driver = NodeDB::getDB()->nodeDriver(m_type);
    const kom::smart<NodeHint> hint = driver.null() ? kom::smart<NodeHint>() : driver->createNodeHint(m_type);
    auto* device = dynamic_cast<NodeHintIPDevice*>(hint.get());
    if (!device)
        return kom::smart<const Node>();
    device->address = findChild<QLineEdit*>(QLatin1String("addressLineEdit"))->text();
    device->port = findChild<QSpinBox*>(QLatin1String("portSpinBox"))->value();
    device->channel = findChild<QSpinBox*>(QLatin1String("channelSpinBox"))->value();
    const kom::smart<const Node> twin = NodeDB::getDB()->node(NodeDB::getDB()->lookupHint(*hint));
    return twin.null() || twin->id() == m_id ? kom::smart<const Node>() : twin;
}

void PageStack::sslChanged(int state)
{
    UserDataWidget* connection = findChild<UserDataWidget*>();
    const int port = connection->findChild<QSpinBox*>(QLatin1String("portSpinBox"))->value();
    const bool ssl = state == Qt::Checked;
    if (port == (ssl ? HttpPort : HttpsPort))
        connection->setPort(ssl ? HttpsPort : HttpPort);
}

void PageStack::nodeRemoved(ko::NodeID id)
{
    m_goneLabel->setVisible(m_goneLabel->isVisible() || id == m_id);
}

} // namespace ko
