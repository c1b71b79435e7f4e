#ifndef TESTS_SUPPORT_ANSWERS_H
#define TESTS_SUPPORT_ANSWERS_H

#include "support/ModalAnswer.h"

#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace testsupport {

/// Answers one dialog after the other; those that came are named.
class Answers
{
public:
    typedef std::function<void(QDialog*)> Action;

    explicit Answers(const QVector<Action>& actions)
        : m_actions(actions)
    {
        next(nullptr);
    }

    QStringList opened() const { return m_opened; }

private:
    void next(QDialog* open)
    {
        if (m_opened.size() >= m_actions.size())
            return;
        const auto answer = [this](QDialog* dialog) {
            m_opened.append(dialog->objectName());
            const Action action = m_actions.at(m_opened.size() - 1);
            next(dialog);
            action(dialog);
        };
        m_answers.push_back(std::make_unique<ModalAnswer>(answer, open));
    }

    const QVector<Action> m_actions;
    std::vector<std::unique_ptr<ModalAnswer>> m_answers;
    QStringList m_opened;
};

} // namespace testsupport

#endif
