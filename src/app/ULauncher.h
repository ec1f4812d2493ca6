#pragma once

#include <QWidget>
#include <array>

class QLabel;
class UTextButton;
class UThemePicture;

/// What a person sees before the device is enrolled: what this is, and what to do next.
class ULauncher : public QWidget {
    Q_OBJECT

public:
    explicit ULauncher(QWidget* parent = nullptr);

signals:
    void EnrolRequested();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Retranslate();

    QLabel* m_title;
    QLabel* m_sentence;
    QLabel* m_noService;
    std::array<QLabel*, 3> m_steps{};
    UTextButton* m_enrol;
    UThemePicture* m_picture;
};
