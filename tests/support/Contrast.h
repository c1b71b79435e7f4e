#ifndef TESTS_SUPPORT_CONTRAST_H
#define TESTS_SUPPORT_CONTRAST_H

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace testsupport {

inline QPalette darkPalette()
{
    const QColor window(45, 45, 45);
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(160, 160, 160));
    }
    return palette;
}

/// Relative luminance as WCAG 2 defines it, 0 to 1.
inline double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace testsupport

#endif
