#include "LineIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <iterator>

namespace ko {

namespace {

struct Line
{
    const char* icon;
    qreal x1, y1, x2, y2; ///< in a square of 16 by 16
};

const Line lines[] = {
    {"list-add", 8, 3, 8, 13},
    {"list-add", 3, 8, 13, 8},
    {"list-remove", 3, 8, 13, 8},
    // A pencil.
    {"document-edit", 2.5, 13.5, 3.5, 10},
    {"document-edit", 3.5, 10, 10.5, 3},
    {"document-edit", 10.5, 3, 13, 5.5},
    {"document-edit", 13, 5.5, 6, 12.5},
    {"document-edit", 6, 12.5, 2.5, 13.5},
    {"document-edit", 8.5, 5, 11, 7.5},
    // A sheet with lines of text.
    {"document-properties", 3.5, 2, 12.5, 2},
    {"document-properties", 12.5, 2, 12.5, 14},
    {"document-properties", 12.5, 14, 3.5, 14},
    {"document-properties", 3.5, 14, 3.5, 2},
    {"document-properties", 6, 5.5, 10, 5.5},
    {"document-properties", 6, 8, 10, 8},
    {"document-properties", 6, 10.5, 8.5, 10.5},
};

class LineIconEngine : public QIconEngine
{
public:
    explicit LineIconEngine(const QString& name)
        : m_name(name)
    {
    }

    static bool has(const QString& name)
    {
        return std::any_of(std::begin(lines), std::end(lines),
                           [&](const Line& line) { return name == QLatin1String(line.icon); });
    }

    QIconEngine* clone() const override { return new LineIconEngine(m_name); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        // Asked for at each painting, so that the symbol follows a palette that changes.
        const QPalette palette = QGuiApplication::palette();
        const QColor colour =
            mode == QIcon::Selected
                ? palette.color(QPalette::HighlightedText)
                : palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                                QPalette::ButtonText);
        const int side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->translate(QRectF(rect).center() - QPointF(side, side) / 2);
        painter->scale(side / 16.0, side / 16.0);
        for (const Line& line : lines) {
            if (m_name == QLatin1String(line.icon))
                painter->drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

private:
    const QString m_name;
};

} // namespace

QIcon themeIcon(const QString& name)
{
    return QIcon::fromTheme(name, LineIconEngine::has(name) ? QIcon(new LineIconEngine(name)) : QIcon());
}

} // namespace ko
