// There is no Control Panel here, nor a process that hosts it, and programs have neither version resources
// nor signatures.
#include "platform/system/SystemProcesses.h"
#include "platform/system/SystemPrograms.h"

#include <QFile>

namespace {

class UnixProcesses final : public SystemProcesses {
public:
    QString GetProcessFilePath(quint32 id) const override {
        return QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(id));
    }
};

} // namespace

const SystemProcesses& SystemProcesses::Native() {
    static const UnixProcesses processes;
    return processes;
}

const SystemPrograms& SystemPrograms::Native() {
    static const SystemPrograms none;
    return none;
}
