#include "utils/NaturalOrder.h"

namespace ko {

namespace {

/// A place in a text. Plain pointers: lists of many thousands are sorted while the user waits.
struct Place
{
    explicit Place(const QString& text)
        : at(text.utf16())
        , end(at + text.size())
    {
    }

    bool isAtEnd() const { return at == end; }
    bool isAtDigit() const { return at != end && isDigit(*at); }

    static bool isDigit(ushort unit) { return unit >= '0' && unit <= '9'; }

    const ushort* at;
    const ushort* end;
};

void skipZeros(Place& place)
{
    while (*place.at == '0' && place.at + 1 != place.end && Place::isDigit(place.at[1]))
        ++place.at;
}

/// Compares the numbers at both places and leaves the places behind them. Of two numbers of the same length,
/// the first digit that differs decides.
int compareNumbers(Place& a, Place& b)
{
    skipZeros(a);
    skipZeros(b);
    int difference = 0;
    for (; a.isAtDigit() && b.isAtDigit(); ++a.at, ++b.at) {
        if (difference == 0)
            difference = int(*a.at) - int(*b.at);
    }
    if (a.isAtDigit() != b.isAtDigit())
        return a.isAtDigit() ? 1 : -1;
    return difference;
}

/// Goes to where the first difference may be: most names in a list begin alike.
void skipSameStart(Place& a, Place& b)
{
    const ushort* const begin = a.at;
    while (!a.isAtEnd() && !b.isAtEnd() && *a.at == *b.at) {
        ++a.at;
        ++b.at;
    }
    while (a.at != begin && Place::isDigit(a.at[-1])) { // a number is compared as a whole
        --a.at;
        --b.at;
    }
}

} // namespace

int compareNaturally(const QString& a, const QString& b, Qt::CaseSensitivity sensitivity)
{
    Place placeA(a);
    Place placeB(b);
    skipSameStart(placeA, placeB);
    while (!placeA.isAtEnd() && !placeB.isAtEnd()) {
        if (placeA.isAtDigit() && placeB.isAtDigit()) {
            const int difference = compareNumbers(placeA, placeB);
            if (difference != 0)
                return difference;
            continue;
        }
        QChar first(*placeA.at++);
        QChar second(*placeB.at++);
        if (sensitivity == Qt::CaseInsensitive) {
            first = first.toCaseFolded();
            second = second.toCaseFolded();
        }
        if (first != second)
            return first < second ? -1 : 1;
    }
    return int(placeA.end - placeA.at) - int(placeB.end - placeB.at);
}

} // namespace ko
