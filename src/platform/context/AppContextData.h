#pragma once

#include <QObject>
#include <string>
#include <vector>

/// What the process knows of the device and its enrolment, and the one place that tells of a change.
/// GUI thread only; texts are UTF-8.
class AppContextData : public QObject {
    Q_OBJECT

public:
    enum class Field {
        Enrolled,
        Linked,
        ContextText,
        UnlockPassword,
        UnbindPassword,
        SchoolCode,
        AdminAccount,
        DeviceName,
        DeviceTags,
        PermissionList,
    };
    Q_ENUM(Field)

    static AppContextData* Instance();

    bool Enrolled() const { return m_enrolled; }
    void SetEnrolled(bool enrolled) { Set(Field::Enrolled, m_enrolled, enrolled); }

    /// The pipe to the agent service is up.
    bool Linked() const { return m_linked; }
    void SetLinked(bool linked) { Set(Field::Linked, m_linked, linked); }

    /// The service's context, as last received.
    const std::string& ContextText() const { return m_contextText; }
    void SetContextText(const std::string& text) { Set(Field::ContextText, m_contextText, text); }

    /// Hash of the six digits that unlock screen and settings.
    const std::string& UnlockPassword() const { return m_unlockPassword; }
    void SetUnlockPassword(const std::string& hash) { Set(Field::UnlockPassword, m_unlockPassword, hash); }

    /// Hash of the six digits that allow an unenrolment.
    const std::string& UnbindPassword() const { return m_unbindPassword; }
    void SetUnbindPassword(const std::string& hash) { Set(Field::UnbindPassword, m_unbindPassword, hash); }

    const std::string& SchoolCode() const { return m_schoolCode; }
    void SetSchoolCode(const std::string& code) { Set(Field::SchoolCode, m_schoolCode, code); }

    const std::string& AdminAccount() const { return m_adminAccount; }
    void SetAdminAccount(const std::string& account) { Set(Field::AdminAccount, m_adminAccount, account); }

    /// The name the device is managed under; MachineHelper knows what to show while it is empty.
    const std::string& DeviceName() const { return m_deviceName; }
    void SetDeviceName(const std::string& name) { Set(Field::DeviceName, m_deviceName, name); }

    const std::vector<std::string>& DeviceTags() const { return m_deviceTags; }
    void SetDeviceTags(const std::vector<std::string>& tags) { Set(Field::DeviceTags, m_deviceTags, tags); }

    const std::vector<std::string>& PermissionList() const { return m_permissionList; }
    void SetPermissionList(const std::vector<std::string>& list) {
        Set(Field::PermissionList, m_permissionList, list);
    }

    /// Forgets what an enrolment brought: after it the device belongs to nobody.
    void ForgetEnrolment();

    /// Forgets everything.
    void Reset();

signals:
    /// A field has another value than before.
    void Changed(AppContextData::Field field);

private:
    AppContextData() = default;

    template <class Value>
    void Set(Field field, Value& current, const Value& value) {
        if (current == value)
            return;
        current = value;
        emit Changed(field);
    }

    bool m_enrolled = false;
    bool m_linked = false;
    std::string m_contextText;
    std::string m_unlockPassword;
    std::string m_unbindPassword;
    std::string m_schoolCode;
    std::string m_adminAccount;
    std::string m_deviceName;
    std::vector<std::string> m_deviceTags;
    std::vector<std::string> m_permissionList;
};
