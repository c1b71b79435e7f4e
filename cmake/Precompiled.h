// What most sources include; see ko_precompile().
#include <QAbstractItemModel>
#include <QDateTime>
#include <QDialog>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <memory>
