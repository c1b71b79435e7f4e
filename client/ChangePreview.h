#ifndef KO_CHANGEPREVIEW_H
#define KO_CHANGEPREVIEW_H

#include "model/ChangeSet.h"

#include <QDialog>
#include <QStringList>

#include <optional>
#include <utility>

namespace ko {

class HostNodeDB;

/// Whether what is done to several nodes is shown line by line before it is stored.
namespace ChangePreview {

/// Kept from one start to the next; off at first.
bool isWanted();
void setWanted(bool wanted);

} // namespace ChangePreview

/// What the OK of a dialog does to several nodes: one change set, however long it takes, logged for each of
/// them that is changed, and shown first if the user wants that.
class ManyNodes
{
public:
    ManyNodes(HostNodeDB& db, const QStringList& nodes, Purpose purpose);

    /// Runs \a dialog. From the preview, Cancel leads back into it, with all that was entered there. What is
    /// done is on the disk when it returns.
    ///
    /// Returns the nodes that were changed; without a preview all of those that the dialog went through. None
    /// after a cancel.
    std::optional<QStringList> run(QDialog& dialog);

protected:
    void begin();
    /// \a handled: how many of the nodes were gone through.
    void end(bool isAccepted, int handled);

private:
    std::optional<QStringList> showDraft(QDialog& dialog);

    HostNodeDB& m_db;
    const QStringList m_nodes;
    const Purpose m_purpose;
    const bool m_isShown;
    ChangeSet m_draft;
    int m_handled = 0;
};

/// A dialog that is made with \a Arguments, changes nodes when it is accepted and leaves the audit log to
/// whoever opens it.
template <class Dialog>
class ForMany : public Dialog, public ManyNodes
{
public:
    template <class... Arguments>
    ForMany(HostNodeDB& db, const QStringList& nodes, Purpose purpose, Arguments&&... arguments)
        : Dialog(std::forward<Arguments>(arguments)...)
        , ManyNodes(db, nodes, purpose)
        , m_count(int(nodes.size()))
    {
    }

    std::optional<QStringList> run() { return ManyNodes::run(*this); }

    void accept() override
    {
        begin();
        Dialog::accept();
        end(this->result() == QDialog::Accepted, handledBy(static_cast<const Dialog&>(*this), m_count));
    }

private:
    /// As far as a dialog came that the user can end before it is through; others handle all.
    template <class Ended>
    static auto handledBy(const Ended& dialog, int) -> decltype(dialog.handled())
    {
        return dialog.handled();
    }
    static int handledBy(const QDialog&, int all) { return all; }

    const int m_count;
};

} // namespace ko

#endif
