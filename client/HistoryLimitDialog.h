#ifndef KO_HISTORYLIMITDIALOG_H
#define KO_HISTORYLIMITDIALOG_H

#include "ko/TrContext.h"
#include "model/HistoryLimit.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QSpinBox;

namespace ko {

/// Asks how much of the history keeps its details; OK and Cancel only close it.
class HistoryLimitDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(HistoryLimitDialog)

public:
    HistoryLimitDialog(const HistoryLimit& limit, QWidget* parent);

    HistoryLimit limit() const;

private:
    struct Choice
    {
        QCheckBox* box;
        QSpinBox* number;
    };

    Choice addChoice(const char* name, int value, int proposal, int most);
    void retranslate();

    QLabel* const m_hint;
    const Choice m_days;
    const Choice m_megabytes;
    QLabel* const m_when;
};

} // namespace ko

#endif
