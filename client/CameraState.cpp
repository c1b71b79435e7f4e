#include "CameraState.h"

#include <QColor>
#include <QCoreApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace ko {

namespace CameraStates {

namespace {

enum Kind { Good, Doubtful, Bad, Plain };

struct Words
{
    DeviceReport::State state;
    Kind kind;
    const char* text; ///< in the translation context "CameraStates"
};

const Words words[] = {
    {DeviceReport::OtherDevice, Bad, QT_TRANSLATE_NOOP("CameraStates", "Another device than before")},
    {DeviceReport::LockedOut, Bad, QT_TRANSLATE_NOOP("CameraStates", "Locked out")},
    {DeviceReport::WrongPassword, Bad, QT_TRANSLATE_NOOP("CameraStates", "Wrong password")},
    {DeviceReport::ClearPassword, Doubtful, QT_TRANSLATE_NOOP("CameraStates", "Wants a clear password")},
    {DeviceReport::NoAnswer, Bad, QT_TRANSLATE_NOOP("CameraStates", "No answer")},
    {DeviceReport::NoOnvif, Doubtful, QT_TRANSLATE_NOOP("CameraStates", "Not understood")},
    {DeviceReport::NotChecked, Plain, QT_TRANSLATE_NOOP("CameraStates", "Not checked")},
    {DeviceReport::Answers, Good, QT_TRANSLATE_NOOP("CameraStates", "Answers")},
};

const Words& wordsOf(DeviceReport::State state)
{
    return *std::find_if(std::begin(words), std::end(words),
                         [state](const Words& entry) { return entry.state == state; });
}

/// As WCAG 2 defines it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// The shade of \a hue nearest to the middle that can be read on both grounds of the rows.
QColor readable(int hue, const QPalette& palette)
{
    const double enough = 4.5;
    const QColor& ground = palette.color(QPalette::Base);
    const QColor& other = palette.color(QPalette::AlternateBase);
    const int step = luminance(ground) < 0.18 ? 8 : -8;
    int lightness = 120;
    QColor color = QColor::fromHsl(hue, 200, lightness);
    while (lightness > 16 && lightness < 239 &&
           std::min(contrast(color, ground), contrast(color, other)) < enough)
        color = QColor::fromHsl(hue, 200, lightness += step);
    return color;
}

} // namespace

QString text(DeviceReport::State state)
{
    return QCoreApplication::translate("CameraStates", wordsOf(state).text);
}

QString details(const CameraState& state)
{
    if (!state.time.isValid())
        return state.reason.text();
    const QString time = QLocale().toString(state.time.toLocalTime(), QLocale::ShortFormat);
    return state.reason.isEmpty() ? time : time + QLatin1String(": ") + state.reason.text();
}

QColor color(DeviceReport::State state, const QPalette& palette)
{
    const int green = 130;
    const int amber = 36;
    const int red = 0;
    switch (wordsOf(state).kind) {
    case Good:
        return readable(green, palette);
    case Doubtful:
        return readable(amber, palette);
    case Bad:
        return readable(red, palette);
    case Plain:
        break;
    }
    return QColor();
}

const QVector<DeviceReport::State>& all()
{
    static const QVector<DeviceReport::State> states = [] {
        QVector<DeviceReport::State> states;
        for (const Words& entry : words)
            states.append(entry.state);
        return states;
    }();
    return states;
}

} // namespace CameraStates

} // namespace ko
