#ifndef KO_FIELDGUARD_H
#define KO_FIELDGUARD_H

#include <QLabel>

class QLineEdit;

namespace ko {

/// Says in words what is wrong with the text of a field, and keeps the buttons that would store it from being
/// pressed as long as any field of the window is refused.
class FieldGuard : public QLabel
{
    Q_OBJECT

public:
    /// Enables what stores, or does not, by what the guards of the window say; for a form that takes the
    /// place of another.
    static void enableButtons(const QWidget& window);

protected:
    /// Hidden at first. The field outlives the guard.
    FieldGuard(QLineEdit* field, QWidget* parent);

    /// An empty text is no problem. Does not show it.
    void setProblem(const QString& problem);
    const QString& problem() const { return m_problem; }

    /// Hidden when they are empty.
    void say(const QString& words);

private:
    QLineEdit* const m_field;
    QString m_problem;
};

} // namespace ko

#endif
