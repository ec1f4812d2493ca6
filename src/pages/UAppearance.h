#pragma once

#include <QFrame>

class QComboBox;
class QLabel;

/// Chooses language, theme and size of text, at once and for this user's later starts.
class UAppearance : public QFrame {
    Q_OBJECT

public:
    explicit UAppearance(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowChoices();
    void Retranslate();

    QLabel* m_languageLabel;
    QLabel* m_themeLabel;
    QLabel* m_textSizeLabel;
    QComboBox* m_language;
    QComboBox* m_theme;
    QComboBox* m_textSize;
};
