#include "messages/MessageText.h"

#include "platform/context/Theme.h"

#include <QRegularExpression>
#include <QScroller>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace {

constexpr int LowestHeight = 88;
constexpr int LongestWord = 1000;

/// What ends a sentence or a bracket does not belong to the address before it.
QString WithoutPunctuation(QString address) {
    while (!address.isEmpty() && QStringLiteral(".,;:!?)]}'\"").contains(address.back()))
        address.chop(1);
    return address;
}

/// Whether there is a word so long that looking for its end on each line takes seconds.
bool HasEndlessWord(const QString& text) {
    QTextBoundaryFinder ends(QTextBoundaryFinder::Line, text);
    for (int begin = 0, end = 0; (end = ends.toNextBoundary()) >= 0; begin = end)
        if (end - begin > LongestWord)
            return true;
    return false;
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
    // Languages without blanks go on behind an address: their punctuation ends it, and so does what is
    // unseen.
    static const QRegularExpression addresses(
        QStringLiteral(R"(\bhttps?://(?:[^\s<>"\x{80}-\x{10FFFF}]|[\p{L}\p{M}\p{N}])++)"),
        QRegularExpression::CaseInsensitiveOption);
    clear();
    setWordWrapMode(HasEndlessWord(text) ? QTextOption::WrapAnywhere
                                         : QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextCursor cursor(document());
    cursor.beginEditBlock(); // else each piece would lay its whole paragraph out again
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
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
}
