#include "feedback/FeedbackAlerts.h"

#include "platform/context/LanguageHelper.h"
#include "platform/context/Text.h"
#include "widgets/UAlert.h"
#include "widgets/WebErrorText.h"

#include <functional>

namespace {

constexpr int MostSaid = 300; // characters of the service's

UAlert* Make(QWidget* page, const std::function<void(UAlert&)>& setTexts) {
    auto* alert = new UAlert(page);
    setTexts(*alert);
    QObject::connect(LanguageHelper::Instance(), &LanguageHelper::LanguageChanged, alert,
                     [alert, setTexts] { setTexts(*alert); });
    for (const auto answer : {&UAlert::Accepted, &UAlert::Rejected, &UAlert::OtherChosen})
        QObject::connect(alert, answer, alert, &QObject::deleteLater);
    return alert;
}

QString Reason(const LogReportOutcome& outcome) {
    QString text =
        outcome.step == ReportStep::Pack ? Text("feedback_failed_pack") : WebErrorText(outcome.error);
    if (!outcome.said.isEmpty())
        text += QLatin1Char('\n') + Text("feedback_service_says").arg(outcome.said.left(MostSaid));
    return text + QLatin1Char('\n') + Text("feedback_failed_advice");
}

} // namespace

UAlert* FeedbackAlerts::SendWithout(QWidget* page, const QStringList& names) {
    UAlert* alert = Make(page, [names](UAlert& asked) {
        asked.SetTitle(Text("feedback_without_title"));
        asked.SetContent(Text("feedback_without_content").arg(names.join(QLatin1Char('\n'))));
        asked.SetOkText(Text("feedback_without_send"));
        asked.SetCancelText(Text("button_back"));
    });
    alert->SetKind(NoticeKind::Warning);
    return alert;
}

UAlert* FeedbackAlerts::Discard(QWidget* page) {
    UAlert* alert = Make(page, [](UAlert& asked) {
        asked.SetTitle(Text("feedback_leave_title"));
        asked.SetContent(Text("feedback_leave_content"));
        asked.SetOkText(Text("feedback_discard"));
        asked.SetCancelText(Text("feedback_stay"));
    });
    alert->SetDangerous(true);
    return alert;
}

UAlert* FeedbackAlerts::Replace(QWidget* page, const QString& name) {
    UAlert* alert = Make(page, [name](UAlert& asked) {
        asked.SetTitle(Text("feedback_replace_title"));
        asked.SetContent(Text("feedback_replace_content").arg(name));
        asked.SetOkText(Text("feedback_replace"));
        asked.SetCancelText(Text("button_back"));
    });
    alert->SetDangerous(true);
    return alert;
}

UAlert* FeedbackAlerts::Sent(QWidget* page) {
    UAlert* alert = Make(page, [](UAlert& told) {
        told.SetTitle(Text("feedback_sent_title"));
        told.SetContent(Text("feedback_sent_content"));
    });
    alert->SetKind(NoticeKind::Success);
    return alert;
}

UAlert* FeedbackAlerts::NotSent(QWidget* page, const LogReportOutcome& outcome) {
    UAlert* alert = Make(page, [outcome](UAlert& told) {
        told.SetTitle(outcome.MayHaveArrived() ? Text("feedback_unknown_title")
                                               : Text("feedback_failed_title"));
        told.SetContent(outcome.MayHaveArrived() ? Text("feedback_unknown_advice") : Reason(outcome));
        told.SetOkText(Text("feedback_retry"));
        told.SetCancelText(Text("feedback_close"));
        told.SetOtherText(Text("feedback_save"));
    });
    alert->SetKind(NoticeKind::Error);
    return alert;
}
