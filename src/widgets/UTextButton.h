#pragma once

#include "widgets/Spinner.h"

#include <QPushButton>

/// A button with a text, in one of the looks of the style sheet, which can show that its action runs.
class UTextButton : public QPushButton {
    Q_OBJECT

public:
    /// Primary: the one thing to do here. Danger: something that cannot be taken back.
    enum class Look { Primary, Secondary, Plain, Danger };
    Q_ENUM(Look)

    explicit UTextButton(QWidget* parent = nullptr);
    explicit UTextButton(Look look, QWidget* parent = nullptr);

    void SetLook(Look look);

    /// While loading, a turning sign stands before the text; the button stays enabled, and it is for its
    /// owner to ignore clicks.
    void SetLoading(bool loading);
    bool IsLoading() const { return m_loading; }

    /// A picture to turn instead of the usual sign.
    void SetLoadingIcon(const QString& path) { m_spinner.SetPicture(path); }

protected:
    /// A double click is one press: its second would take back what the first has begun.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Spinner m_spinner{QStringLiteral("accentText")};
    QIcon m_restingIcon;
    bool m_loading = false;
};
