#include "pages/UBodySetting.h"

#include "pages/UAppearance.h"

UBodySetting::UBodySetting(QWidget* parent)
    : UFactsPage({"settings",
                  QT_TRANSLATE_NOOP("UBodySetting", "settings_title"),
                  QT_TRANSLATE_NOOP("UBodySetting", "settings_sentence"),
                  "",
                  {}},
                 parent) {
    AddWidget(new UAppearance);
}
