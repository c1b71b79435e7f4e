#include "Input.h"

#include "store/PropertyCoding.h"

using namespace ko;

namespace {

QString textOf(const PropertyList& list)
{
    QString json;
    PropertyCoding::appendJson(&json, list);
    return json;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto list = PropertyCoding::listFromText({reinterpret_cast<const char*>(data), size});
    if (!list)
        return 0;
    const QString text = textOf(*list);
    const auto again = PropertyCoding::listFromText(text.toStdString());
    fuzz::require(again && textOf(*again) == text, "a list stays the same");
    for (const PropertyList::Entry& entry : *list)
        fuzz::require(PropertyList::sameValue(again->value(entry.name), entry.value),
                      "a value stays the same");
    return 0;
}
