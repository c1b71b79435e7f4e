#include "CheckReportDialog.h"

#include "PlainMessageBox.h"
#include "WindowSize.h"
#include "exchange/CsvFormula.h"
#include "exchange/CsvWriter.h"
#include "exchange/ExportFile.h"
#include "ko/dialogFlags.h"
#include "utils/FileDialogs.h"
#include "utils/Retranslation.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

const int widths[] = {170, 110, 160, 0, 160}; // the reason has the rest
const int rowMargin = 6;

} // namespace

CheckReportDialog::CheckReportDialog(const CheckReportModel::States& results,
                                     const CheckReportModel::NodeOf& nodeOf, int skipped, bool all,
                                     QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_model(new CheckReportModel(results, nodeOf, this))
    , m_view(new QTableView(this))
{
    setObjectName(QStringLiteral("CheckReportDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    QLabel* summaryLabel = new QLabel(this);
    summaryLabel->setObjectName(QStringLiteral("summaryLabel"));
    summaryLabel->setTextFormat(Qt::PlainText);
    summaryLabel->setWordWrap(true);

    m_view->setObjectName(QStringLiteral("camerasTableView"));
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setAlternatingRowColors(true);
    m_view->setWordWrap(false);
    m_view->setTabKeyNavigation(false); // Tab leaves the view
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
    for (int column = 0; column < int(std::size(widths)); ++column) {
        if (widths[column] > 0)
            m_view->setColumnWidth(column, widths[column]);
        else
            m_view->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    }

    QCheckBox* allCheckBox = new QCheckBox(this);
    allCheckBox->setObjectName(QStringLiteral("allCheckBox"));
    connect(allCheckBox, &QCheckBox::toggled, m_model, &CheckReportModel::showAll);
    allCheckBox->setChecked(all);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(summaryLabel);
    layout->addWidget(m_view);
    layout->addWidget(allCheckBox);
    setTranslated(this, [this, summaryLabel, allCheckBox, skipped] {
        setWindowTitle(tr("Cameras Checked"));
        summaryLabel->setText(summary(skipped));
        m_view->setAccessibleName(tr("Cameras"));
        allCheckBox->setText(tr("List also those that &answer"));
    });
    addButtons();
    resizeWithinScreen(*this, QSize(980, 420));
}

void CheckReportDialog::addButtons()
{
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const struct
    {
        const char* name;
        const char* text;
        void (CheckReportDialog::*run)();
    } actions[] = {
        {"showButton", QT_TR_NOOP("S&how Them"), &CheckReportDialog::askForListed},
        {"copyButton", QT_TR_NOOP("&Copy"), &CheckReportDialog::copy},
        {"saveButton", QT_TR_NOOP("&Save As..."), &CheckReportDialog::save},
    };
    for (const auto& action : actions) {
        QPushButton* button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        setTranslated(button, [button, text = action.text] { button->setText(tr(text)); });
        button->setObjectName(QLatin1String(action.name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action.run);
        const auto enable = [this, button] { button->setEnabled(m_model->rowCount() > 0); };
        connect(m_model, &QAbstractItemModel::modelReset, button, enable);
        enable();
    }
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

QString CheckReportDialog::summary(int skipped) const
{
    QStringList counts;
    for (const DeviceReport::State state : CameraStates::all()) {
        const int count = m_model->countOf(state);
        if (count > 0)
            counts.prepend(tr("%1: %2").arg(CameraStates::text(state), QLocale().toString(count)));
    }
    QString summary = counts.join(tr("; ", "between the parts of a list"));
    if (skipped > 0)
        summary += QLatin1Char('\n') +
                   tr("%n node(s) left out, which are no devices or have no address.", nullptr, skipped);
    return summary;
}

void CheckReportDialog::copy()
{
    QStringList lines;
    const QList<QStringList> table = m_model->table();
    for (const QStringList& row : table) {
        QStringList cells;
        for (QString cell : row) {
            cell.replace(QLatin1Char('\t'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
            cells.append(isCsvFormula(cell) ? QLatin1Char('\'') + cell : cell); // as the export writes it
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void CheckReportDialog::save()
{
    const QString name = FileDialogs::saveFile(this, windowTitle(), QStringLiteral("checked-cameras.csv"),
                                               tr("Tables (*.csv);;All files (*)"));
    if (name.isEmpty())
        return;
    ExportFile file(name);
    bool good = file.open();
    if (good) {
        CsvWriter writer(file.device());
        const QList<QStringList> table = m_model->table();
        good = std::all_of(table.begin(), table.end(),
                           [&writer](const QStringList& cells) { return writer.writeRecord(cells); });
    }
    if (!good || !file.commit())
        PlainMessageBox::ask(QMessageBox::Critical, this, windowTitle(),
                             tr("%1 was not written: %2").arg(name, file.whyNot()));
}

void CheckReportDialog::askForListed()
{
    QVector<CheckedCamera> cameras;
    for (int row = 0; row < m_model->rowCount(); ++row)
        cameras.append(m_model->camera(row));
    emit wanted(cameras);
}

} // namespace ko
