#pragma once

#include "popups/UPopupBlockMask.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

/// Lets the user pick a window to report: covers every screen with a mask until one is reported or the user
/// gives up. A lock takes the masks away. GUI thread.
class PopupPicker : public QObject {
    Q_OBJECT

public:
    explicit PopupPicker(PopupSystem system = PopupSystem::Native(),
                         PopupReport::Upload upload = PopupReport::UploadToStore, QObject* parent = nullptr);
    ~PopupPicker() override;

    /// Lets the user point at a window, or begins with one that is picked already; false while the answer to
    /// a report may still come. The program's own window `aside` is away meanwhile, as what is to be picked
    /// may lie below it.
    bool Start(QWidget* aside = nullptr, const std::optional<PickableWindow>& picked = {});
    void Close();

    /// What the user may choose from, the topmost first. Some of them may still be refused.
    std::vector<PickableWindow> Windows() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Open();
    void ShowMasks();
    bool IsOpen() const;

    const PopupSystem m_system;
    const PopupReport::Upload m_upload;
    QPointer<QWidget> m_aside;
    QByteArray m_asideGeometry;
    std::optional<PickableWindow> m_picked; // before it was opened
    QTimer m_opening{this};
    std::vector<std::unique_ptr<UPopupBlockMask>> m_masks;
};
