#pragma once

#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <vector>

/// Windows that do nothing but remember what was asked of them; facts and screens are scripted.
class FakeWindows : public SystemWindows {
public:
    void AllowTakingForeground() const override {}
    void CreateHidden(QWidget&) const override {}
    void RaiseTopmost(WId window) const override { order = {window}; }
    void PlaceBelow(WId window, WId above) const override {
        order.erase(std::remove(order.begin(), order.end(), window), order.end());
        const auto place = std::find(order.begin(), order.end(), above);
        ASSERT_NE(place, order.end());
        order.insert(place + 1, window);
    }
    QVector<QRect> ScreenPlaces() const override { return screens; }
    bool CanCover() const override { return true; }
    void PrepareCover(QWidget&, const QColor&) const override {}
    void Guard(WId window, const QRect&, const std::function<void()>& changed) const override {
        guarded[window] = changed;
    }
    void Unguard(WId window) const override { guarded.erase(window); }
    std::optional<Facts> FactsOf(WId window) const override { return facts[window]; }
    void Restore(WId window, const QRect& place, WId) const override {
        ++restored;
        facts[window] = Facts();
        facts[window]->place = place;
    }
    void Activate(QWidget& window) const override { window.activateWindow(); }

    /// Another program changes a window; the system tells of it, or keeps it to itself.
    void Change(WId window, const Facts& changed, bool tells) {
        facts[window] = changed;
        if (tells)
            guarded.at(window)();
    }

    mutable std::vector<WId> order; // the highest first
    mutable std::map<WId, std::function<void()>> guarded;
    mutable std::map<WId, std::optional<Facts>> facts;
    mutable int restored = 0;
    QVector<QRect> screens{QGuiApplication::primaryScreen()->geometry()};
};

/// An input that remembers who has the keyboard, with a scripted idle time.
class FakeInput : public SystemInput {
public:
    qint64 MillisecondsSinceInput() const override { return idleMs; }

    mutable QWindow* keyboard = nullptr; // who has it
    qint64 idleMs = 0;

protected:
    void TakeKeyboard(QWindow& window) const override { keyboard = &window; }
    void FreeKeyboard(QWindow&) const override { keyboard = nullptr; }
};
