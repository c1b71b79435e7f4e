#include "HistoryLimitDialog.h"

#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace ko {

HistoryLimitDialog::HistoryLimitDialog(const HistoryLimit& limit, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_hint(new QLabel(this))
    , m_days(addChoice("days", limit.days, 365, 36500))
    , m_megabytes(addChoice("megabytes", limit.megabytes, 1000, 1000000))
    , m_when(new QLabel(this))
{
    setObjectName(QStringLiteral("HistoryLimitDialog"));
    m_hint->setWordWrap(true);
    m_when->setWordWrap(true);
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QGridLayout* layout = new QGridLayout(this);
    layout->addWidget(m_hint, 0, 0, 1, 2);
    int row = 1;
    for (const Choice& choice : {m_days, m_megabytes}) {
        layout->addWidget(choice.box, row, 0);
        layout->addWidget(choice.number, row, 1);
        ++row;
    }
    layout->addWidget(m_when, row, 0, 1, 2);
    layout->setRowStretch(row + 1, 1);
    layout->addWidget(buttons, row + 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setTranslated(this, [this] { retranslate(); });
    m_days.box->setFocus();
}

/// \a value is 0 for no limit.
HistoryLimitDialog::Choice HistoryLimitDialog::addChoice(const char* name, int value, int proposal, int most)
{
    const Choice choice = {new QCheckBox(this), new QSpinBox(this)};
    choice.box->setObjectName(QLatin1String(name) + QLatin1String("CheckBox"));
    choice.box->setChecked(value > 0);
    choice.number->setObjectName(QLatin1String(name) + QLatin1String("SpinBox"));
    choice.number->setRange(1, most);
    choice.number->setValue(value > 0 ? value : proposal);
    choice.number->setEnabled(value > 0);
    connect(choice.box, &QCheckBox::toggled, choice.number, &QSpinBox::setEnabled);
    return choice;
}

void HistoryLimitDialog::retranslate()
{
    setWindowTitle(tr("Keep History"));
    m_hint->setText(
        tr("The details of a change are what was before and after it. Without them it can be neither "
           "shown nor put back. Who changed something, when and what for is always kept, and so is the "
           "audit log."));
    m_days.box->setText(tr("Take out details that are &older than"));
    m_days.number->setSuffix(tr(" days"));
    m_days.number->setAccessibleName(tr("Days"));
    m_megabytes.box->setText(tr("Take out the oldest details when there are &more than"));
    m_megabytes.number->setSuffix(tr(" MB"));
    m_megabytes.number->setAccessibleName(tr("Megabytes"));
    m_when->setText(tr("This is done a minute after the start of the program and every six hours."));
}

HistoryLimit HistoryLimitDialog::limit() const
{
    const auto value = [](const Choice& choice) {
        return choice.box->isChecked() ? choice.number->value() : 0;
    };
    return {value(m_days), value(m_megabytes)};
}

} // namespace ko
