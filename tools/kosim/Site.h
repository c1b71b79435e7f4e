#ifndef KOSIM_SITE_H
#define KOSIM_SITE_H

#include "Announcer.h"
#include "Camera.h"
#include "Discovery.h"
#include "Options.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace kosim {

/// All cameras, and what they do.
class Site : public QObject
{
    Q_OBJECT

public:
    explicit Site(const Options& options);

    /// Empty, or why a camera cannot answer.
    QString start();

private slots:
    void move();
    void storm();
    void sayAnnounced();

private:
    typedef std::vector<std::unique_ptr<Announcer>> Announcers;

    Camera* newCamera(int number) const;
    Behaviour behaviourOf(int number) const;
    QString serveAll();
    QString place();
    Announcement announcementOf(int camera) const;
    void announceCameras();
    void announce(Announcers& announcers, const QVector<Announcement>& announcements);
    int interface() const;

    const Options m_options;
    std::vector<std::unique_ptr<Camera>> m_cameras;
    QHash<QHostAddress, Camera*> m_byAddress; ///< when there is one server
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<Discovery> m_discovery;
    Announcers m_announcers;
    Announcers m_stormAnnouncers;
    QTimer m_moveTimer;
    QTimer m_stormTimer;
    QTimer m_sayTimer;
    QString m_said;
    int m_moves = 0;
    int m_storms = 0;
};

} // namespace kosim

#endif
