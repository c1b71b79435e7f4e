#ifndef KO_CAMERACHECKING_H
#define KO_CAMERACHECKING_H

#include "CameraCheck.h"
#include "CameraPictures.h"
#include "audit/NodeLogEntries.h"
#include "exchange/CameraSurvey.h"
#include "ko/TrContext.h"

#include <functional>

namespace ko {

class CheckPanel;
class MainWindow;
class Node;
class NodeListModel;
struct CheckedCamera;

/// Checks of cameras as the user of the window meets them: its list shows the states, a line in its status
/// bar how far it is, and a report what came of it.
class CameraChecking : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(CameraChecking)

public:
    /// The window owns it.
    CameraChecking(MainWindow& window, NodeListModel& model);

    /// In the status bar, while there is something to say.
    CheckPanel* panel() const { return m_panel; }

    /// The selected nodes, or all when none is selected.
    void check();

    /// Says what was \a done, and offers to try the credentials that these have been given, once each.
    void offerToTry(const QString& done, const QStringList& nodes);

    /// The devices that answer in the place of the known ones of the selected nodes become the known ones, if
    /// the user agrees.
    void acceptDevices();

    /// Those of the selected nodes whose devices want it may be sent the password in the clear, if the user
    /// agrees.
    void allowClearPasswords();

    void cancel();

    CameraPictures& pictures() { return m_pictures; }

    /// What the checks said, for a list of cameras that is written; none before the first one.
    CameraSurvey::MoreColumns columns() const;

private:
    /// What can be done next.
    struct Offer
    {
        QString text;
        QString button;
        std::function<void()> take; ///< null for nothing
    };

    void start(const QStringList& nodes, bool isTry);
    void offer(const Offer& offer);
    void takeOffer();
    void finish();

    /// What only the user can decide of the selected cameras that a check found so. All texts are for tr().
    struct Decision
    {
        DeviceReport::State state;
        const char* none; ///< of the selected cameras was found so
        const char* box;
        const char* title;
        const char* question; ///< with the number of devices
        const char* button;
        void (*make)(Node& node, const CameraState& state);
        NodeLogEntry::Kind entry;
        const char* done; ///< with the number of devices
    };

    void decide(const Decision& decision);
    CameraCheck::States selectedIn(DeviceReport::State state) const;
    bool confirm(const Decision& decision, const CameraCheck::States& cameras);
    void change(const Decision& decision, const CameraCheck::States& cameras);
    QStringList names(const CameraCheck::States& others) const;
    QString outcome() const;
    void showReport(bool isWanted);
    void sayResult();
    void showInList(const QVector<CheckedCamera>& cameras);

    MainWindow& m_window;
    NodeListModel& m_model;
    CheckPanel* const m_panel;
    CameraCheck m_check;
    CameraPictures m_pictures;
    Offer m_offer;
    bool m_isTry = false;
    bool m_isCancelled = false;
};

} // namespace ko

#endif
