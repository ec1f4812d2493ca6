#pragma once

#include "platform/files/TaskControl.h"

#include <QObject>
#include <QProcess>
#include <QTimer>
#include <memory>
#include <qwindowdefs.h>

/// The name of a picture in the folder of temporary files, which nobody can guess. What is there goes with
/// the last that knows of it. Any thread.
class TempPicture {
public:
    /// GUI thread.
    TempPicture();
    ~TempPicture();
    TempPicture(const TempPicture&) = delete;
    TempPicture& operator=(const TempPicture&) = delete;

    const QString& Path() const { return m_path; }

private:
    QString m_path;
};

/// Takes the picture of a window, beside the event loop and for a limited time. GUI thread.
class PopupCapture : public QObject {
    Q_OBJECT

public:
    explicit PopupCapture(QObject* parent = nullptr);

    /// Starts the program for it, which is to write into `picture`. What was under way before is given up.
    void Start(WId window, std::shared_ptr<TempPicture> picture);
    void Cancel();
    bool IsRunning() const { return m_process != nullptr; }

signals:
    /// It is over; where it failed there is no file.
    void Finished();

private:
    void End();

    std::unique_ptr<QProcess> m_process;
    std::shared_ptr<TempPicture> m_picture; // outlives the process that writes it
    int m_run = 0;                          // number of the process
    QTimer m_limit{this};
};
