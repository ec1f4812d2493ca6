#pragma once

#include "ChildProcess.h"

#include <QRect>
#include <string>

class RunningProduct;

/// Another program's topmost window, which does not close when it is asked to; it goes with this object.
/// Where the programs need a launcher, so does the window: it is one of the program foreign_window there.
class ForeignWindow {
public:
    ForeignWindow(const RunningProduct& product, const std::string& title, const QRect& place);
    ~ForeignWindow();

    /// It takes the focus.
    void Activate();
    /// It comes above all others, and leaves the focus where it is.
    void Raise();

private:
    void Tell(const std::string& command);

    const RunningProduct& m_product;
    std::string m_title;
    unsigned long m_window = 0; // of this program, when there is no launcher
    ChildProcess m_program;     // when there is one
};
