#include "enroll/UBodyEnroll.h"

#include "platform/context/AppContextData.h"
#include "platform/context/Text.h"
#include "widgets/CommonFacts.h"

#include <QStringList>

namespace {

QString Tags() {
    QStringList tags;
    for (const std::string& tag : AppContextData::Instance()->DeviceTags())
        tags.append(QString::fromStdString(tag));
    return CommonFacts::OrNone(tags.join(QStringLiteral(", ")));
}

} // namespace

UBodyEnroll::UBodyEnroll(QWidget* parent)
    : UFactsPage({"enrolment", QT_TRANSLATE_NOOP("UBodyEnroll", "enrolment_title"),
                  QT_TRANSLATE_NOOP("UBodyEnroll", "enrolment_sentence"),
                  QT_TRANSLATE_NOOP("UBodyEnroll", "page_note_state_only"),
                  [](const QWidget* page) {
                      const AppContextData& context = *AppContextData::Instance();
                      return QVector<PageFact>{
                          CommonFacts::DeviceName(),
                          CommonFacts::LinkState(page),
                          CommonFacts::Organisation(),
                          {QStringLiteral("account"), tr("fact_administrator"),
                           CommonFacts::OrNone(context.AdminAccount())},
                          {QStringLiteral("tag"), tr("fact_tags"), Tags()},
                      };
                  }},
                 parent) {}
