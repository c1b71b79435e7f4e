#include "PutBackDialog.h"

#include "NameList.h"
#include "PlainMessageBox.h"
#include "PlainTable.h"
#include "WindowSize.h"
#include "database/HostNodeDB.h"
#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

/// Of each kind.
const struct
{
    const char* title;
    const char* possible;
    const char* impossible;
    const char* all;
} texts[] = {
    {QT_TRANSLATE_NOOP("PutBackDialog", "Put Back"),
     QT_TRANSLATE_NOOP("PutBackDialog", "%1: this is what would change. OK puts back what is ticked."),
     QT_TRANSLATE_NOOP("PutBackDialog", "%1: nothing of it can be put back any more."),
     QT_TRANSLATE_NOOP("PutBackDialog", "All that can be put back")},
    {QT_TRANSLATE_NOOP("PutBackDialog", "Preview"),
     QT_TRANSLATE_NOOP("PutBackDialog", "%1: this is what would change. OK changes what is ticked."),
     QT_TRANSLATE_NOOP("PutBackDialog", "%1: nothing would change."),
     QT_TRANSLATE_NOOP("PutBackDialog", "All changes")},
};

} // namespace

PutBackDialog::PutBackDialog(const Title& title, const PutBack& putBack, const HistoryWords& words,
                             const Apply& apply, QWidget* parent, Kind kind)
    : QDialog(parent, dialogFlags(true))
    , m_kind(kind)
    , m_title(title)
    , m_words(words)
    , m_apply(apply)
    , m_model(putBack, words)
    , m_hint(new QLabel(this))
    , m_table(new QTableView(this))
    , m_all(new QCheckBox(this))
    , m_buttons(new QDialogButtonBox(isPossible()
                                         ? QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                         : QDialogButtonBox::StandardButtons(QDialogButtonBox::Close),
                                     this))
{
    setObjectName(QStringLiteral("PutBackDialog"));
    m_hint->setObjectName(QStringLiteral("hintLabel"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_all->setObjectName(QStringLiteral("allCheckBox"));
    m_all->setEnabled(isPossible());
    createTable();
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{m_hint, m_table, m_all, m_buttons})
        layout->addWidget(part);
    layout->setStretchFactor(m_table, 1);
    resizeWithinScreen(*this, QSize(860, 440));

    connect(m_buttons, &QDialogButtonBox::accepted, this, &PutBackDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PutBackDialog::reject);
    connect(m_all, &QCheckBox::clicked, this,
            [this] { m_model.tickAll(m_model.ticked() < m_model.possible()); });
    connect(&m_model, &PutBackModel::dataChanged, this, &PutBackDialog::showTicked);
    setTranslated(this, [this] { retranslate(); });
    showTicked();
    m_table->setFocus();
    m_table->setCurrentIndex(m_model.index(0, PutBackModel::NodeColumn)); // where Space ticks
}

void PutBackDialog::createTable()
{
    preparePlainTable(m_table, "linesTableView", &m_model);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setColumnHidden(PutBackModel::ReasonColumn, m_model.possible() == m_model.rowCount());
}

void PutBackDialog::retranslate()
{
    const auto& words = texts[int(m_kind)];
    setWindowTitle(tr(words.title));
    m_hint->setText(
        tr(isPossible() ? words.possible : words.impossible).arg(OutsideText::visible(m_title())));
    m_all->setText(tr(words.all));
    m_table->setAccessibleName(tr("What would change"));
    m_table->resizeColumnsToContents();
}

void PutBackDialog::showTicked()
{
    const int ticked = m_model.ticked();
    m_all->setTristate(ticked > 0 && ticked < m_model.possible());
    m_all->setCheckState(ticked == 0                    ? Qt::Unchecked
                         : ticked == m_model.possible() ? Qt::Checked
                                                        : Qt::PartiallyChecked);
    if (QPushButton* ok = m_buttons->button(QDialogButtonBox::Ok))
        ok->setEnabled(ticked > 0);
}

void PutBackDialog::accept()
{
    if (m_model.ticked() == 0)
        return; // Return in the table
    const PuttingBack::Outcome outcome = m_apply(m_model.putBack());
    if (outcome.stored == StoreOutcome::NotRun) {
        PlainMessageBox::ask(QMessageBox::Critical, this, windowTitle(), outcome.error.message);
        return;
    }
    if (!outcome.refused.isEmpty())
        tell(outcome.refused);
    done(outcome.done.isEmpty() ? Rejected : Accepted);
}

void PutBackDialog::tell(const QVector<PutBackLine>& refused)
{
    QStringList lines;
    for (const PutBackLine& line : refused)
        lines.append(OutsideText::visible(m_words.owner(line.what)) + QLatin1String(": ") +
                     m_words.what(line.what));
    PlainMessageBox::ask(QMessageBox::Warning, this, windowTitle(),
                         tr("Somebody else changed this meanwhile, and it stays as it is now:") +
                             QStringLiteral("\n\n") + listOfNames(lines));
}

HistoryWords PutBackDialog::words(HostNodeDB& db)
{
    return HistoryWords([&db](const QString& id) {
        const Environments::List environments = db.environments().getList();
        const auto found = std::find_if(environments.begin(), environments.end(),
                                        [&id](const auto& environment) { return environment.first == id; });
        return found == environments.end() ? db.summary(id).name : found->second;
    });
}

} // namespace ko
