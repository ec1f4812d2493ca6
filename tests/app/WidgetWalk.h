#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

/// What is on screen in `root` and takes input, in the order of the widget tree: enabled buttons, fields,
/// boxes and lists. While an alert covers the window, only what is in it.
QVector<QWidget*> InteractiveWidgets(QWidget& root);

/// Presses Tab until the focus is back where it began and returns the widgets it stood on.
QVector<QWidget*> TabStops(QWidget& root);

/// A widget's class, name and text, for the message of a failing check.
std::string Describe(const QWidget& widget);

/// The widget's place in `root`.
QRect PlaceIn(const QWidget& root, const QWidget& widget);
