#pragma once

#include "ChildProcess.h"

class RunningProduct;

/// The program ryx-popups beside the product. It ends with this object.
class PopupProgram {
public:
    /// Has the service take a rule for each of its kinds; false when that takes too long.
    static bool TellRules(RunningProduct& product);

    explicit PopupProgram(const RunningProduct& product);

    /// Its commands stand in tools/popups/Popups.cpp.
    void Tell(const std::string& command) { m_program.Write(command + '\n'); }
    const std::string& Output() { return m_program.Output(); }
    /// How many of its lines contain `text`.
    int Lines(const std::string& text);
    bool Says(const std::string& text, int times = 1);

private:
    ChildProcess m_program;
};
