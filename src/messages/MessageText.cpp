#include "messages/MessageText.h"

#include "platform/context/Theme.h"

#include <QRegularExpression>
#include <QScroller>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace {

constexpr int LowestHeight = 88;

/// What ends a sentence or a bracket does not belong to the address before it.
QString WithoutPunctuation(QString address) {
    while (!address.isEmpty() && QStringLiteral(".,;:!?)]}'\"").contains(address.back()))
        address.chop(1);
    return address;
}

bool IsWebPage(const QUrl& address) {
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https"));
}

} // namespace

MessageText::MessageText(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("messageText"));
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDefaultTextOption(option);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& address) {
        if (IsWebPage(address))
            emit AddressChosen(address);
    });
}

QSize MessageText::sizeHint() const {
    return {QTextBrowser::minimumSizeHint().width(), LowestHeight};
}

void MessageText::SetText(const QString& text) {
    static const QRegularExpression addresses(QStringLiteral("\\bhttps?://[^\\s<>\"]+"),
                                              QRegularExpression::CaseInsensitiveOption);
    clear();
    QTextCursor cursor(document());
    int written = 0;
    for (auto matches = addresses.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString words = WithoutPunctuation(match.captured());
        const QUrl address(words, QUrl::StrictMode);
        if (!IsWebPage(address))
            continue;
        QTextCharFormat link;
        link.setAnchor(true);
        link.setAnchorHref(QString::fromLatin1(address.toEncoded()));
        link.setForeground(Theme::Instance()->Color(QStringLiteral("accent")));
        link.setFontUnderline(true);
        cursor.insertText(text.mid(written, match.capturedStart() - written), QTextCharFormat());
        cursor.insertText(words, link);
        written = match.capturedStart() + words.size();
    }
    cursor.insertText(text.mid(written), QTextCharFormat());
    moveCursor(QTextCursor::Start);
}
