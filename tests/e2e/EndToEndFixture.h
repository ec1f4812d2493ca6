#pragma once

#include "EnrolPage.h"
#include "ForeignWindow.h"
#include "LockScreen.h"
#include "MainPage.h"
#include "SettingsMask.h"

#include <QDir>
#include <gtest/gtest.h>
#include <list>
#include <memory>

/// The two programs on one screen. What a failed test leaves is a picture and the programs' own story.
class EndToEndTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        screen = std::make_unique<Desktop>(qgetenv(Steering::Display).toStdString());
    }
    static void TearDownTestSuite() { screen.reset(); }

    void SetUp() override {
        // Away from everything that could be hovered over.
        screen->MoveMouse({screen->Size().width() - 1, screen->Size().height() / 2});
    }

    void TearDown() override {
        if (HasFailure()) {
            const auto* test = testing::UnitTest::GetInstance()->current_test_info();
            const QString picture =
                QDir::current().filePath(QStringLiteral("e2e-%1.png").arg(QLatin1String(test->name())));
            screen->Screenshot().save(picture);
            std::string windows;
            for (const DesktopWindow& window : screen->Windows())
                windows += window.title + (window.viewable ? " (viewable)\n" : "\n");
            ADD_FAILURE() << product.Story() << "The windows:\n"
                          << windows << "The screen: " << picture.toStdString();
        }
    }

    bool StartBoth() { return product.StartBoth() && mainPage.WaitForStatus(MainPage::Connected); }
    bool IsHidden() { return screen->WaitForNoWindow(MainPage::Title) && product.FrontEnd().IsRunning(); }

    inline static std::unique_ptr<Desktop> screen;
    RunningProduct product{*screen};
    const MainPage mainPage{product};
    LockScreen lock{product};
    SettingsMask mask{product};
    EnrolPage enrolPage{product};
    std::list<ForeignWindow> foreign;
};
