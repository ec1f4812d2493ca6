// What the settings lock watches has no meaning here: there is no Control Panel, nor a process that hosts it.
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemProcesses.h"

const SystemDesktop& SystemDesktop::Native() {
    static const SystemDesktop none;
    return none;
}

const SystemProcesses& SystemProcesses::Native() {
    static const SystemProcesses none;
    return none;
}
