#pragma once

#include <QToolBar>

namespace ko {

/// A tool bar that leaves out the texts beside its icons before it hides buttons behind an arrow. The
/// texts come back with the room for them; until then the buttons say theirs as tool tips.
class FittingToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit FittingToolBar(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;

private:
    void fit();

    int m_texts = 0; ///< width that the texts add, in pixels; known while they are left out
};

} // namespace ko
