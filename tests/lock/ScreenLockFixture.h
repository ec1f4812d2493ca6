#pragma once

#include "lock/UDeviceScreenLock.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/PasswordHelper.h"
#include "support/FakeDesktop.h"
#include "support/FakeService.h"
#include "support/LogCapture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

struct ManualClock : Clock {
    QDateTime Now() const override {
        return {QDate(2026, 3, 2), QTime::fromString(time, QStringLiteral("HH:mm"))};
    }
    QString time = QStringLiteral("10:00");
};

class ScreenLock : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppContextData::Instance()->Reset();
        AppContextData::Instance()->SetUnlockPassword(PasswordHelper::HashVelmoraPassword("123456"));
        AppConfigData::Instance()->dataFolder = folder.path().toStdString();
        lock = std::make_unique<UDeviceScreenLock>(clock, windows, input);
        service = std::make_unique<FakeService>();
        link.SetServer(service->Address());
        link.Start();
        ASSERT_TRUE(service->WaitForClient());
        ASSERT_TRUE(QTest::qWaitFor([this] { return link.IsConnected(); }));
        for (auto* box : lock->findChildren<QLineEdit*>())
            boxes.push_back(box);
        std::sort(boxes.begin(), boxes.end(), [](const QLineEdit* a, const QLineEdit* b) {
            return a->property("PasswordIndex").toInt() < b->property("PasswordIndex").toInt();
        });
        ASSERT_EQ(boxes.size(), 6u);
    }
    void TearDown() override { link.Stop(); }

    void Lock(const std::string& endAt = {}) {
        link.Deliver(PipeKey::ScreenLock, "{\"endAt\": \"" + endAt + "\"}");
    }
    void LockAndOpenPad(const std::string& endAt = {}) {
        Lock(endAt);
        ASSERT_TRUE(QTest::qWaitForWindowActive(lock.get()));
        QTest::mouseClick(lock->findChild<QPushButton*>(QStringLiteral("enterPasswordButton")),
                          Qt::LeftButton);
    }
    /// Types where the focus is, as a user does.
    void Type(const QString& keys) {
        for (const QChar key : keys)
            QTest::keyClick(lock->focusWidget(), key.toLatin1());
    }
    void Press(Qt::Key key) { QTest::keyClick(lock->focusWidget(), key); }
    QString Typed() const {
        QString text;
        for (const QLineEdit* box : boxes)
            text += box->text().isEmpty() ? QStringLiteral("-") : box->text();
        return text;
    }
    int FocusedBox() const {
        return lock->focusWidget() ? lock->focusWidget()->property("PasswordIndex").toInt() : -1;
    }
    bool ShowsPad() const { return lock->findChild<QWidget*>(QStringLiteral("passwordPart"))->isVisible(); }
    bool ShowsMessage() const {
        return lock->findChild<QWidget*>(QStringLiteral("messagePart"))->isVisible();
    }
    QString Message() const { return lock->findChild<QLabel*>(QStringLiteral("messageLabel"))->text(); }
    QTimer& BackTimer() { return *lock->findChild<QTimer*>(QStringLiteral("backTimer")); }
    QTimer& UnlockTimer() { return *lock->findChild<QTimer*>(QStringLiteral("unlockTimer")); }
    IdleTimer& Idle() { return *lock->findChild<IdleTimer*>(); }
    static void Expire(QObject& timer) { QMetaObject::invokeMethod(&timer, "timeout"); }
    void ExpireIdle() { emit Idle().Timeout(); }

    LogCapture log;
    ManualClock clock;
    FakeWindows windows;
    FakeInput input;
    PipeClientService& link = *PipeClientService::Instance();
    std::unique_ptr<FakeService> service;
    const QTemporaryDir folder;
    std::unique_ptr<UDeviceScreenLock> lock;
    std::vector<QLineEdit*> boxes;
};
