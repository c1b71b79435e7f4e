#include "PictureTip.h"

#include "CameraPictures.h"
#include "NodeListView.h"

#include <QBuffer>
#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QToolTip>

namespace ko {

namespace {

/// For a tool tip, which takes no picture but in its text.
QString inText(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.scaled(QSize(PictureTip::Width, PictureTip::Height), Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "png");
    return QStringLiteral("<img src=\"data:image/png;base64,%1\">")
        .arg(QString::fromLatin1(bytes.toBase64()));
}

} // namespace

PictureTip::PictureTip(NodeListView& list, CameraPictures& pictures)
    : QObject(&list)
    , m_list(list)
    , m_pictures(pictures)
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, [this] { m_pictures.want(m_id); });
    connect(&m_pictures, &CameraPictures::came, this, [this](const QString& id) {
        if (id == m_id)
            showTip();
    });
    list.viewport()->setMouseTracking(true);
    list.viewport()->installEventFilter(this);
}

bool PictureTip::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip:
        return show(static_cast<QHelpEvent*>(event)->pos());
    case QEvent::MouseMove:
        if (idAt(static_cast<QMouseEvent*>(event)->pos()) != m_id)
            leave();
        break;
    case QEvent::Leave:
    case QEvent::Wheel:
    case QEvent::MouseButtonPress:
    case QEvent::Hide:
        leave();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

QString PictureTip::idAt(const QPoint& place) const
{
    return m_list.indexAt(place).data(NodeListModel::NodeIdRole).toString();
}

void PictureTip::leave()
{
    if (m_id.isEmpty())
        return;
    m_delay.stop();
    m_pictures.giveUp();
    m_id.clear();
}

/// False where the list shows its own tip.
bool PictureTip::show(const QPoint& place)
{
    const QString id = idAt(place);
    if (id != m_id)
        leave();
    if (id.isEmpty() || !m_pictures.isOf(id))
        return false;
    m_id = id;
    m_place = place;
    m_delay.start(Delay);
    showTip();
    return true;
}

void PictureTip::showTip()
{
    const QModelIndex index = m_list.indexAt(m_place);
    if (idAt(m_place) != m_id)
        return leave(); // rows have moved under the mouse
    QToolTip::showText(m_list.viewport()->mapToGlobal(m_place), html(), m_list.viewport(),
                       m_list.visualRect(index));
}

/// What the cell says of itself, and the picture, or why there is none.
QString PictureTip::html() const
{
    const CameraPicture picture = m_pictures.picture(m_id);
    const QString time = QLocale().toString(picture.time.toLocalTime(), QLocale::ShortFormat);
    QStringList parts(m_list.indexAt(m_place).data(Qt::ToolTipRole).toString());
    if (picture.image.isNull())
        parts.append(picture.problem.isEmpty() ? tr("Fetching the picture...")
                                               : picture.problem.toHtmlEscaped());
    else
        parts.append(inText(picture.image) + QStringLiteral("<br>") +
                     tr("Seen %1").arg(time).toHtmlEscaped());
    parts.removeAll(QString());
    return QStringLiteral("<p>") + parts.join(QStringLiteral("</p><p>")) + QStringLiteral("</p>");
}

} // namespace ko
