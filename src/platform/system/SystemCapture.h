#pragma once

#include <QImage>
#include <qwindowdefs.h>

/// Pictures of other programs' windows. As it stands it takes none.
class SystemCapture {
public:
    enum class Result { Done, NoWindow, NotPossible, OfScreen };
    /// With which ryx-capture ends for OfScreen.
    static constexpr int OfScreenExit = 5;
    struct Picture {
        Result result = Result::NotPossible;
        QImage image; ///< in physical pixels
    };

    virtual ~SystemCapture() = default;

    /// What the window shows, also where others cover it; OfScreen: only what is to be seen in its place,
    /// with whatever covers it. Waits for its program, which may be for ever: to be called in a process that
    /// can be ended.
    virtual Picture Take(WId /*window*/) const { return {}; }

    /// Whether the desktop keeps apart what each window shows, so that one can be seen through another. Any
    /// thread.
    virtual bool IsComposited() const { return false; }

    static const SystemCapture& Native();
};
