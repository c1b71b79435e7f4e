#include "KnownFolders.h"

#include "database/HostNodeDB.h"
#include "ko/PropertyKeys.h"
#include "model/SearchText.h"

#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMap>
#include <QStringListModel>

#include <algorithm>

namespace ko {

namespace {

/// The fields for such a path: those of the dialogs for one camera and for many, and of a folder itself.
QLineEdit* fieldOf(QObject* object)
{
    const QString name = object->objectName();
    const bool isOne = name == QLatin1String("fileServerPathLineEdit") || name == PropertyKeys::Path ||
                       (name == QLatin1String("pathLineEdit") && object->parent() &&
                        object->parent()->objectName() == QLatin1String("specificPathGroupBox"));
    auto* field = isOne ? qobject_cast<QLineEdit*>(object) : nullptr;
    return field && !field->isReadOnly() ? field : nullptr;
}

/// What is below the default path is known by the name of its camera alone.
bool isWhole(const QString& path)
{
    return path.contains(QLatin1Char('/')) || path.contains(QLatin1Char('\\'));
}

} // namespace

KnownFolders::KnownFolders(const HostNodeDB& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KnownFolders::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (!isKey && event->type() != QEvent::FocusIn)
        return QObject::eventFilter(watched, event);
    QLineEdit* field = fieldOf(watched);
    if (field && !isKey)
        refresh(*field);
    if (field && isKey && field->completer() && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        field->completer()->setCompletionPrefix(QString());
        field->completer()->complete();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void KnownFolders::refresh(QLineEdit& field) const
{
    QMap<QString, QString> paths; // in the order of the list, each once
    const QVector<NodeSummary> nodes = m_db.summaries();
    for (const NodeSummary& node : nodes) {
        if (node.type == RecordingFolderType && isWhole(node.location))
            paths.insert(SearchText::sortKey(node.location) + node.location, node.location);
    }
    if (!field.completer()) {
        auto* completer = new QCompleter(new QStringListModel(&field), &field);
        completer->setFilterMode(Qt::MatchContains);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        field.setCompleter(completer);
    }
    static_cast<QStringListModel*>(field.completer()->model())->setStringList(paths.values());
}

} // namespace ko
