#include "CheckPanel.h"

#include "utils/Retranslation.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace ko {

namespace {

const int barWidth = 120;

} // namespace

CheckPanel::CheckPanel(QWidget* parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(this))
    , m_button(new QPushButton(this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("checkPanel"));
    m_text->setObjectName(QStringLiteral("checkLabel"));
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setObjectName(QStringLiteral("checkProgressBar"));
    m_bar->setFixedWidth(barWidth);
    m_bar->setTextVisible(false);
    m_cancel->setObjectName(QStringLiteral("checkCancelButton"));
    m_button->setObjectName(QStringLiteral("checkButton"));
    m_close->setObjectName(QStringLiteral("checkCloseButton"));
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::TabFocus);
    QHBoxLayout* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{m_text, m_bar, m_cancel, m_button, m_close})
        layout->addWidget(part);
    connect(m_cancel, &QPushButton::clicked, this, &CheckPanel::cancelled);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_button, &QPushButton::clicked, this, [this] {
        hide();
        emit pressed();
    });
    setTranslated(this, [this] { retranslate(); });
    hide();
}

/// A line stays in the language in which it was said; progress says itself anew.
void CheckPanel::retranslate()
{
    m_bar->setAccessibleName(tr("Cameras checked"));
    m_cancel->setText(tr("Cance&l"));
    m_close->setAccessibleName(tr("Hide this message"));
    m_close->setToolTip(m_close->accessibleName());
}

void CheckPanel::showParts(bool isRunning)
{
    m_bar->setVisible(isRunning);
    m_cancel->setVisible(isRunning);
    m_button->setVisible(!isRunning);
    m_close->setVisible(!isRunning);
    show();
}

void CheckPanel::showProgress(int done, int total)
{
    const QLocale locale;
    m_text->setText(tr("Cameras checked: %1 of %2").arg(locale.toString(done), locale.toString(total)));
    m_bar->setRange(0, total);
    m_bar->setValue(done);
    showParts(true);
}

void CheckPanel::showLine(const QString& text, const QString& button)
{
    m_text->setText(text);
    m_button->setText(button);
    showParts(false);
}

} // namespace ko
