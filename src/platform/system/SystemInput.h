#pragma once

#include <QPointer>
#include <QWindow>
#include <QtGlobal>
#include <vector>

/// The session's keyboard and mouse. GUI thread.
class SystemInput {
public:
    virtual ~SystemInput() = default;

    /// From now on no key opens a menu of the system's or switches windows, until every window that holds
    /// the keyboard has released it; the last one that took it has it. Ctrl+Alt+Del stays the system's.
    /// X11 lets only a window have the keyboard that can be seen, and Windows may drop a hold, so a holder
    /// asks again now and then; that is no harm.
    void HoldKeyboard(QWindow& window) const;

    /// Does nothing for a window that does not hold the keyboard.
    void ReleaseKeyboard(QWindow& window) const;

    /// Milliseconds since the user last touched keyboard, mouse or screen in this session;
    /// -1 when the system cannot tell.
    virtual qint64 MillisecondsSinceInput() const = 0;

    static const SystemInput& Native();

protected:
    /// The system's part of a hold, for the one window that has the keyboard. Taking twice renews it.
    virtual void TakeKeyboard(QWindow& window) const = 0;
    virtual void FreeKeyboard(QWindow& window) const = 0;

private:
    mutable std::vector<QPointer<QWindow>> m_holders; // the last one has the keyboard
};
