#pragma once

#include <QObject>
#include <QRect>
#include <memory>
#include <vector>

class QScreen;
class QWidget;

/// Blank windows over every screen but the primary one, so that nothing can be used beside a lock.
/// GUI thread.
class ScreenCovers : public QObject {
    Q_OBJECT

public:
    /// `level` is the covers' dynamic property "TopLevel".
    explicit ScreenCovers(int level);
    ~ScreenCovers() override;

    /// Where a window leaves no pixel of the screen open. Unlike the screen's own geometry, which is rounded
    /// to device-independent pixels, it is never smaller than a screen that its scale does not divide.
    static QRect WholePlace(const QScreen& screen);

    void Show();
    void Hide();

signals:
    /// A screen came, went, or changed its size or place.
    void ScreensChanged();

private:
    const int m_level;
    std::vector<std::unique_ptr<QWidget>> m_covers;
};
