#include "ImportReportDialog.h"

#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ko {

namespace {

QStringList linesOf(const QVector<CameraSurvey::BadLine>& lines)
{
    QStringList texts;
    for (const CameraSurvey::BadLine& line : lines)
        texts.append(ImportReportDialog::tr("Line %1: %2").arg(QString::number(line.line), line.reason));
    return texts;
}

QString details(const CameraSurvey::ImportResult& result)
{
    QStringList lines = linesOf(result.badLines);
    if (!result.doubtfulLines.isEmpty() && !lines.isEmpty())
        lines.append(QString());
    lines += linesOf(result.doubtfulLines);
    if (!result.ignoredColumns.isEmpty())
        lines.append(ImportReportDialog::tr("Columns that are not used: %1")
                         .arg(OutsideText::visible(result.ignoredColumns.join(
                             ImportReportDialog::tr(", ", "between the parts of a list")))));
    return lines.join(QLatin1Char('\n'));
}

QString summary(const CameraSurvey::ImportResult& result)
{
    const QLocale locale;
    QStringList lines;
    if (!result.error.isEmpty())
        lines.append(result.error);
    if (result.cancelled)
        lines.append(ImportReportDialog::tr("The import was cancelled. What was added until then stays."));
    lines.append(ImportReportDialog::tr("%1 added, %2 updated, %3 unchanged, %n line(s) with errors.",
                                        nullptr, int(result.badLines.size()))
                     .arg(locale.toString(result.added), locale.toString(result.updated),
                          locale.toString(result.unchanged)));
    return lines.join(QLatin1String("\n\n"));
}

QString forecast(const CameraSurvey::ImportResult& result)
{
    const QLocale locale;
    QStringList lines(ImportReportDialog::tr(
                          "Importing this list would add %n device(s), change %1 and leave %2 as they are.",
                          nullptr, result.added)
                          .arg(locale.toString(result.updated), locale.toString(result.unchanged)));
    if (!result.badLines.isEmpty())
        lines.append(ImportReportDialog::tr("%n line(s) with errors would be left out.", nullptr,
                                            int(result.badLines.size())));
    if (!result.doubtfulLines.isEmpty())
        lines.append(ImportReportDialog::tr("%n line(s) may be meant differently.", nullptr,
                                            int(result.doubtfulLines.size())));
    return lines.join(QLatin1String("\n\n"));
}

} // namespace

ImportReportDialog::ImportReportDialog(const CameraSurvey::ImportResult& result, QWidget* parent,
                                       Moment moment)
    : QDialog(parent, dialogFlags(true))
{
    setObjectName(QLatin1String(moment == Before ? "ImportForecastDialog" : "ImportReportDialog"));
    setWindowTitle(tr("Import Cameras"));
    QVBoxLayout* layout = new QVBoxLayout(this);

    QLabel* summaryLabel = new QLabel(moment == Before ? forecast(result) : summary(result), this);
    summaryLabel->setObjectName(QStringLiteral("summaryLabel"));
    summaryLabel->setTextFormat(Qt::PlainText);
    summaryLabel->setWordWrap(true);
    summaryLabel->setMinimumWidth(60 * fontMetrics().averageCharWidth()); // or it would wrap within the title
    layout->addWidget(summaryLabel);

    const QString text = details(result);
    if (!text.isEmpty()) {
        QPlainTextEdit* view = new QPlainTextEdit(text, this);
        view->setObjectName(QStringLiteral("detailsTextEdit"));
        view->setAccessibleName(tr("Details"));
        view->setReadOnly(true);
        view->setMinimumSize(480, 160);
        layout->addWidget(view);
    } else {
        layout->addStretch();
    }

    layout->addWidget(createButtons(moment));
}

/// Enter changes nothing: what is asked about may overwrite something.
QDialogButtonBox* ImportReportDialog::createButtons(Moment moment)
{
    auto* buttons =
        new QDialogButtonBox(moment == Before ? QDialogButtonBox::Cancel : QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (moment == Before) {
        QPushButton* import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
        import->setObjectName(QStringLiteral("importButton"));
        import->setAutoDefault(false);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        buttons->button(QDialogButtonBox::Cancel)->setDefault(true);
    }
    return buttons;
}

} // namespace ko
