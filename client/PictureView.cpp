#include "PictureView.h"

#include "CameraPictures.h"
#include "utils/Retranslation.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLocale>

namespace ko {

PictureView::PictureView(CameraPictures& pictures, const QString& id, QWidget* parent)
    : QLabel(parent)
    , m_pictures(pictures)
    , m_id(id)
{
    setObjectName(QStringLiteral("pictureView"));
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    connect(&m_pictures, &CameraPictures::came, this, [this](const QString& id) {
        if (id == m_id)
            showPicture();
    });
    setTranslated(this, [this] {
        setAccessibleName(tr("Picture of the camera"));
        showPicture();
    });
}

void PictureView::addTo(QDialog& dialog, CameraPictures& pictures, const QString& id)
{
    auto* layout = qobject_cast<QBoxLayout*>(dialog.layout());
    if (!layout || !pictures.isOf(id))
        return;
    auto* view = new PictureView(pictures, id, &dialog);
    layout->insertWidget(0, view);
    dialog.adjustSize();
}

void PictureView::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    m_pictures.want(m_id);
}

void PictureView::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    if (m_pictures.isUnderWay(m_id))
        m_pictures.giveUp();
}

/// The room for a picture is there before it comes, so that nothing moves then.
void PictureView::showPicture()
{
    const CameraPicture picture = m_pictures.picture(m_id);
    const bool isWaiting = picture.image.isNull() && picture.problem.isEmpty();
    if (isWaiting || !picture.image.isNull())
        setMinimumHeight(Height);
    if (picture.image.isNull()) {
        setText(isWaiting ? tr("Fetching the picture...") : picture.problem);
        return;
    }
    QImage shown = picture.image.scaled(QSize(Width, Height) * devicePixelRatioF(), Qt::KeepAspectRatio,
                                        Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(QPixmap::fromImage(shown));
    setToolTip(tr("Seen %1").arg(QLocale().toString(picture.time.toLocalTime(), QLocale::ShortFormat)));
}

} // namespace ko
