#pragma once

#include <QPushButton>

/// A button that is an icon alone. GUI thread.
class UIconButton : public QPushButton {
    Q_OBJECT

public:
    /// The icon is drawn in the colour token `color`.
    UIconButton(const char* objectName, const QString& icon, int size = 22,
                const QString& color = QStringLiteral("text"));

    /// What it does, in the language in use, for the tool tip and for who cannot see the icon. Plain text.
    void SetName(const QString& name);
};
