#ifndef KO_PROPERTYFORMPAGE_H
#define KO_PROPERTYFORMPAGE_H

#include "HostExport.h"
#include "ko/TrContext.h"

#include <QString>
#include <QVector>
#include <QWidget>

namespace ko {

class Node;
class NodeHint;
class PropertyAccess;

/// A page made from a table: one field for each property, of nodes whose settings need no rules.
class KO_HOST_EXPORT PropertyFormPage : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(PropertyFormPage)

public:
    struct Field
    {
        enum Kind { Text, Password, Flag, Folder, Port };

        QLatin1String key;   ///< also the object name of the editor
        Kind kind;           ///< Flag: a bool property, Port: an int, the others strings
        const char* caption; ///< in the translation context "PropertyFormPage"
    };

    PropertyFormPage(const QVector<Field>& fields, QWidget* parent);

    void init(const QString& nodeId);
    void init(const NodeHint* hint);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private:
    void load(const PropertyAccess& properties);
    void store(PropertyAccess& properties) const;
    void chooseFolder(const QString& key);

    const QVector<Field> m_fields;
};

} // namespace ko

#endif
