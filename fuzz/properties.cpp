#include "Input.h"

#include "kogen/PropertySet.h"
#include "store/PropertyCoding.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const int type = int(data[0]) - 2; // some that there are not
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, int(size) - 1);
    for (const QVariant& stored : {QVariant(QString::fromUtf8(bytes)), QVariant(bytes.toLongLong()),
                                   QVariant(bytes.toDouble()), QVariant(bytes), QVariant()}) {
        const QVariant value = PropertyCoding::decode(type, stored);
        if (!value.isValid())
            continue;
        const PropertyCoding::Stored again = PropertyCoding::encode(value);
        fuzz::require(again.type == type, "a value keeps its type");
        const QVariant second = PropertyCoding::decode(again.type, again.value);
        const PropertyCoding::Stored third = PropertyCoding::encode(second);
        fuzz::require(third.type == again.type && third.value == again.value, "a value stays the same");
    }
    return 0;
}
