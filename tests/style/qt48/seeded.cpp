// What is not in Qt 4.8, each on a line of its own that says what tests/style/check-qt48 must find there.
// It is compiled by that check alone.
#include <QAbstractItemModel>
#include <QComboBox>
#include <QHeaderView>
#include <QSaveFile>      // finds: QSaveFile
#include <QSignalBlocker> // finds: QSignalBlocker

namespace {

const char inParentheses[] = QT_TRANSLATE_NOOP("Seeded", "a"); // finds: in parentheses
const char* const pointer = QT_TRANSLATE_NOOP("Seeded", "a");

class Model : public QAbstractItemModel
{
    Q_OBJECT

public:
    QModelIndex index(int row, int column, const QModelIndex&) const override
    {
        const quintptr id = 1;
        const QModelIndex wide = createIndex(row, column, id); // finds: QAbstractItemModel::createIndex
        return wide.isValid() ? wide : createIndex(row, column, 1U);
    }
    QModelIndex parent(const QModelIndex&) const override { return QModelIndex(); }
    int rowCount(const QModelIndex&) const override { return 0; }
    int columnCount(const QModelIndex&) const override { return 0; }
    QVariant data(const QModelIndex&, int) const override { return QVariant(); }
    bool moveRows(const QModelIndex&, int, int, const QModelIndex&, int) override // finds: moveRows
    {
        return false;
    }

    void touch(const QModelIndex& at)
    {
        emit dataChanged(at, at);
        emit dataChanged(at, at, QVector<int>()); // finds: QAbstractItemModel::dataChanged
    }
};

void members(QComboBox* box, QHeaderView* header, const QList<int>& list)
{
    box->addItem(QLatin1String("a"), 1);
    box->currentData();                               // finds: QComboBox::currentData
    header->setSectionResizeMode(QHeaderView::Fixed); // finds: QHeaderView::setSectionResizeMode
    QLatin1String("a").size();                        // finds: QLatin1String::size
    QString(QLatin1Char('<')).toHtmlEscaped();        // finds: QString::toHtmlEscaped
    const QSignalBlocker blocker(box);                // finds: QSignalBlocker
    QSaveFile(QString()).commit();                    // finds: QSaveFile
    const QHash<int, int> filled = {{1, 2}};          // finds: QHash::QHash
    for (int item : qAsConst(list))                   // finds: qAsConst
        box->setCurrentIndex(item);
    box->setWindowTitle(QStringLiteral("a")); // finds: QStringLiteral
}

void inMacros(QComboBox* box)
{
    Q_ASSERT(box->currentData().isValid()); // finds: QComboBox::currentData
    Q_UNUSED(box);
}

void connections(QComboBox* box)
{
    QObject::connect(box, SIGNAL(activated(int)), box, SLOT(setCurrentIndex(int)));
    QObject::connect(box, SIGNAL(editTextChanged(QString)), box,
                     SLOT(setCurrentText(QString))); // finds: setCurrentText
    QObject::connect(box,
                     SIGNAL(currentTextChanged(QString)), // finds: currentTextChanged
                     box, SLOT(hide()));
    QObject::connect(box, &QComboBox::destroyed, box, [] {}); // finds: QObject::connect
    const struct
    {
        QObject* sender;
        const char* signal;
    } table[] = {
        {box, SIGNAL(currentTextChanged(QString))}, // finds: currentTextChanged
    };
    Q_UNUSED(table);
}

} // namespace
