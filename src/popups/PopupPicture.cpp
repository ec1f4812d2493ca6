#include "popups/PopupPicture.h"

#include "platform/context/RyxPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUuid>
#include <utility>

namespace {

constexpr int CaptureMs = 3000;

} // namespace

TempPicture::TempPicture()
    : m_path(QDir(QString::fromStdWString(RyxPath::GetRyxTempDir()))
                 .filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".png"))) {}

TempPicture::~TempPicture() {
    QFile::remove(m_path);
}

PopupCapture::PopupCapture(QObject* parent) : QObject(parent) {
    m_limit.setObjectName(QStringLiteral("captureLimitTimer"));
    m_limit.setSingleShot(true);
    m_limit.setInterval(CaptureMs);
    connect(&m_limit, &QTimer::timeout, this, &PopupCapture::End);
}

void PopupCapture::Start(WId window, std::shared_ptr<TempPicture> picture) {
    Cancel();
    m_picture = std::move(picture);
    m_process = std::make_unique<QProcess>();
    // The process must not go while it tells of its end, and another may run by the time that is heard.
    const auto end = [this, run = m_run] {
        if (run == m_run)
            End();
    };
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, end,
            Qt::QueuedConnection);
    connect(m_process.get(), &QProcess::errorOccurred, this, end, Qt::QueuedConnection);
    m_process->setProgram(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("ryx-capture")));
    m_process->setArguments({QString::number(window), QDir::toNativeSeparators(m_picture->Path())});
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_process->start();
    m_limit.start();
}

void PopupCapture::Cancel() {
    ++m_run;
    m_limit.stop();
    if (m_process) {
        m_process->disconnect(this);
        m_process->kill();
        m_process.reset(); // waits for its end, which is near
    }
    m_picture.reset();
}

void PopupCapture::End() {
    if (!m_process)
        return;
    const std::shared_ptr<TempPicture> picture = m_picture;
    const bool isCut = m_process->state() != QProcess::NotRunning;
    Cancel();
    if (isCut)
        QFile::remove(picture->Path()); // it may be half of one
    emit Finished();
}
