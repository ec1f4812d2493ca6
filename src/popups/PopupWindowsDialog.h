#pragma once

#include "popups/PickableWindow.h"
#include "widgets/UOverlay.h"

class QLabel;
class UTextButton;

/// The windows that can be reported as a list, for those who cannot point at one.
class PopupWindowsDialog : public UOverlay {
    Q_OBJECT

public:
    PopupWindowsDialog(const std::vector<PickableWindow>& windows, QWidget* parent);

signals:
    void Chosen(const PickableWindow& window);

protected:
    void Presented() override;
    void Dismiss() override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QLabel* m_title;
    QLabel* m_none = nullptr;
    UTextButton* m_first = nullptr;
    UTextButton* m_cancel;
};
