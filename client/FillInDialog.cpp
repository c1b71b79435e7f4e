#include "FillInDialog.h"

#include "MainWindow.h"
#include "NameList.h"
#include "NodeCommands.h"
#include "WindowSize.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

QLabel* wrapped(const char* name, QWidget* parent)
{
    QLabel* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

FillInDialog::FillInDialog(HostNodeDB& db, const QStringList& devices, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_filling(db)
    , m_hint(wrapped("hintLabel", this))
    , m_progress(new QProgressBar(this))
    , m_table(new QTableView(this))
    , m_replace(new QCheckBox(this))
    , m_silent(wrapped("silentLabel", this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("FillInDialog"));
    m_progress->setObjectName(QStringLiteral("progressBar"));
    m_replace->setObjectName(QStringLiteral("replaceCheckBox"));
    createTable();
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part :
         std::initializer_list<QWidget*>{m_hint, m_progress, m_table, m_replace, m_silent, m_buttons})
        layout->addWidget(part);
    layout->setStretchFactor(m_table, 1);
    m_replace->setEnabled(false);
    m_silent->hide();
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    resizeWithinScreen(*this, QSize(760, 440));

    connect(m_buttons, &QDialogButtonBox::accepted, this, &FillInDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &FillInDialog::reject);
    connect(m_replace, &QCheckBox::toggled, &m_model, &FillInModel::tickSet);
    connect(&m_model, &FillInModel::dataChanged, this, &FillInDialog::enableOk);
    connect(&m_filling, &DeviceFilling::progressed, this, &FillInDialog::showProgress);
    connect(&m_filling, &DeviceFilling::finished, this, &FillInDialog::showTold);
    m_filling.ask(devices);
    setTranslated(this, [this] { retranslate(); });
}

void FillInDialog::retranslate()
{
    setWindowTitle(tr("Fill In"));
    m_replace->setText(tr("&Replace also what may have been entered by hand"));
    m_progress->setAccessibleName(tr("Devices that were asked"));
    m_table->setAccessibleName(tr("What the devices said"));
    if (m_isTold)
        showWords();
    else
        showProgress();
}

void FillInDialog::createTable()
{
    m_table->setObjectName(QStringLiteral("factsTableView"));
    m_table->setModel(&m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->verticalHeader()->minimumSectionSize());
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
}

void FillInDialog::showProgress()
{
    m_hint->setText(
        tr("Asking %n device(s) what they are. Nothing is stored yet.", nullptr, m_filling.total()));
    m_progress->setRange(0, std::max(1, m_filling.total()));
    m_progress->setValue(m_filling.done());
}

void FillInDialog::showTold()
{
    m_isTold = true;
    m_progress->hide();
    m_model.setRows(m_filling.rows());
    const QVector<FillInRow>& rows = m_model.rows();
    showWords();
    m_replace->setEnabled(
        std::any_of(rows.cbegin(), rows.cend(), [](const FillInRow& row) { return row.fact.isSet; }));
    m_table->resizeColumnsToContents();
    m_silent->setVisible(!m_filling.silent().isEmpty());
    enableOk();
    m_table->setFocus();
    m_table->setCurrentIndex(m_model.index(0, FillInModel::CameraColumn)); // where Space ticks
}

void FillInDialog::showWords()
{
    m_hint->setText(
        m_model.rows().isEmpty()
            ? tr("There is nothing to fill in.")
            : tr("This is what the devices say and what is not stored yet. OK stores what is ticked."));
    const QStringList silent = m_filling.silent();
    m_silent->setText(tr("%n device(s) said nothing:", nullptr, int(silent.size())) + QLatin1Char('\n') +
                      listOfNames(silent));
}

void FillInDialog::enableOk()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_model.hasTicked());
}

void FillInDialog::accept()
{
    if (!m_buttons->button(QDialogButtonBox::Ok)->isEnabled())
        return; // Return in the table, while devices are asked
    m_changed = m_filling.store(m_model.rows());
    QDialog::accept();
}

QString FillInDialog::run(HostNodeDB& db, const QStringList& devices, QWidget* parent)
{
    FillInDialog dialog(db, devices, parent);
    return dialog.exec() == QDialog::Accepted ? tr("%n device(s) filled in.", nullptr, dialog.changed())
                                              : QString();
}

void FillInDialog::run(MainWindow& window)
{
    const QStringList devices = NodeCommands::selectedDevices(window);
    if (!devices.isEmpty())
        window.say(run(window.database(), devices, &window));
}

} // namespace ko
