#include "pages/UBodyAbout.h"

#include "platform/ProductConstants.h"
#include "widgets/CommonFacts.h"

UBodyAbout::UBodyAbout(QWidget* parent)
    : UFactsPage(
          {"about", QT_TRANSLATE_NOOP("UBodyAbout", "about_title"),
           QT_TRANSLATE_NOOP("UBodyAbout", "about_sentence"), "",
           [](const QWidget* page) {
               return QVector<PageFact>{
                   {QStringLiteral("version"), tr("fact_version"), QString::fromLatin1(Product::Version)},
                   CommonFacts::DeviceName(),
                   CommonFacts::LinkState(page),
               };
           }},
          parent) {}
