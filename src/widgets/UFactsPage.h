#pragma once

#include "widgets/UPage.h"

#include <QString>
#include <QVector>
#include <functional>

class QFrame;
class QGridLayout;

/// One line of what a page knows.
struct PageFact {
    QString icon;
    QString label;
    QString value;

    bool operator==(const PageFact& other) const {
        return icon == other.icon && label == other.label && value == other.value;
    }
};

/// What a page says. Texts are translation keys.
struct PageContent {
    const char* icon = "";
    const char* title = "";
    const char* sentence = "";
    /// A line below the facts; empty for none.
    const char* note = "";
    /// The facts of this moment, in the language in use; `page` is the one that shows them.
    std::function<QVector<PageFact>(const QWidget* page)> facts;
};

/// A page that says what it is for and what is known there now.
class UFactsPage : public UPage {
    Q_OBJECT

public:
    UFactsPage(PageContent content, QWidget* parent);

    /// Puts a widget of the page's own between the facts and the note.
    void AddWidget(QWidget* widget);

    /// Asks for the facts again; happens by itself when the page is shown, and while it is, whenever the
    /// state of the link or of the device changes.
    void Refresh();

    /// The facts as they stand on the screen, one line each.
    QString FactsText() const;

    /// Where a value begins in the layout of `widget`, whatever script it is written in.
    static Qt::Alignment ValueAlignment(const QWidget* widget);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void ShowFacts(const QVector<PageFact>& facts);

    PageContent m_content;
    QFrame* m_card;
    QGridLayout* m_rows;
    QVBoxLayout* m_own;
    QLabel* m_note;
    QVector<PageFact> m_facts; // on screen
    bool m_following = false;
};
