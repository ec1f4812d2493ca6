#pragma once

#include "enroll/EnrollField.h"

#include <memory>
#include <string>
#include <vector>

class AccountValidator;
class EnrollAgreement;
class EnrollNameField;
class QBoxLayout;
class UBodyEnrollTags;
struct UsbEnrollmentFile;

/// What the enrolment page asks for, and what it shows of an enrolled device. GUI thread.
class EnrollForm : public QFrame {
    Q_OBJECT

public:
    EnrollForm();
    ~EnrollForm() override;

    EnrollField& Code() const { return *m_code; }
    EnrollField& Account() const { return *m_account; }
    EnrollNameField& Name() const { return *m_name; }
    UBodyEnrollTags& Tags() const { return *m_tags; }
    EnrollAgreement& Agreement() const { return *m_agreement; }

    /// Answers with what a file on a USB drive says; what it says nothing of stays.
    void Fill(const UsbEnrollmentFile& file);
    /// Shows these tags in place of those before.
    void SetTags(const std::vector<std::string>& tags);
    /// Whether the user may answer; what is to be agreed to is seen only then.
    void SetAllEditAble(bool editable);

    /// Looks at the answers in their order, and says what is wrong with the first wrong one; null when all
    /// are right. Each is looked at when the user leaves it, too.
    EnrollField* CheckInputIsRight();
    bool CheckSchoolCodeInputIsRight();
    bool CheckAdminAccountInputIsRight();
    bool CheckDeviceNameInputIsRight();
    /// Takes marks and words of wrong answers back; the answers stay.
    void ClearErrors();
    void LanguageChanges();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QBoxLayout* m_first; // code and account, beside each other where there is room
    EnrollField* m_code;
    EnrollField* m_account;
    EnrollNameField* m_name;
    QLabel* m_tagsLabel;
    UBodyEnrollTags* m_tags;
    QFrame* m_line;
    EnrollAgreement* m_agreement;
    std::unique_ptr<AccountValidator> m_accountValidator; // of the last check
    bool m_editable = true;
};
