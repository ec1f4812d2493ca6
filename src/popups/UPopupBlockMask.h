#pragma once

#include "platform/files/Workers.h"
#include "platform/link/PipeKey.h"
#include "popups/PopupReport.h"

#include <QFutureWatcher>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

class PopupPanel;
class QLabel;
class QScreen;
class UToast;

/// Lies over one screen, lets the user point at another program's window, shows what it takes for it, and
/// reports that to the administrator. GUI thread.
class UPopupBlockMask : public QWidget {
    Q_OBJECT

public:
    /// The dynamic property "TopLevel".
    static constexpr int Level = 1;

    UPopupBlockMask(const QScreen& screen, const PopupSystem& system, PopupReport::Upload upload);
    ~UPopupBlockMask() override;

    /// Its screen, in physical pixels of the whole desktop.
    const QRect& Place() const { return m_place; }

    /// Looks at one of the windows of the desktop, in their order; false when it is the one that lies under
    /// the last click.
    static bool EnumWindowsCallback(WId window, UPopupBlockMask& mask);

    /// Shows this window, as if it had been pointed at.
    void Pick(const PickableWindow& window);

    /// Drops what is picked, with its files.
    void Reset();

    /// Whether a report is on its way, or its answer may still come: nothing tells it from that to another
    /// one.
    bool IsReporting() const { return m_isReporting || m_lateReplyTimer.isActive(); }

signals:
    /// The user gives up.
    void Cancelled();
    /// A window is picked: what other masks show is of no use any more.
    void Picked();
    /// The report goes out: nothing is to be picked any more.
    void Reporting();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Retranslate();
    void OnLooked();
    void EndLook();
    void GiveUpLook();
    void ShowPicked(const ProgramFacts& facts);
    QPixmap Preview() const;
    void SaveIcon();
    void Report();
    void Send();
    void TellResult(bool ok);
    void PlacePanel();
    QRect FromPhysical(const QRect& place) const;

    const PopupSystem m_system;
    const PopupReport::Upload m_uploadPicture;
    QRect m_place;
    const bool m_isComposited; // what it covers shines through
    QPixmap m_desktop;         // as it was before
    bool m_busy = false;
    bool m_isReporting = false;
    QPointF m_click; // in physical pixels of the whole desktop
    PickableWindow m_picked;
    PopupReport m_report;
    PopupCapture m_capture;
    std::optional<Workers> m_reader{1}; // one that hangs is left behind
    QFutureWatcher<ProgramFacts> m_facts;
    QTimer m_lookLimit{this};
    Workers m_uploader{1};
    QFutureWatcher<UploadPopupsParams> m_upload;
    Cancellation m_cancellation;
    QTimer m_replyTimer{this};
    QTimer m_lateReplyTimer{this}; // runs once the user has been told that none has come
    std::unique_ptr<UToast> m_toast;
    QLabel* m_preview;
    PopupPanel* m_panel;
};
