#ifndef KO_PICTUREVIEW_H
#define KO_PICTUREVIEW_H

#include "ko/TrContext.h"

#include <QLabel>

class QDialog;

namespace ko {

class CameraPictures;

/// What a camera sees, beside its properties. It is fetched when this is shown, and given up when it is
/// hidden.
class PictureView : public QLabel
{
    Q_OBJECT
    KO_TR_CONTEXT(PictureView)

public:
    enum Limits { Width = 320, Height = 180 /* pixels, at most */ };

    PictureView(CameraPictures& pictures, const QString& id, QWidget* parent = nullptr);

    /// Puts one above all else in a dialog about a node, if it is a node that can have a picture.
    static void addTo(QDialog& dialog, CameraPictures& pictures, const QString& id);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showPicture();

    CameraPictures& m_pictures;
    const QString m_id;
};

} // namespace ko

#endif
