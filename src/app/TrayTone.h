#pragma once

#include <QObject>
#include <QTimer>

/// Whether the desktop's tray is light or dark, so that the icon in it can stand out. GUI thread.
class TrayTone : public QObject {
    Q_OBJECT

public:
    explicit TrayTone(QObject* parent = nullptr);

    /// "light" or "dark": the resource folder with the icon that suits.
    QString Name() const { return m_dark ? QStringLiteral("dark") : QStringLiteral("light"); }

signals:
    void Changed();

private:
    void Look();

    bool m_dark = false;
    QTimer m_lookAgain;
};
