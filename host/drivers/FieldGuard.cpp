#include "drivers/FieldGuard.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace ko {

FieldGuard::FieldGuard(QLineEdit* field, QWidget* parent)
    : QLabel(parent)
    , m_field(field)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void FieldGuard::say(const QString& words)
{
    setText(words);
    setVisible(!words.isEmpty());
}

void FieldGuard::setProblem(const QString& problem)
{
    m_problem = problem;
    m_field->setAccessibleDescription(problem);
    enableButtons(*window());
}

void FieldGuard::enableButtons(const QWidget& window)
{
    const QList<FieldGuard*> guards = window.findChildren<FieldGuard*>();
    const bool isGood = std::all_of(guards.cbegin(), guards.cend(),
                                    [](const FieldGuard* guard) { return guard->m_problem.isEmpty(); });
    const QList<QDialogButtonBox*> boxes = window.findChildren<QDialogButtonBox*>();
    for (const QDialogButtonBox* box : boxes) {
        for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Apply}) {
            if (QPushButton* button = box->button(which))
                button->setEnabled(isGood);
        }
    }
}

} // namespace ko
