#include "pages/UBodyLiveChannel.h"

#include "widgets/CommonFacts.h"

UBodyLiveChannel::UBodyLiveChannel(QWidget* parent)
    : UFactsPage({"live", QT_TRANSLATE_NOOP("UBodyLiveChannel", "live_title"),
                  QT_TRANSLATE_NOOP("UBodyLiveChannel", "live_sentence"),
                  QT_TRANSLATE_NOOP("UBodyLiveChannel", "page_note_state_only"),
                  [](const QWidget* page) {
                      return QVector<PageFact>{CommonFacts::LinkState(page), CommonFacts::Organisation()};
                  }},
                 parent) {}
