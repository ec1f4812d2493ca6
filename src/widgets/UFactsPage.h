#pragma once

#include <QString>
#include <QVector>
#include <QWidget>
#include <functional>

class QFrame;
class QGridLayout;
class QLabel;
class QLayout;
class QVBoxLayout;
class UBackButton;
class UIconLabel;

/// One line of what a page knows.
struct RoomFact {
    QString icon;
    QString label;
    QString value;
};

/// What a room's page says. Texts are translation keys.
struct RoomContent {
    const char* icon = "";
    const char* title = "";
    const char* sentence = "";
    /// A line below the facts; empty for none.
    const char* note = "";
    /// The facts of this moment, in the language in use.
    std::function<QVector<RoomFact>()> facts;
};

/// A page that says what its room is for and what is known there now.
class URoomPage : public QWidget {
    Q_OBJECT

public:
    explicit URoomPage(QWidget* parent = nullptr);
    URoomPage(const RoomContent& content, QWidget* parent);

    void SetContent(const RoomContent& content);

    /// Puts a widget of the page's own between the facts and the note.
    void AddWidget(QWidget* widget);

    /// Shows a way back; pressing it emits BackRequested.
    void ShowBackButton();

    /// Asks for the facts again; happens by itself when the page is shown and when the link changes.
    void Refresh();

signals:
    void BackRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    RoomContent m_content;
    QVBoxLayout* m_column;
    QLayout* m_margins;
    UBackButton* m_back;
    UIconLabel* m_icon;
    QLabel* m_title;
    QLabel* m_sentence;
    QFrame* m_card;
    QGridLayout* m_rows;
    QVBoxLayout* m_own;
    QLabel* m_note;
    bool m_following = false;
};
