#pragma once

#include <QObject>
#include <QRect>
#include <QVector>
#include <memory>
#include <vector>

class QWidget;
class SystemWindows;
class WindowKeeper;

/// Blank windows over every screen but the primary one, so that nothing can be used beside a lock.
/// GUI thread.
class ScreenCovers : public QObject {
    Q_OBJECT

public:
    /// `level` is the covers' dynamic property "TopLevel".
    ScreenCovers(int level, const SystemWindows& system);
    ~ScreenCovers() override;

    /// Covers exactly these places, in physical pixels. A place that is covered already stays so without a
    /// moment's break.
    void Show(const QVector<QRect>& places);
    void Hide();

    /// Looks after every cover.
    void Check();

signals:
    void Lost();

private:
    struct Cover {
        std::unique_ptr<QWidget> window;
        std::unique_ptr<WindowKeeper> keeper; // goes first
    };

    Cover Make(const QRect& place);

    const int m_level;
    const SystemWindows& m_system;
    std::vector<Cover> m_covers;
};
