#include "MomentWindow.h"

#include "MainWindow.h"
#include "PlainTable.h"
#include "PutBackDialog.h"
#include "ReadOnlyNotice.h"
#include "WindowSize.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

const char sizeKey[] = "moment/size";
constexpr int Patience = 300; // ms, after which a window that does nothing looks broken

} // namespace

MomentWindow::MomentWindow(MainWindow& window, const ChangeSetRow& moment)
    : QDialog(&window, Qt::Window)
    , m_window(window)
    , m_moment(moment)
    , m_reading(window.database(), moment.number)
    , m_details(PutBackDialog::words(window.database()))
    , m_hint(label("hintLabel"))
    , m_search(new QLineEdit(this))
    , m_onlyDifferent(new QCheckBox(this))
    , m_nodesView(new QTableView(this))
    , m_detailsView(new QTableView(this))
    , m_nodesLabel(label("nodesLabel"))
    , m_detailsLabel(label("detailsLabel"))
    , m_progress(new QProgressBar(this))
    , m_state(label("stateLabel"))
{
    setObjectName(QStringLiteral("MomentWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    createTables();
    QSplitter* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(titled(m_nodesLabel, m_nodesView));
    splitter->addWidget(titled(m_detailsLabel, m_detailsView));
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 3);
    splitter->setSizes({640, 480});
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{m_hint, createFilter(), splitter, m_progress,
                                                         m_state, createButtons()})
        layout->addWidget(part);
    layout->setStretchFactor(splitter, 1);
    m_progress->setObjectName(QStringLiteral("progressBar"));
    m_progress->setRange(0, 1000);
    m_progress->hide();
    connect(&m_reading, &MomentReading::progressed, this, &MomentWindow::showProgress);
    connect(&m_reading, &MomentReading::finished, this, &MomentWindow::showRows);
    connect(&m_reading, &MomentReading::failed, this, &QWidget::close);
    setTranslated(this, [this] { retranslate(); });
    m_search->setFocus();
    resizeWithinScreen(*this, QSettings().value(QLatin1String(sizeKey), QSize(1120, 560)).toSize());
    m_sinceStart.start();
    m_reading.start();
}

MomentWindow::~MomentWindow()
{
    QSettings().setValue(QLatin1String(sizeKey), size());
}

QLabel* MomentWindow::label(const char* name)
{
    QLabel* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void MomentWindow::createTables()
{
    preparePlainTable(m_nodesView, "nodesTableView", &m_nodes);
    preparePlainTable(m_detailsView, "detailsTableView", &m_details);
    for (const int column : {MomentModel::TypeColumn, MomentModel::DifferenceColumn})
        m_nodesView->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    for (const int column : {MomentModel::NameColumn, MomentModel::AddressColumn})
        m_nodesView->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    m_detailsView->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_nodesView->horizontalHeader()->setSortIndicator(MomentModel::NameColumn, Qt::AscendingOrder);
    m_nodesView->setSortingEnabled(true);
    connect(m_nodesView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &MomentWindow::showDetails);
    connect(m_nodesView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MomentWindow::showState);
    connect(&m_nodes, &QAbstractItemModel::modelReset, this, &MomentWindow::showDetails);
    connect(&m_nodes, &QAbstractItemModel::modelReset, this, &MomentWindow::showState);
}

QWidget* MomentWindow::createFilter()
{
    QWidget* filter = new QWidget(this);
    QHBoxLayout* layout = new QHBoxLayout(filter);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_onlyDifferent);
    m_search->setObjectName(QStringLiteral("searchLineEdit"));
    m_search->setClearButtonEnabled(true);
    m_onlyDifferent->setObjectName(QStringLiteral("differentCheckBox"));
    connect(m_search, &QLineEdit::textChanged, this, &MomentWindow::showFound);
    connect(m_onlyDifferent, &QCheckBox::toggled, this, &MomentWindow::showFound);
    return filter;
}

QWidget* MomentWindow::createButtons()
{
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto add = [&](const char* name, bool all) {
        QPushButton* button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, all] { putBack(all); });
        return button;
    };
    m_putBackAll = add("putBackAllButton", true);
    m_putBackSelected = add("putBackSelectedButton", false);
    m_close = buttons->button(QDialogButtonBox::Close);
    m_close->setAutoDefault(false); // Return in the search closes nothing
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    return buttons;
}

void MomentWindow::retranslate()
{
    const QString title = OutsideText::visible(ChangeSetTitle::of(m_moment));
    const QString time =
        QDateTime::fromMSecsSinceEpoch(m_moment.cause.time).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    setWindowTitle(tr("As It Was, %1", "time").arg(time));
    m_hint->setText(
        tr("The nodes as they were on %1, after \"%2\" by %3. They can be looked at and put back, "
           "but not edited here.",
           "time, what was done, user")
            .arg(time, title, OutsideText::visible(m_moment.cause.user)));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search"));
    m_onlyDifferent->setText(tr("Only what is different now"));
    m_nodesLabel->setText(tr("Nodes:"));
    m_detailsLabel->setText(tr("Properties:"));
    m_nodesView->setAccessibleName(tr("Nodes at that time"));
    m_detailsView->setAccessibleName(tr("Properties then and now"));
    m_progress->setAccessibleName(tr("How much of the changes since then is read"));
    m_putBackAll->setText(tr("Put Back All..."));
    m_putBackSelected->setText(tr("Put Back Selected..."));
    showState();
}

void MomentWindow::showProgress()
{
    m_progress->setVisible(!m_isRead && m_sinceStart.hasExpired(Patience));
    m_progress->setValue(m_reading.progress());
}

void MomentWindow::showRows(const MomentRows& rows)
{
    m_isRead = true;
    m_progress->hide();
    m_nodes.setRows(rows);
    if (m_nodes.rowCount() > 0)
        m_nodesView->setCurrentIndex(m_nodes.index(0, 0));
    showState();
}

void MomentWindow::showFound()
{
    m_nodes.setFilter(m_search->text(), m_onlyDifferent->isChecked());
    if (m_nodes.rowCount() > 0)
        m_nodesView->setCurrentIndex(m_nodes.index(0, 0));
}

void MomentWindow::showDetails()
{
    const QModelIndex current = m_nodesView->currentIndex();
    const QVector<Alteration> details =
        current.isValid() ? m_reading.detailsOf(m_nodes.node(current.row()).node.id) : QVector<Alteration>();
    m_details.setDetails(details, m_reading.known());
}

void MomentWindow::showState()
{
    const QLocale locale;
    const MomentRows& all = m_nodes.all();
    QStringList texts = {m_isRead
                             ? tr("%n node(s) then, %1 different now; %2 shown", nullptr, all.nodeCount())
                                   .arg(locale.toString(all.differing()), locale.toString(m_nodes.rowCount()))
                             : tr("Reading what was done since...")};
    if (!all.others.isEmpty())
        texts.append(tr("Settings or environments are different, too."));
    if (all.unknown > 0)
        texts.append(tr("%n change(s) since then do not fit what is there now: what was before them "
                        "is not known.",
                        nullptr, all.unknown));
    m_state->setText(texts.join(QString::fromUtf8(" \u00b7 ")));
    m_putBackAll->setEnabled(m_isRead);
    m_putBackSelected->setEnabled(m_isRead && m_nodesView->selectionModel()->hasSelection());
}

/// What happened to the selected nodes.
QSet<QString> MomentWindow::selectedThings(const QVector<Alteration>& since) const
{
    QSet<NodeID> ids;
    const QModelIndexList selected = m_nodesView->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        ids.insert(m_nodes.node(index.row()).node.id);
    QSet<QString> things;
    for (const Alteration& alteration : since) {
        if (ids.contains(alteration.node))
            things.insert(alteration.thing());
    }
    return things;
}

void MomentWindow::putBack(bool all)
{
    HostNodeDB& db = m_window.database();
    if (ReadOnlyNotice::refuses(db, this))
        return;
    std::optional<QVector<Alteration>> since = m_reading.since();
    if (since && !all)
        since = Alterations::selected(*since, selectedThings(*since));
    const std::optional<PutBack> now = since ? PuttingBack::preview(db, *since) : std::nullopt;
    if (!now)
        return; // what cannot be read is said by itself
    const auto title = [this] {
        return tr("Back to %1", "time")
            .arg(QDateTime::fromMSecsSinceEpoch(m_moment.cause.time)
                     .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    };
    const Cause cause = Cause::now(Purpose::Undo, Purposes::word(Purpose::Edit));
    PutBackDialog dialog(
        title, *now, PutBackDialog::words(db),
        [&db, &cause](const PutBack& shown) { return PuttingBack::apply(db, shown, cause); }, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_window.applyChanges();
    m_window.say(tr("Put back: %1").arg(title()));
    m_reading.start(); // what is different has become less
}

} // namespace ko
