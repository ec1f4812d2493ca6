#pragma once

#include <QFrame>

class QComboBox;
class QLabel;

/// Chooses language and theme of the running program, at once.
class UAppearance : public QFrame {
    Q_OBJECT

public:
    explicit UAppearance(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QLabel* m_languageLabel;
    QLabel* m_themeLabel;
    QComboBox* m_language;
    QComboBox* m_theme;
};
