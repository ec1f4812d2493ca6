#pragma once

#include "app/MainWindow.h"
#include "app/MenuEntry.h"
#include "app/UBody.h"
#include "app/UMenu.h"
#include "app/UMenuEntry.h"
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"

#include <QStackedWidget>
#include <QtTest>
#include <gtest/gtest.h>

/// The front end's window in English and the light theme, fed by hand.
class Shell : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    }

    void Start(bool enrolled) { stage = std::make_unique<Stage>(enrolled); }
    void ReceiveStatus(int status) { stage->Receive(2, "{\"status\": " + std::to_string(status) + "}"); }

    MainWindow& Window() { return stage->Window(); }
    template <class Part>
    Part& Find() {
        return *Window().findChild<Part*>();
    }
    QString StackPage() { return Find<QStackedWidget>().currentWidget()->objectName(); }
    UMenuEntry& Entry(const char* name) {
        return *Window().findChild<UMenuEntry*>(QString::fromLatin1(name));
    }
    void Press(const char* name) { QTest::mouseClick(&Entry(name), Qt::LeftButton); }
    int BodyPage() { return Find<UBody>().CurrentPage(); }

    std::unique_ptr<Stage> stage;
};
