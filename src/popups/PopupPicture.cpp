#include "popups/PopupPicture.h"

#include "platform/context/RyxPath.h"
#include "platform/system/SystemCapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUuid>
#include <utility>

TempPicture::TempPicture()
    : m_path(QDir(QString::fromStdWString(RyxPath::GetRyxTempDir()))
                 .filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".png"))) {}

TempPicture::~TempPicture() {
    QFile::remove(m_path);
}

PopupCapture::PopupCapture(QObject* parent) : QObject(parent) {}

PopupCapture::~PopupCapture() {
    Cancel();
}

void PopupCapture::Start(WId window, const std::shared_ptr<TempPicture>& picture) {
    Cancel();
    m_isOfScreen = false;
    m_process = new QProcess(this);
    // The picture outlives the process that writes it.
    connect(m_process, &QObject::destroyed, [held = picture]() mutable { held.reset(); });
    // Another one may run by the time its end is heard.
    const auto end = [this, run = m_run] {
        if (run == m_run)
            End();
    };
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, end,
            Qt::QueuedConnection);
    connect(m_process, &QProcess::errorOccurred, this, end, Qt::QueuedConnection);
    m_process->setProgram(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("ryx-capture")));
    m_process->setArguments({QString::number(window), QDir::toNativeSeparators(picture->Path())});
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_process->start();
}

void PopupCapture::Cancel() {
    ++m_run;
    QProcess* process = std::exchange(m_process, nullptr);
    if (!process)
        return;
    if (process->state() == QProcess::NotRunning)
        return process->deleteLater();
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), process,
            &QObject::deleteLater);
    process->kill();
}

void PopupCapture::End() {
    m_isOfScreen = m_process->exitCode() == SystemCapture::OfScreenExit;
    Cancel();
    emit Finished();
}
