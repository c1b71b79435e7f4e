#ifndef TESTS_SUPPORT_ANSWERS_H
#define TESTS_SUPPORT_ANSWERS_H

#include "support/ModalAnswer.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace testsupport {

inline void press(QDialog* dialog, QDialogButtonBox::StandardButton button)
{
    dialog->findChild<QDialogButtonBox*>()->button(button)->click();
}

inline void confirm(QDialog* dialog)
{
    press(dialog, QDialogButtonBox::Ok);
}

inline void cancel(QDialog* dialog)
{
    press(dialog, QDialogButtonBox::Cancel);
}

/// Answers one dialog after the other; those that came are named.
class Answers
{
public:
    typedef std::function<void(QDialog*)> Action;

    explicit Answers(const QVector<Action>& actions)
        : m_actions(actions)
    {
        next();
    }

    QStringList opened() const { return m_opened; }

private:
    void next()
    {
        if (m_opened.size() >= m_actions.size())
            return;
        const auto answer = [this](QDialog* dialog) {
            m_opened.append(dialog->objectName());
            const Action action = m_actions.at(m_opened.size() - 1);
            next();
            action(dialog);
        };
        m_answers.push_back(std::make_unique<ModalAnswer>(answer));
    }

    const QVector<Action> m_actions;
    std::vector<std::unique_ptr<ModalAnswer>> m_answers;
    QStringList m_opened;
};

} // namespace testsupport

#endif
