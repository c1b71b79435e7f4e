#include "HistoryFilterBar.h"

#include "audit/ChangeSetTitle.h"
#include "history/HistoryWords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace ko {

HistoryFilterBar::HistoryFilterBar(QWidget* parent)
    : QWidget(parent)
    , m_text(new QLineEdit(this))
    , m_user(new QLineEdit(this))
    , m_kind(new QComboBox(this))
    , m_property(new QComboBox(this))
    , m_isFrom(new QCheckBox(this))
    , m_isTo(new QCheckBox(this))
    , m_from(new QDateEdit(QDate::currentDate().addDays(-7), this))
    , m_to(new QDateEdit(QDate::currentDate(), this))
    , m_textLabel(label(m_text))
    , m_userLabel(label(m_user))
    , m_kindLabel(label(m_kind))
    , m_propertyLabel(label(m_property))
{
    m_text->setObjectName(QStringLiteral("textLineEdit"));
    m_user->setObjectName(QStringLiteral("userLineEdit"));
    m_kind->setObjectName(QStringLiteral("kindComboBox"));
    m_property->setObjectName(QStringLiteral("propertyComboBox"));
    for (QLineEdit* field : {m_text, m_user}) {
        field->setClearButtonEnabled(true);
        connect(field, &QLineEdit::textChanged, this, &HistoryFilterBar::changed);
    }
    for (QComboBox* box : {m_kind, m_property}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // they can be long
        box->setMinimumContentsLength(16);
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &HistoryFilterBar::changed);
    }
    createDates();
    createLayout();
}

QLabel* HistoryFilterBar::label(QWidget* field)
{
    QLabel* label = new QLabel(this);
    label->setBuddy(field);
    return label;
}

void HistoryFilterBar::createDates()
{
    m_isFrom->setObjectName(QStringLiteral("fromCheckBox"));
    m_isTo->setObjectName(QStringLiteral("toCheckBox"));
    m_from->setObjectName(QStringLiteral("fromDateEdit"));
    m_to->setObjectName(QStringLiteral("toDateEdit"));
    const QPair<QCheckBox*, QDateEdit*> dates[] = {{m_isFrom, m_from}, {m_isTo, m_to}};
    for (const auto& date : dates) {
        date.second->setCalendarPopup(true);
        date.second->setEnabled(false);
        connect(date.first, &QCheckBox::toggled, date.second, &QWidget::setEnabled);
        connect(date.first, &QCheckBox::toggled, this, &HistoryFilterBar::changed);
        connect(date.second, &QDateEdit::dateChanged, this, &HistoryFilterBar::changed);
    }
}

void HistoryFilterBar::createLayout()
{
    QGridLayout* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    QWidget* const rows[2][6] = {{m_textLabel, m_text, m_kindLabel, m_kind, m_isFrom, m_from},
                                 {m_userLabel, m_user, m_propertyLabel, m_property, m_isTo, m_to}};
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 6; ++column)
            grid->addWidget(rows[row][column], row, column);
        for (int column = 1; column < 6; ++column)
            setTabOrder(rows[row][column - 1], rows[row][column]);
    }
    setTabOrder(m_from, m_user);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 1);
}

void HistoryFilterBar::retranslate()
{
    m_textLabel->setText(tr("Find:"));
    m_userLabel->setText(tr("User:"));
    m_kindLabel->setText(tr("Kind:"));
    m_propertyLabel->setText(tr("Property:"));
    m_isFrom->setText(tr("From:"));
    m_isTo->setText(tr("To:"));
    m_from->setAccessibleName(tr("From"));
    m_to->setAccessibleName(tr("To"));
    m_text->setPlaceholderText(tr("Nodes, values, what was done"));
    fillKinds();
    fillProperties();
}

void HistoryFilterBar::fillKinds()
{
    const QSignalBlocker blocker(m_kind);
    const int chosen = m_kind->currentIndex();
    m_kind->clear();
    m_kind->addItem(tr("All kinds"));
    const QVector<Purpose> kinds = ChangeSetTitle::all();
    for (const Purpose kind : kinds)
        m_kind->addItem(ChangeSetTitle::kind(kind), int(kind));
    m_kind->setCurrentIndex(std::max(0, chosen));
}

/// In the order of their titles.
void HistoryFilterBar::fillProperties()
{
    const QSignalBlocker blocker(m_property);
    const QString chosen = m_property->currentData().toStringList().value(0);
    const QVector<QStringList> groups = HistoryWords::titledKeys();
    QVector<QPair<QString, QStringList>> titles;
    for (const QStringList& keys : groups)
        titles.append({HistoryWords::title(keys.first()), keys});
    std::sort(titles.begin(), titles.end(),
              [](const auto& a, const auto& b) { return QString::localeAwareCompare(a.first, b.first) < 0; });
    m_property->clear();
    m_property->addItem(tr("All properties"));
    for (const auto& title : std::as_const(titles)) {
        m_property->addItem(title.first, title.second);
        if (title.second.contains(chosen)) // another language may share titles otherwise
            m_property->setCurrentIndex(m_property->count() - 1);
    }
}

HistoryFilter HistoryFilterBar::filter() const
{
    HistoryFilter filter;
    filter.text = m_text->text().trimmed();
    filter.user = m_user->text().trimmed();
    filter.properties = m_property->currentData().toStringList();
    if (m_kind->currentIndex() > 0)
        filter.purpose = Purpose(m_kind->currentData().toInt());
    if (m_isFrom->isChecked())
        filter.from = QDateTime(m_from->date(), QTime(0, 0)).toMSecsSinceEpoch();
    if (m_isTo->isChecked())
        filter.to = QDateTime(m_to->date().addDays(1), QTime(0, 0)).toMSecsSinceEpoch() - 1;
    const QVector<Purpose> kinds = ChangeSetTitle::all();
    for (const Purpose kind : kinds) {
        if (!filter.text.isEmpty() && ChangeSetTitle::kind(kind).contains(filter.text, Qt::CaseInsensitive))
            filter.titled.append(kind);
    }
    return filter;
}

} // namespace ko
