#include "feedback/DescriptionBox.h"

#include "feedback/AttachmentStrip.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>

namespace {

constexpr int TallestDocument = 160; // beyond it, the box scrolls
constexpr int BoxHeight = 184;       // room for that, and for padding and border

} // namespace

DescriptionBox::DescriptionBox(QWidget* parent) : QTextEdit(parent) {
    setObjectName(QStringLiteral("description"));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFixedHeight(BoxHeight);
    // Files that are dropped on it are the page's; it would insert their names.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            [this](const QSizeF& size) { ShowScrollBar(size.height()); });
    ShowScrollBar(0);
}

// The bar narrows the text, so that it can but grow: showing it never leads to hiding it.
void DescriptionBox::ShowScrollBar(qreal documentHeight) {
    setVerticalScrollBarPolicy(documentHeight > TallestDocument ? Qt::ScrollBarAlwaysOn
                                                                : Qt::ScrollBarAlwaysOff);
}

bool DescriptionBox::canInsertFromMimeData(const QMimeData* offer) const {
    return AttachmentStrip::CanTake(*offer) || QTextEdit::canInsertFromMimeData(offer);
}

void DescriptionBox::insertFromMimeData(const QMimeData* offer) {
    if (AttachmentStrip::CanTake(*offer))
        emit AttachmentPasted(*offer);
    else
        QTextEdit::insertFromMimeData(offer);
}
