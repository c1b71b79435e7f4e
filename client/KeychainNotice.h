#ifndef KO_KEYCHAINNOTICE_H
#define KO_KEYCHAINNOTICE_H

#include "secrets/KeychainWait.h"

#include <QMessageBox>

#include <memory>

namespace ko {

/// Tells the user that the program waits for the keychain, as long as it lives: in a window, which waits as
/// long as the user does, or in a line on the standard error stream.
class KeychainNotice : public KeychainWait
{
public:
    enum class Way { Window, Line };

    explicit KeychainNotice(Way way);
    ~KeychainNotice() override;

    /// Gets the key, for the first window of the program. False if the user would rather quit.
    bool prepare();

    bool begin(const std::function<void()>& giveUp) override;
    void end() override;

private:
    Q_DISABLE_COPY(KeychainNotice)

    const Way m_way;
    std::unique_ptr<QMessageBox> m_box;
    bool m_starting = false;
    bool m_quit = false;
};

} // namespace ko

#endif
