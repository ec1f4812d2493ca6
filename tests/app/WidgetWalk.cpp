#include "app/WidgetWalk.h"

#include "widgets/UOverlay.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTest>
#include <QTextEdit>

namespace {

template <class... Kinds>
bool IsOneOf(const QWidget* widget) {
    return (... || (qobject_cast<const Kinds*>(widget) != nullptr));
}

bool IsInteractive(const QWidget* widget) {
    return IsOneOf<QAbstractButton, QLineEdit, QComboBox, QPlainTextEdit, QTextEdit, QAbstractSpinBox,
                   QSlider, QAbstractItemView>(widget);
}

QWidget& TopPart(QWidget& root) {
    for (UOverlay* overlay : root.findChildren<UOverlay*>())
        if (overlay->isVisible())
            return *overlay;
    return root;
}

} // namespace

QVector<QWidget*> InteractiveWidgets(QWidget& root) {
    QVector<QWidget*> found;
    for (QWidget* widget : TopPart(root).findChildren<QWidget*>())
        if (IsInteractive(widget) && widget->isVisible() && widget->isEnabled())
            found.append(widget);
    return found;
}

QVector<QWidget*> TabStops(QWidget& root) {
    QVector<QWidget*> stops;
    if (!root.focusWidget())
        QTest::keyClick(&root, Qt::Key_Tab);
    constexpr int Endless = 200;
    for (int i = 0; i < Endless && root.focusWidget(); ++i) {
        const bool stays = !stops.isEmpty() && root.focusWidget() == stops.last(); // at the next of its links
        if (!stays && stops.contains(root.focusWidget()))
            break;
        if (!stays)
            stops.append(root.focusWidget());
        QTest::keyClick(root.focusWidget(), Qt::Key_Tab);
    }
    return stops;
}

std::string Describe(const QWidget& widget) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return QStringLiteral("%1 \"%2\" (%3)")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(),
             accessible ? accessible->text(QAccessible::Name) : QString())
        .toStdString();
}

QRect PlaceIn(const QWidget& root, const QWidget& widget) {
    return {widget.mapTo(const_cast<QWidget*>(&root), QPoint()), widget.size()};
}
