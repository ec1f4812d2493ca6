#include "feedback/UFeedback.h"

#include "widgets/CommonFacts.h"

UFeedback::UFeedback(QWidget* parent)
    : UFactsPage({"feedback", QT_TRANSLATE_NOOP("UFeedback", "feedback_title"),
                  QT_TRANSLATE_NOOP("UFeedback", "feedback_sentence"),
                  QT_TRANSLATE_NOOP("UFeedback", "feedback_note"),
                  [](const QWidget*) { return QVector<PageFact>{CommonFacts::DeviceName()}; }},
                 parent) {
    ShowBackButton();
}
