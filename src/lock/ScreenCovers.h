#pragma once

#include <QObject>
#include <memory>
#include <vector>

class QWidget;

/// Blank windows over every screen but the primary one, so that nothing can be used beside a lock.
/// GUI thread.
class ScreenCovers : public QObject {
    Q_OBJECT

public:
    ScreenCovers();
    ~ScreenCovers() override;

    void Show();
    void Hide();

signals:
    /// A screen came, went, or changed its size or place.
    void ScreensChanged();

private:
    std::vector<std::unique_ptr<QWidget>> m_covers;
};
