#include "pages/Transparency.h"

#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"
#include "platform/context/ShownText.h"
#include "widgets/CommonFacts.h"
#include "widgets/LateUpdate.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <algorithm>
#include <utility>

namespace {

/// What a switch means, off and on; translation keys.
const char* KeyOf(DevicePermissions::Switch which, bool on) {
    switch (which) {
    case DevicePermissions::Switch::Location:
        return on ? QT_TRANSLATE_NOOP("", "may_location") : QT_TRANSLATE_NOOP("", "may_not_location");
    case DevicePermissions::Switch::ScreenView:
        return on ? QT_TRANSLATE_NOOP("", "may_view") : QT_TRANSLATE_NOOP("", "may_not_view");
    case DevicePermissions::Switch::RemoteControl:
        break;
    }
    return on ? QT_TRANSLATE_NOOP("", "may_control") : QT_TRANSLATE_NOOP("", "may_not_control");
}

/// What this program does for every organisation.
constexpr const char* Always[] = {QT_TRANSLATE_NOOP("", "may_lock"), QT_TRANSLATE_NOOP("", "may_message"),
                                  QT_TRANSLATE_NOOP("", "may_popups"), QT_TRANSLATE_NOOP("", "may_desktop")};

constexpr int MostOfName = 60;
constexpr int MostUnknown = 20;

} // namespace

Transparency::Transparency(const DevicePermissions& permissions, QWidget* parent)
    : QWidget(parent), m_permissions(permissions), m_title(new UTextLabel("sectionTitle")) {
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("card"));
    m_rows = new QGridLayout(card);
    m_rows->setContentsMargins(24, 16, 24, 16);
    m_rows->setHorizontalSpacing(14);
    m_rows->setVerticalSpacing(10);
    m_rows->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(card);
    auto* update = new LateUpdate(this, [this] { ShowAll(); });
    connect(&m_permissions, &DevicePermissions::Changed, update, &LateUpdate::Ask);
    connect(AppContextData::Instance(), &AppContextData::Changed, update, &LateUpdate::Ask);
    ShowAll();
}

QVector<Transparency::Sentence> Transparency::Sentences() const {
    const AppContextData& context = *AppContextData::Instance();
    const QString manager = CommonFacts::Manager();
    QVector<Sentence> sentences;
    if (context.Enrolled()) {
        for (const auto which : DevicePermissions::AllSwitches) {
            const bool may = m_permissions.IsOn(which);
            sentences.append({may, tr(KeyOf(which, may)).arg(manager)});
        }
        for (const char* key : Always)
            sentences.append({true, tr(key).arg(manager)});
        const auto addUnknown = [&](const std::vector<std::string>& names, const QString& words) {
            int count = 0;
            for (const std::string& name : names)
                if (!DevicePermissions::IsSwitchName(name) && count++ < MostUnknown)
                    sentences.append({true, words.arg(manager, ShownName(name, MostOfName))});
        };
        addUnknown(context.PermissionList(), tr("may_unknown"));
        addUnknown(m_permissions.Held(), tr("holds_unknown"));
    } else {
        sentences.append({false, tr("may_nobody")});
    }
    sentences.append({false, tr("may_not_files")});
    sentences.append({false, tr("may_not_typing")});
    std::stable_sort(sentences.begin(), sentences.end(),
                     [](const Sentence& one, const Sentence& other) { return one.first && !other.first; });
    return sentences;
}

void Transparency::ShowAll() {
    m_title->setText(tr("transparency_title"));
    const QVector<Sentence> sentences = Sentences();
    if (std::exchange(m_shown, sentences) == sentences)
        return;
    while (QLayoutItem* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (int row = 0; row < sentences.size(); ++row)
        AddRow(sentences[row], row);
}

void Transparency::AddRow(const Sentence& sentence, int row) {
    const auto& [may, text] = sentence;
    auto* words = new UTextLabel("transparencySentence");
    words->setText(text);
    m_rows->addWidget(new UIconLabel(22, may ? QStringLiteral("check") : QStringLiteral("close"),
                                     may ? QStringLiteral("accent") : QStringLiteral("textMuted")),
                      row, 0, Qt::AlignTop);
    m_rows->addWidget(words, row, 1);
}

void Transparency::showEvent(QShowEvent* event) {
    ShowAll();
    QWidget::showEvent(event);
}

void Transparency::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowAll();
    QWidget::changeEvent(event);
}
