#include "model/NumberedTexts.h"

#include "kogen/Property.h"

#include <algorithm>

namespace ko {

namespace NumberedTexts {

kogen::PropertySet toSet(const QStringList& texts)
{
    kogen::PropertySet set;
    for (int i = 0; i < std::min<int>(99, int(texts.size())); ++i) {
        const QString name = QString::number(i + 1).rightJustified(2, QLatin1Char('0'));
        set.insert(kom::makeSmart<kogen::StringProperty>(name, texts.at(i)));
    }
    return set;
}

QStringList fromSet(const kogen::PropertySet& set)
{
    QStringList texts;
    for (const auto& entry : set)
        texts.append(entry.second->value().toString());
    return texts;
}

} // namespace NumberedTexts

} // namespace ko
