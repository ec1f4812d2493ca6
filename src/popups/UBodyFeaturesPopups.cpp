#include "popups/UBodyFeaturesPopups.h"

#include "widgets/CommonFacts.h"

UBodyFeaturesPopups::UBodyFeaturesPopups(QWidget* parent)
    : UFactsPage({"features", QT_TRANSLATE_NOOP("UBodyFeaturesPopups", "features_title"),
                  QT_TRANSLATE_NOOP("UBodyFeaturesPopups", "features_sentence"),
                  QT_TRANSLATE_NOOP("UBodyFeaturesPopups", "page_note_state_only"),
                  [](const QWidget* page) {
                      return QVector<PageFact>{CommonFacts::LinkState(page), CommonFacts::Organisation()};
                  }},
                 parent) {}
