#include "ManualWindow.h"

#include "Languages.h"
#include "ManualPages.h"
#include "WindowSize.h"
#include "utils/Retranslation.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSettings>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <QWindow>

namespace ko {

namespace {

const char sizeKey[] = "manual/size";
constexpr int WidestPicture = 620; ///< a window must not have to be made larger for it

/// Shows the pictures of dark windows on a dark ground, and none wider than the text.
class Page : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        if (type != QTextDocument::ImageResource)
            return QTextBrowser::loadResource(type, name);
        QString file = QLatin1Char(':') + source().resolved(name).path();
        if (palette().color(QPalette::Base).lightness() < 128)
            file.replace(QLatin1String(".png"), QLatin1String("-dark.png"));
        const QImage picture(file);
        const qreal scale = devicePixelRatioF();
        if (picture.width() <= WidestPicture * scale)
            return picture;
        QImage narrow = picture.scaledToWidth(qRound(WidestPicture * scale), Qt::SmoothTransformation);
        narrow.setDevicePixelRatio(scale);
        return narrow;
    }
};

} // namespace

ManualWindow::ManualWindow()
    : QDialog(nullptr, Qt::Window)
    , m_search(new QLineEdit(this))
    , m_pages(new QListWidget(this))
    , m_text(new Page(this))
    , m_back(new QPushButton(this))
    , m_forward(new QPushButton(this))
    , m_nothing(new QLabel(this))
    , m_english(new QLabel(this))
{
    setObjectName(QStringLiteral("ManualWindow"));
    setAttribute(Qt::WA_QuitOnClose, false);
    QSplitter* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createContents());
    splitter->addWidget(createReading());
    splitter->setStretchFactor(1, 1);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(createBottom());
    createKeys();
    setTranslated(this, [this] { retranslate(); });
    showFound();
    splitter->setSizes({m_pages->sizeHintForColumn(0) + 3 * m_pages->frameWidth() +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                        700});
    resizeWithinScreen(*this, QSettings().value(QLatin1String(sizeKey), QSize(960, 640)).toSize());
}

ManualWindow::~ManualWindow()
{
    QSettings().setValue(QLatin1String(sizeKey), size());
}

QWidget* ManualWindow::createContents()
{
    QWidget* part = new QWidget(this);
    QVBoxLayout* layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* each : std::initializer_list<QWidget*>{m_search, m_nothing, m_pages})
        layout->addWidget(each);
    m_search->setObjectName(QStringLiteral("searchLineEdit"));
    m_search->setClearButtonEnabled(true);
    m_pages->setObjectName(QStringLiteral("pagesListWidget"));
    m_nothing->setObjectName(QStringLiteral("nothingLabel"));
    m_nothing->setWordWrap(true);
    connect(m_search, &QLineEdit::textChanged, this, &ManualWindow::showFound);
    connect(m_search, &QLineEdit::returnPressed, this, &ManualWindow::findNext);
    connect(m_pages, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item)
            showPage(item->data(Qt::UserRole).toString());
    });
    return part;
}

QWidget* ManualWindow::createReading()
{
    QWidget* part = new QWidget(this);
    QVBoxLayout* layout = new QVBoxLayout(part);
    QHBoxLayout* buttons = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(m_text);
    for (QPushButton* button : {m_back, m_forward}) {
        button->setAutoDefault(false); // Return finds the next place
        button->setEnabled(false);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    m_back->setObjectName(QStringLiteral("backButton"));
    m_forward->setObjectName(QStringLiteral("forwardButton"));
    m_text->setObjectName(QStringLiteral("manualTextBrowser"));
    m_text->setOpenExternalLinks(true);
    connect(m_back, &QPushButton::clicked, m_text, &QTextBrowser::backward);
    connect(m_forward, &QPushButton::clicked, m_text, &QTextBrowser::forward);
    connect(m_text, &QTextBrowser::backwardAvailable, m_back, &QPushButton::setEnabled);
    connect(m_text, &QTextBrowser::forwardAvailable, m_forward, &QPushButton::setEnabled);
    connect(m_text, &QTextBrowser::sourceChanged, this, &ManualWindow::showPlace);
    return part;
}

QWidget* ManualWindow::createBottom()
{
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    m_english->setObjectName(QStringLiteral("englishLabel"));
    m_english->setWordWrap(true);
    QWidget* part = new QWidget(this);
    QHBoxLayout* layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_english, 1);
    layout->addWidget(buttons);
    return part;
}

void ManualWindow::createKeys()
{
    const struct
    {
        QKeySequence::StandardKey key;
        std::function<void()> act;
    } keys[] = {
        {QKeySequence::Back, [this] { m_text->backward(); }},
        {QKeySequence::Forward, [this] { m_text->forward(); }},
        {QKeySequence::FindNext, [this] { findNext(); }},
        {QKeySequence::Find,
         [this] {
             m_search->setFocus(Qt::ShortcutFocusReason);
             m_search->selectAll();
         }},
    };
    for (const auto& each : keys) {
        QAction* action = new QAction(this);
        action->setShortcuts(each.key);
        connect(action, &QAction::triggered, this, each.act);
        addAction(action);
    }
}

void ManualWindow::retranslate()
{
    setWindowTitle(tr("Manual"));
    m_search->setPlaceholderText(tr("Search the manual (Ctrl+F)"));
    m_search->setAccessibleName(tr("Search"));
    m_pages->setAccessibleName(tr("Pages"));
    m_text->setAccessibleName(tr("Page of the manual"));
    m_back->setText(tr("&Back"));
    m_forward->setText(tr("&Forward"));
    m_nothing->setText(tr("No page has all these words."));
    m_english->setText(
        tr("The manual is in English. Names of menus and buttons are those of the English program."));
    m_english->setVisible(Languages::current() != QLatin1String("en"));
}

void ManualWindow::read(const QString& page)
{
    m_search->clear();
    show(); // a text that is not laid out yet scrolls nowhere
    showPage(page);
    followModalWindow();
    raise();
    activateWindow();
    m_text->setFocus();
}

bool ManualWindow::event(QEvent* event)
{
    const bool isDone = QDialog::event(event);
    if (event->type() == QEvent::WindowBlocked)
        followModalWindow();
    return isDone;
}

/// A dialog that waits for its user blocks all windows but its own; this one is to be read beside it.
void ManualWindow::followModalWindow()
{
    if (windowHandle() && QGuiApplication::modalWindow())
        windowHandle()->setTransientParent(QGuiApplication::modalWindow());
}

void ManualWindow::showPage(const QString& page)
{
    m_text->setSource(ManualPages::url(page));
}

/// Markdown has no anchors of its own: a place is a heading.
void ManualWindow::showPlace(const QUrl& url)
{
    for (int row = 0; row < m_pages->count(); ++row) {
        const QSignalBlocker blocker(m_pages);
        if (m_pages->item(row)->data(Qt::UserRole).toString() == url.fileName())
            m_pages->setCurrentRow(row);
    }
    markWords();
    if (!url.hasFragment())
        return;
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || ManualPages::anchor(block.text()) != url.fragment())
            continue;
        m_text->verticalScrollBar()->setValue(
            int(m_text->document()->documentLayout()->blockBoundingRect(block).top()));
        return;
    }
}

QStringList ManualWindow::words() const
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QStringList words = m_search->text().split(blanks);
    words.removeAll(QString());
    return words;
}

void ManualWindow::showFound()
{
    const QString shown = m_text->source().fileName();
    {
        const QSignalBlocker blocker(m_pages);
        m_pages->clear();
        const QStringList pages = ManualPages::all();
        for (const QString& page : pages) {
            if (!ManualPages::contains(page, words()))
                continue;
            auto* item = new QListWidgetItem(ManualPages::title(page), m_pages);
            item->setData(Qt::UserRole, page);
            if (page == shown)
                m_pages->setCurrentItem(item);
        }
    }
    m_nothing->setVisible(m_pages->count() == 0);
    if (!words().isEmpty() && !m_pages->currentItem() && m_pages->count() > 0)
        m_pages->setCurrentRow(0);
    markWords();
}

void ManualWindow::findNext()
{
    if (words().isEmpty())
        return;
    QStringList parts;
    const QStringList wanted = words();
    for (const QString& word : wanted)
        parts.append(QRegularExpression::escape(word));
    const QRegularExpression any(parts.join(QLatin1Char('|')), QRegularExpression::CaseInsensitiveOption);
    if (m_text->find(any))
        return;
    m_text->moveCursor(QTextCursor::Start); // around
    m_text->find(any);
}

void ManualWindow::markWords()
{
    QList<QTextEdit::ExtraSelection> marks;
    const QStringList wanted = words();
    for (const QString& word : wanted) {
        QTextEdit::ExtraSelection mark;
        mark.format.setBackground(palette().highlight());
        mark.format.setForeground(palette().highlightedText());
        for (mark.cursor = m_text->document()->find(word); !mark.cursor.isNull();
             mark.cursor = m_text->document()->find(word, mark.cursor))
            marks.append(mark);
    }
    m_text->setExtraSelections(marks);
}

} // namespace ko
