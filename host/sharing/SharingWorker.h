#ifndef KO_SHARINGWORKER_H
#define KO_SHARINGWORKER_H

#include "sharing/SharingSession.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteKeyTask.h"
#include "sharing/SitePresence.h"
#include "store/SharedPasswords.h"

#include <QObject>

#include <memory>
#include <thread>

namespace ko {

/// Shares a file with a site, in a thread of its own and with its own connections to both, as long as it
/// lives. To the programs that use the file it is one more of them.
class KO_HOST_EXPORT SharingWorker : public QObject
{
    Q_OBJECT

public:
    /// \a file can be opened; for \a address see SiteConnection. \a describe is called in the thread.
    SharingWorker(const QString& file, const QString& address, const SharedLog::Describe& describe);
    /// Ends what is under way; what was not sent waits in the file.
    ~SharingWorker() override;

    /// Something was stored in the file: looks at once, which it does five times a second without that.
    void wake();

    /// A key may have come to this desk: tells by keySeen() what there is of it now.
    void takeNewKey();

    /// See SitePresence.
    void setOpen(const QStringList& written, bool isAnyOpen);

signals:
    void stateChanged(const ko::SharingState& state);
    /// What others did is in the file.
    void received();
    /// As long as nodes are open here.
    void editorsSeen(const QVector<ko::NodeEditor>& editors);
    /// Whenever the desk has connected, or a key was set.
    void keySeen(const ko::SiteKeyOutcome& outcome);

private:
    void run();
    void perform(SharedLog& log, SharingSession& session);
    void connectToSite(SharingSession& session, quint64 serial);
    void copy(SharedLog& log, SharingSession& session);
    void agree(SharingSession& session, const SharingSession::Request& request);
    void submit(SharingSession& session, const SharingSession::Request& request);
    void fetch(SharingSession& session, const SharingSession::Request& request);
    void review(SharingSession& session, const SharingSession::Request& request);
    void listen(SharedLog& log, SharingSession& session);
    void pause(SharedLog& log, SharingSession& session);
    void show(const SharingState& state);
    void lookAtKey(SharedLog& log);
    void showEditors(const std::optional<QVector<NodeEditor>>& editors);
    void resealSome(const SharingSession& session);

    const QString m_file;
    const QString m_address;
    const SharedLog::Describe m_describe;
    SiteConnection m_connection;
    SitePresence m_presence;
    SharingState m_shown;
    bool m_mustReseal = false;    ///< what is not sealed with the site's key, which is here
    bool m_mustLookAgain = false; ///< afterwards: others may have sealed with a former key meanwhile
    QString m_resealingKey;       ///< its name
    std::unique_ptr<PasswordResealing> m_resealing;
    std::atomic<bool> m_isKeyNew{false};
    std::atomic<bool> m_stop{false};
    std::thread m_thread; ///< destroyed first
};

} // namespace ko

#endif
