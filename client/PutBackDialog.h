#ifndef KO_PUTBACKDIALOG_H
#define KO_PUTBACKDIALOG_H

#include "PutBackModel.h"
#include "history/PuttingBack.h"
#include "ko/TrContext.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QTableView;

namespace ko {

/// Shows what putting back, or anything else that is done to many nodes, would change; OK does what is ticked
/// and is still as it is shown, Cancel leaves everything as it is.
class PutBackDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(PutBackDialog)

public:
    typedef std::function<PuttingBack::Outcome(const PutBack&)> Apply;

    /// What it is called, in the language that the program has now.
    typedef std::function<QString()> Title;

    /// What is done, for the words of the window.
    enum class Kind { PutBack, Change };

    /// What is called \a title is put back, or changed, by \a apply.
    PutBackDialog(const Title& title, const PutBack& putBack, const HistoryWords& words, const Apply& apply,
                  QWidget* parent, Kind kind = Kind::PutBack);

    /// Whether any line could be put back when it was shown.
    bool isPossible() const { return m_model.possible() > 0; }

    void accept() override;

    /// The words for what is in \a db.
    static HistoryWords words(HostNodeDB& db);

private:
    void createTable();
    void retranslate();
    void showTicked();
    void tell(const QVector<PutBackLine>& refused);

    const Kind m_kind;
    const Title m_title;
    const HistoryWords m_words;
    const Apply m_apply;
    PutBackModel m_model;
    QLabel* const m_hint;
    QTableView* const m_table;
    QCheckBox* const m_all;
    QDialogButtonBox* const m_buttons;
};

} // namespace ko

#endif
