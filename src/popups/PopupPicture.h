#pragma once

#include <QObject>
#include <QProcess>
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

/// Takes the picture of a window, beside the event loop. GUI thread.
class PopupCapture : public QObject {
    Q_OBJECT

public:
    explicit PopupCapture(QObject* parent = nullptr);
    ~PopupCapture() override;

    /// Starts the program for it, which is to write into `picture`. What was under way before is given up.
    void Start(WId window, const std::shared_ptr<TempPicture>& picture);
    /// Gives it up. What is written so far goes once the program has ended, which is not waited for.
    void Cancel();
    bool IsRunning() const { return m_process != nullptr; }
    /// Whether the last one shows the screen, with whatever covers the window.
    bool IsOfScreen() const { return m_isOfScreen; }

signals:
    /// It is over; where it failed there is no file.
    void Finished();

private:
    void End();

    QProcess* m_process = nullptr;
    int m_run = 0; // number of the process
    bool m_isOfScreen = false;
};
