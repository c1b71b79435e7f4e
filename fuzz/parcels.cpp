#include "Input.h"

#include "sharing/ParcelCoding.h"

using namespace ko;

/// What a site sends, as a desk reads it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QString error;
    const QByteArray json(reinterpret_cast<const char*>(data), int(size));
    const std::optional<SharedParcel> parcel = ParcelCoding::decode(json, &error);
    fuzz::require(parcel.has_value() == error.isEmpty(), "an error is told");
    if (!parcel)
        return 0;
    const QByteArray list = ParcelCoding::encode({*parcel});
    const std::optional<SharedParcel> again = ParcelCoding::decode(list.mid(1, list.size() - 2), &error);
    fuzz::require(again && ParcelCoding::encode({*again}) == list, "a parcel stays the same");
    return 0;
}
